// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "Arguments.h"
#include "Console.h"
#include "machine/TextFile.h"
#include "machine/posix/PosixClock.h"
#include "machine/posix/PosixFileSystem.h"
#include "machine/posix/PosixProgram.h"

#include <array>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <unistd.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

/// Arguments as text, in which every byte of a name finds its way back to the disc.
QStringList TextOf(int count, char **arguments)
{
    QStringList texts;
    for (int index = 1; index < count; ++index)
        texts += DecodeText(QByteArray(arguments[index]), NameBytes::Raw);
    return texts;
}

QString WorkingFolder()
{
    std::array<char, PATH_MAX> folder;
    const char *path = getcwd(folder.data(), folder.size());
    return path ? DecodeText(QByteArray(path), NameBytes::Raw) : u"/"_s;
}

int Run(const Command &command, int count, char **arguments)
{
    if (const auto *text = std::get_if<ShowText>(&command)) {
        Print(text->text);
        return AllDone;
    }
    if (const auto *error = std::get_if<UsageError>(&command)) {
        PrintError(error->sentence + u" (see tressel-cli --help)"_s);
        return WrongUsage;
    }
    PosixFileSystem files;
    PosixClock clock;
    PosixProgram program(count, arguments, [] { std::fflush(stdout); });
    return RunCreate(std::get<CreateRequest>(command), files, clock, program);
}

} // namespace

int main(int count, char **arguments)
{
    return Run(ParseArguments(TextOf(count, arguments), WorkingFolder()), count, arguments);
}
