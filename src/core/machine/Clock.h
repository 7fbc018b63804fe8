// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDateTime>

namespace tressel {

class Clock {
public:
    virtual ~Clock() = default;
    /// Local date and time, to the millisecond.
    virtual QDateTime Now() const = 0;
};

} // namespace tressel
