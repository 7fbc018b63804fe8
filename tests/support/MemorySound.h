// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/Sound.h"
#include "support/Journal.h"

namespace tressel {

class MemorySound : public Sound {
public:
    explicit MemorySound(Journal &journal)
        : journal(journal)
    {
    }
    /// Journal: "Play" about the file.
    bool Play(const QString &file) override
    {
        journal.Note(QStringLiteral("Play"), file);
        return canPlay;
    }

    bool canPlay = true; ///< what Play returns

private:
    Journal &journal;
};

} // namespace tressel
