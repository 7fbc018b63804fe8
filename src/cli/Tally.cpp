// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "Tally.h"

#include "Console.h"

namespace tressel {

void Tally::Started(qint64 total)
{
    wanted = total;
    steps = 0;
}

void Tally::Next(const QString &)
{
    console.ShowProgress(static_cast<double>(steps++), static_cast<double>(wanted));
    console.BetweenSteps();
}

void Tally::Did(Outcome outcome, const QString &)
{
    ++counts.at(static_cast<size_t>(outcome));
}

void Tally::Failed(const QString &path, const Failure &failure)
{
    ++failures;
    console.Fail(path, failure);
}

} // namespace tressel
