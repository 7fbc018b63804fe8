// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "Arguments.h"

#include "support/Text.h"

#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

/// A command with an option of each kind.
const Command &Sample()
{
    static const Command command{u"sample"_s,
                                 {},
                                 {},
                                 {},
                                 {{u"to"_s, u"DIR"_s, {}},
                                  {u"text"_s, u"TEXT"_s, {}},
                                  {u"digits"_s, u"D"_s, {}, {u"1"_s, u"2"_s}},
                                  {u"quiet"_s, {}, {}}},
                                 {},
                                 {},
                                 nullptr};
    return command;
}

/// Why the words can't be understood; null if they can.
QString Problem(const QStringList &words)
{
    try {
        const Arguments arguments(Sample(), words);
        return {};
    } catch (const UsageError &error) {
        return error.sentence;
    }
}

TEST(Arguments, OptionsStandAnywhere)
{
    const Arguments arguments(Sample(), {u"a"_s, u"--to"_s, u"b"_s, u"c"_s, u"--quiet"_s, u"--text=d=e"_s});
    EXPECT_EQ(arguments.Operands(), (QStringList{u"a"_s, u"c"_s}));
    EXPECT_EQ(arguments.Value(u"to"_s), u"b"_s);
    EXPECT_EQ(arguments.Value(u"text"_s), u"d=e"_s);
    EXPECT_TRUE(arguments.Has(u"quiet"_s));
    EXPECT_FALSE(arguments.Has(u"digits"_s));
    EXPECT_FALSE(arguments.Value(u"digits"_s));
}

TEST(Arguments, TwoDashesEndTheOptionsAndOneIsNone)
{
    const Arguments arguments(Sample(), {u"-"_s, u"--to=-"_s, u"--"_s, u"--to"_s, u"--"_s, u"-h"_s});
    EXPECT_EQ(arguments.Operands(), (QStringList{u"-"_s, u"--to"_s, u"--"_s, u"-h"_s}));
    EXPECT_EQ(arguments.Value(u"to"_s), u"-"_s);
}

TEST(Arguments, ValueMayLookLikeAnOption)
{
    const Arguments arguments(Sample(), {u"--text"_s, u"--quiet"_s});
    EXPECT_EQ(arguments.Value(u"text"_s), u"--quiet"_s);
    EXPECT_FALSE(arguments.Has(u"quiet"_s));
}

TEST(Arguments, EmptyTextIsAValueAndAnEmptyPathIsNone)
{
    EXPECT_EQ(Problem({u"--text="_s}), QString());
    EXPECT_EQ(Problem({u"--text"_s, u""_s}), QString());
    EXPECT_EQ(Problem({u"--to="_s}), u"--to needs a DIR"_s);
}

TEST(Arguments, WhatIsWrongIsSaid)
{
    EXPECT_EQ(Problem({u"--to"_s}), u"--to needs a DIR"_s);
    EXPECT_EQ(Problem({u"--to"_s, u"a"_s, u"--to=b"_s}), u"--to is given twice"_s);
    EXPECT_EQ(Problem({u"--quiet"_s, u"--quiet"_s}), u"--quiet is given twice"_s);
    EXPECT_EQ(Problem({u"--quiet=1"_s}), u"--quiet takes no value"_s);
    EXPECT_EQ(Problem({u"--digits"_s, u"3"_s}), u"--digits takes one of 1, 2, not \"3\""_s);
    EXPECT_EQ(Problem({u"--qiuet"_s}), u"unknown option --qiuet, did you mean --quiet?"_s);
    EXPECT_EQ(Problem({u"-x"_s}), u"unknown option -x"_s);
}

TEST(Arguments, ControlCharactersOfAnArgumentAreNotRepeated)
{
    EXPECT_EQ(Problem({u"--x\033[31m"_s}), u"unknown option '--x'$'\\033''[31m'"_s);
}

TEST(Arguments, NeededOptionIsNamedWithItsValue)
{
    const Arguments arguments(Sample(), {});
    try {
        arguments.Need(u"to"_s);
        FAIL();
    } catch (const UsageError &error) {
        EXPECT_EQ(error.sentence, u"sample needs --to DIR"_s);
    }
}

TEST(Arguments, HelpIsAskedForWhereverItIsAnOption)
{
    EXPECT_TRUE(Arguments::AskForHelp(Sample(), {u"a"_s, u"--to"_s, u"b"_s, u"-h"_s}));
    EXPECT_TRUE(Arguments::AskForHelp(Sample(), {u"--bogus"_s, u"--help"_s}));
    EXPECT_FALSE(Arguments::AskForHelp(Sample(), {u"--text"_s, u"-h"_s}));
    EXPECT_FALSE(Arguments::AskForHelp(Sample(), {u"--"_s, u"--help"_s}));
}

TEST(Arguments, NearWordsAreFound)
{
    const QStringList words{u"create"_s, u"series"_s, u"report"_s};
    for (const QString &mistyped : {u"craete"_s, u"creat"_s, u"creates"_s, u"cruate"_s})
        EXPECT_EQ(NearestTo(mistyped, words), u"create"_s) << mistyped.toStdString();
    for (const QString &word : {u"xyz"_s, u""_s, u"s"_s, QString(100000, u'c')})
        EXPECT_EQ(NearestTo(word, words), QString());
}

} // namespace
