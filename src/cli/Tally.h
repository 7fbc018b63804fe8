// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tools/RunWatch.h"

#include <array>

namespace tressel {

class Console;

/// Listens to a run for the console: counts what it did, names what failed, shows how far it is, and stops it
/// between two steps where that is wanted.
class Tally : public RunWatch {
public:
    explicit Tally(Console &toConsole)
        : console(toConsole)
    {
    }

    void Started(qint64 total) override;
    void Next(const QString &path) override;
    void Did(Outcome outcome, const QString &path) override;
    void Failed(const QString &path, const Failure &failure) override;

    qint64 Count(Outcome outcome) const { return counts.at(static_cast<size_t>(outcome)); }
    qint64 Failures() const { return failures; }

private:
    Console &console;
    std::array<qint64, static_cast<size_t>(Outcome::Searched) + 1> counts{};
    qint64 failures = 0;
    qint64 steps = 0; ///< begun
    qint64 wanted = -1;
};

} // namespace tressel
