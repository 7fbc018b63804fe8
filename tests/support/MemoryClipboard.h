// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/Clipboard.h"
#include "support/Journal.h"

namespace tressel {

class MemoryClipboard : public Clipboard {
public:
    explicit MemoryClipboard(Journal &journal)
        : journal(journal)
    {
    }
    /// Journal: "SetClipboard" about the text.
    void SetText(const QString &newText) override
    {
        journal.Note(QStringLiteral("SetClipboard"), newText);
        text = newText;
    }
    QString Text() const override { return text; }

private:
    Journal &journal;
    QString text;
};

} // namespace tressel
