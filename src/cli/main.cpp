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

struct Runner {
    FileSystem &files;
    Clock &clock;
    Program &program;

    int operator()(const ShowText &text) const
    {
        Print(text.text);
        return AllDone;
    }
    int operator()(const UsageError &error) const
    {
        PrintError(error.sentence + u" (see tressel-cli --help)"_s);
        return WrongUsage;
    }
    int operator()(const CreateRequest &request) const { return RunCreate(request, files, clock, program); }
    int operator()(const SeriesRequest &request) const { return RunSeries(request, files, clock, program); }
    int operator()(const ReportRequest &request) const { return RunReport(request, files, clock, program); }
};

} // namespace

int main(int count, char **arguments)
{
    PosixFileSystem files;
    PosixClock clock;
    PosixProgram program(count, arguments, [] { std::fflush(stdout); });
    const Command command = ParseArguments(TextOf(count, arguments), WorkingFolder());
    return std::visit(Runner{files, clock, program}, command);
}
