// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/Clock.h"

namespace tressel {

/// A clock that stands still: 31 March 2004, 12:00:00.000, until it is set.
class MemoryClock : public Clock {
public:
    QDateTime Now() const override { return now; }
    void Set(const QDateTime &dateTime) { now = dateTime; }
    void Advance(qint64 milliseconds) { now = now.addMSecs(milliseconds); }

private:
    QDateTime now{QDate(2004, 3, 31), QTime(12, 0)};
};

} // namespace tressel
