// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "Arguments.h"

#include "CommandParsers.h"
#include "base/Version.h"

#include <array>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

const QString helpText = uR"(Usage: tressel-cli create --to DIR (--list FILE | --names-of DIR | NAME...)
       tressel-cli series make|delete --in DIR --base TEXT --from N --to N
       tressel-cli report DIR
       tressel-cli COMMAND --help
       tressel-cli --help | --version

  create  makes one folder for each name
  series  makes or deletes folders whose names end in a running number
  report  lists the folders and files of a tree

Exit status: 0 all done, 1 something failed, 2 wrong usage, 130 interrupted.)"_s;

struct Parser {
    QString name;
    Command (*parse)(const QStringList &, const QString &);
};

} // namespace

QString AbsolutePath(const QString &path, const QString &workingFolder)
{
    const QString whole = path.startsWith(u'/') ? path : workingFolder + u'/' + path;
    QStringList levels = whole.split(u'/', Qt::SkipEmptyParts);
    levels.removeAll(u"."_s);
    return u'/' + levels.join(u'/');
}

Command ParseArguments(const QStringList &arguments, const QString &workingFolder)
{
    static const std::array<Parser, 3> parsers{
        {{u"create"_s, ParseCreate}, {u"series"_s, ParseSeries}, {u"report"_s, ParseReport}}};
    const QString first = arguments.value(0);
    if (first == u"--help"_s || first == u"-h"_s)
        return ShowText{helpText};
    if (first == u"--version"_s)
        return ShowText{u"tressel-cli %1.%2.%3"_s.arg(MajorVersion).arg(MinorVersion).arg(Revision)};
    for (const Parser &parser : parsers) {
        if (parser.name == first)
            return parser.parse(arguments, workingFolder);
    }
    return UsageError{first.isEmpty() ? u"no command given"_s : u"unknown command %1"_s.arg(first)};
}

} // namespace tressel
