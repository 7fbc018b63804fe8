// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "Command.h"

namespace tressel::shared {

using namespace Qt::StringLiterals;

const CommandOption &Quiet()
{
    static const CommandOption option{
        u"quiet"_s, {}, u"no progress and no closing line; failures are told"_s};
    return option;
}

const CommandOption &DryRun()
{
    static const CommandOption option{
        u"dry-run"_s, {}, u"say what would be done, one action a line, and touch nothing"_s};
    return option;
}

const CommandOption &Null()
{
    static const CommandOption option{u"null"_s, {}, u"lines and names end in NUL in place of a line end"_s};
    return option;
}

const CommandOption &Force()
{
    static const CommandOption option{u"force"_s, {}, u"replace an output file that is there already"_s};
    return option;
}

} // namespace tressel::shared
