// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "Help.h"

#include "Commands.h"
#include "base/Version.h"

#include <algorithm>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

const QString exitStatus =
    u"Exit status: 0 all done, 1 something failed, 2 wrong usage; 130, 143 or 129 where "
    "SIGINT, SIGTERM\nor SIGHUP stopped it between two steps."_s;

/// One thing and what is said of it, as two columns have it.
struct Row {
    QString head;
    QString text;
};

/// The rows in two columns; further lines of a text stand below its first one.
QString Columns(const QList<Row> &rows)
{
    qsizetype width = 0;
    for (const Row &row : rows)
        width = std::max(width, row.head.size());
    QString columns;
    for (const Row &row : rows) {
        QString text = row.text;
        text.replace(u'\n', u'\n' + QString(width + 4, u' '));
        columns += u"  "_s + row.head.leftJustified(width) + u"  "_s + text + u'\n';
    }
    return columns;
}

QString WaysToCall(const Command &command)
{
    QString ways;
    for (const QString &usage : command.usage)
        ways += (ways.isEmpty() ? u"Usage: "_s : u"       "_s) + u"tressel-cli "_s + command.name + u' '
            + usage + u'\n';
    return ways;
}

QString HeadOf(const CommandOption &option)
{
    return u"--"_s + option.name + (option.value.isEmpty() ? QString() : u' ' + option.value);
}

} // namespace

QString HelpOfProgram()
{
    QList<Row> rows;
    for (const Command &command : Commands())
        rows += {command.name, command.line};
    return u"Usage: tressel-cli COMMAND ...\n"
           "       tressel-cli COMMAND --help\n"
           "       tressel-cli --help | --version\n\n"_s
        + Columns(rows) + u'\n' + exitStatus;
}

QString HelpOf(const Command &command)
{
    QList<Row> rows;
    for (const CommandOption &option : command.options)
        rows += {HeadOf(option), option.help};
    rows += {u"--help, -h"_s, u"this text"_s};
    return WaysToCall(command) + u'\n' + command.about + u"\n\n"_s + Columns(rows)
        + u"\nOptions may stand anywhere; \"--\" ends them.\n\nExample: "_s + command.example + u"\n\n"_s
        + exitStatus;
}

QString VersionLine()
{
    return u"tressel-cli %1.%2.%3"_s.arg(MajorVersion).arg(MinorVersion).arg(Revision);
}

} // namespace tressel
