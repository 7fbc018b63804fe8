// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "CommandParsers.h"

#include <QCommandLineParser>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

const QString helpText =
    uR"(Usage: tressel-cli create --to DIR [--remove-ext] [--quiet] (--list FILE | --names-of DIR | NAME...)

Makes one folder in DIR for each name. "\" in a name stands between nested folders; characters that no
folder name may hold become "_". What exists is left as it is; for a name that exists, a folder is made
that is called as the one before it, with (1) behind, as the window does.

  --to DIR        the folder to make them in; it is made if it isn't there
  --list FILE     names from a text file, one a line; lines that start with ";" are comments
  --names-of DIR  the names of the files in a folder
  --remove-ext    what the window's "Remove Ext" does: a list file loses extensions of three letters as it
                  is read, and each name loses its last four characters as its folder is made
  --quiet         no progress and no closing line

The last line says what was made. Exit status: 0 all made, 1 something failed, 2 wrong usage,
130 interrupted.)"_s;

} // namespace

Command ParseCreate(const QStringList &arguments, const QString &workingFolder)
{
    QCommandLineParser parser;
    const QCommandLineOption to(u"to"_s, {}, u"DIR"_s);
    const QCommandLineOption list(u"list"_s, {}, u"FILE"_s);
    const QCommandLineOption namesOf(u"names-of"_s, {}, u"DIR"_s);
    const QCommandLineOption removeExtension(u"remove-ext"_s);
    const QCommandLineOption quiet(u"quiet"_s);
    const QCommandLineOption help(u"help"_s);
    parser.addOptions({to, list, namesOf, removeExtension, quiet, help});
    if (!parser.parse(arguments))
        return UsageError{parser.errorText()};
    if (parser.isSet(help))
        return ShowText{helpText};
    if (parser.values(to).size() != 1 || parser.value(to).isEmpty())
        return UsageError{u"create needs one --to DIR"_s};
    const bool hasNames = !parser.positionalArguments().isEmpty();
    if (parser.values(list).size() + parser.values(namesOf).size() + (hasNames ? 1 : 0) != 1)
        return UsageError{u"create takes its names from one of --list FILE, --names-of DIR or NAME..."_s};

    CreateRequest request;
    request.destination = AbsolutePath(parser.value(to), workingFolder);
    request.removeExtension = parser.isSet(removeExtension);
    request.quiet = parser.isSet(quiet);
    if (parser.isSet(list))
        request.listFile = AbsolutePath(parser.value(list), workingFolder);
    if (parser.isSet(namesOf))
        request.namesOf = AbsolutePath(parser.value(namesOf), workingFolder);
    request.names = parser.positionalArguments();
    return request;
}

} // namespace tressel
