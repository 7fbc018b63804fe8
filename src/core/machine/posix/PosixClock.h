// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/Clock.h"

namespace tressel {

/// The system's clock, in local time.
class PosixClock : public Clock {
public:
    QDateTime Now() const override { return QDateTime::currentDateTime(); }
};

} // namespace tressel
