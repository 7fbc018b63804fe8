// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace tressel {

class Clipboard {
public:
    virtual ~Clipboard() = default;
    virtual void SetText(const QString &text) = 0;
    virtual QString Text() const = 0;
};

} // namespace tressel
