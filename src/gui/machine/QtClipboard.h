// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/Clipboard.h"

namespace tressel {

/// The desktop's clipboard.
class QtClipboard : public Clipboard {
public:
    void SetText(const QString &text) override;
    QString Text() const override;
};

} // namespace tressel
