// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "CreationCount.h"

#include "Console.h"

namespace tressel {

using namespace Qt::StringLiterals;

int TellCreation(const CreationCount &count, bool quiet)
{
    if (!quiet) {
        Print(u"made %1, already there %2, failed %3"_s.arg(count.made)
                  .arg(count.alreadyThere)
                  .arg(count.failed));
    }
    return count.failed > 0 ? SomethingFailed : AllDone;
}

} // namespace tressel
