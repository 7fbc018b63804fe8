// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "CommandParsers.h"

#include <QCommandLineParser>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

const QString helpText =
    uR"(Usage: tressel-cli report DIR [--folders-only] [--names-only] [--output FILE] [--quiet]

Lists DIR and all folders below it: the path of each folder, then the names of its files, with a line of
one blank ahead and behind. Links are listed as files and not followed. Nothing is written into DIR.

  --folders-only  one line with each folder's path and a blank, without the files
  --names-only    without the lines at the head and without the blanks ahead of each file
  --output FILE   writes the report to a new file, with line ends as the window's reports have them
                  (CR LF); a file that is there already is never overwritten. Without it the lines go
                  to standard output, each ended by LF
  --quiet         no progress and no closing line

Names come out byte for byte. The last line says what was listed; it goes to standard error where the
report itself goes to standard output. Exit status: 0 all listed, 1 something failed, 2 wrong usage,
130 interrupted.)"_s;

} // namespace

Command ParseReport(const QStringList &arguments, const QString &workingFolder)
{
    QCommandLineParser parser;
    const QCommandLineOption foldersOnly(u"folders-only"_s);
    const QCommandLineOption namesOnly(u"names-only"_s);
    const QCommandLineOption output(u"output"_s, {}, u"FILE"_s);
    const QCommandLineOption quiet(u"quiet"_s);
    const QCommandLineOption help(u"help"_s);
    parser.addOptions({foldersOnly, namesOnly, output, quiet, help});
    if (!parser.parse(arguments))
        return UsageError{parser.errorText()};
    if (parser.isSet(help))
        return ShowText{helpText};
    const QStringList folders = parser.positionalArguments();
    if (folders.size() != 1 || folders.first().isEmpty())
        return UsageError{u"report needs one DIR"_s};
    if (parser.values(output).size() > 1 || (parser.isSet(output) && parser.value(output).isEmpty()))
        return UsageError{u"report takes one --output FILE"_s};

    ReportRequest request;
    request.folder = AbsolutePath(folders.first(), workingFolder);
    request.foldersOnly = parser.isSet(foldersOnly);
    request.namesOnly = parser.isSet(namesOnly);
    if (parser.isSet(output))
        request.output = AbsolutePath(parser.value(output), workingFolder);
    request.quiet = parser.isSet(quiet);
    return request;
}

} // namespace tressel
