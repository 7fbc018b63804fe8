// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "CommandParsers.h"
#include "base/Failure.h"
#include "base/Numbers.h"

#include <QCommandLineParser>

#include <algorithm>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

const QString helpText = uR"(Usage: tressel-cli series make|delete --in DIR --base TEXT --from N --to N
                           [--sub TEXT [--number-sub]] [--digits auto|1|2|3|4] [--quiet]

Makes, or deletes, the folders TEXT and a running number in DIR, such as Disk001 to Disk120. "\" in a
text stands between nested folders. What exists is left alone.

  --in DIR      the folder of the series, which must be there
  --base TEXT   the text ahead of the number; may be empty
  --from N      the first number, from 0 on
  --to N        the last number
  --sub TEXT    a sub folder in each folder
  --number-sub  number the sub folders, and put them all into one folder TEXT
  --digits D    the least digits of a number; "auto", as without it, takes as many as --to has as it is
                written, up to four: --to 012 gives 001 to 012. With 1, the number 0 is left out of
                its name
  --quiet       no progress and no closing line

"delete" goes for the folders that "make" makes with the same options. Only empty folders go, and
never a file. Each folder on the way is tried too, from the top down: an empty folder above the series
goes as well, DIR itself and those above it included, and a folder of which only the sub folder was in
the way goes the next time. With --number-sub and --digits auto it looks for the sub folders in DIR
itself, unless DIR is the root.

The last line says what was made, or removed, kept because it isn't empty, and not there. Exit status:
0 nothing failed, 1 something failed, 2 wrong usage, 130 interrupted.)"_s;

/// A whole number from 0 on that fits into 32 bits.
bool IsNumber(const QString &text)
{
    const auto isDigit = [](QChar character) { return character >= u'0' && character <= u'9'; };
    if (text.isEmpty() || !std::ranges::all_of(text, isDigit))
        return false;
    try {
        ToInt32(text);
        return true;
    } catch (const Failure &) {
        return false;
    }
}

/// What is wrong with the numbers, if anything.
std::optional<QString> WhatIsWrong(const SeriesRequest &request)
{
    for (const auto &[option, text] : {std::pair(u"--from"_s, request.from), {u"--to"_s, request.to}}) {
        if (!IsNumber(text))
            return u"%1 takes a whole number from 0 on, not \"%2\""_s.arg(option, text);
    }
    if (ToInt32(request.from) > ToInt32(request.to))
        return u"--from %1 is above --to %2"_s.arg(request.from, request.to);
    constexpr qsizetype mostAutomaticDigits = 4;
    if (!request.digits && request.to.size() > mostAutomaticDigits)
        return u"--digits auto goes up to four digits, so --to %1 needs another --digits"_s.arg(request.to);
    return {};
}

} // namespace

Command ParseSeries(const QStringList &arguments, const QString &workingFolder)
{
    QCommandLineParser parser;
    const QCommandLineOption in(u"in"_s, {}, u"DIR"_s);
    const QCommandLineOption base(u"base"_s, {}, u"TEXT"_s);
    const QCommandLineOption sub(u"sub"_s, {}, u"TEXT"_s);
    const QCommandLineOption numberSub(u"number-sub"_s);
    const QCommandLineOption from(u"from"_s, {}, u"N"_s);
    const QCommandLineOption to(u"to"_s, {}, u"N"_s);
    const QCommandLineOption digits(u"digits"_s, {}, u"D"_s, u"auto"_s);
    const QCommandLineOption quiet(u"quiet"_s);
    const QCommandLineOption help(u"help"_s);
    parser.addOptions({in, base, sub, numberSub, from, to, digits, quiet, help});
    if (!parser.parse(arguments))
        return UsageError{parser.errorText()};
    if (parser.isSet(help))
        return ShowText{helpText};
    const QStringList acts = parser.positionalArguments();
    if (acts != QStringList{u"make"_s} && acts != QStringList{u"delete"_s})
        return UsageError{u"series needs one of make or delete"_s};
    if (parser.values(in).size() != 1 || parser.value(in).isEmpty())
        return UsageError{u"series needs one --in DIR"_s};
    for (const QCommandLineOption &option : {base, from, to}) {
        if (parser.values(option).size() != 1)
            return UsageError{u"series needs one --%1 %2"_s.arg(option.names().first(), option.valueName())};
    }
    if (parser.values(sub).size() > 1 || parser.values(digits).size() > 1)
        return UsageError{u"series takes --sub and --digits once"_s};
    if (parser.isSet(numberSub) && parser.value(sub).isEmpty())
        return UsageError{u"--number-sub needs a --sub TEXT"_s};

    static const QStringList digitCounts{u"auto"_s, u"1"_s, u"2"_s, u"3"_s, u"4"_s};
    const auto digitCount = static_cast<int>(digitCounts.indexOf(parser.value(digits)));
    if (digitCount < 0)
        return UsageError{u"--digits takes auto, 1, 2, 3 or 4, not \"%1\""_s.arg(parser.value(digits))};

    SeriesRequest request;
    request.act = acts.first() == u"make"_s ? SeriesAct::Make : SeriesAct::Delete;
    request.folder = AbsolutePath(parser.value(in), workingFolder);
    request.base = parser.value(base);
    request.sub = parser.value(sub);
    request.numbersSub = parser.isSet(numberSub);
    request.from = parser.value(from);
    request.to = parser.value(to);
    if (digitCount > 0)
        request.digits = digitCount;
    request.quiet = parser.isSet(quiet);
    if (const auto sentence = WhatIsWrong(request))
        return UsageError{*sentence};
    return request;
}

} // namespace tressel
