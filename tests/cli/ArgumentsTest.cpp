// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "Arguments.h"

#include "CommandParsers.h"
#include "support/Text.h"

#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

Command Parse(const QStringList &arguments)
{
    return ParseArguments(arguments, u"/home/me"_s);
}

TEST(Arguments, RelativePathsAreTakenFromTheWorkingFolder)
{
    const Command command = Parse({u"create"_s, u"--to"_s, u"out"_s, u"--list"_s, u"/l/names.txt"_s});
    const auto *request = std::get_if<CreateRequest>(&command);
    ASSERT_NE(request, nullptr);
    EXPECT_EQ(request->destination, u"/home/me/out"_s);
    EXPECT_EQ(*request->listFile, u"/l/names.txt"_s);
    EXPECT_FALSE(request->namesOf);
    EXPECT_FALSE(request->removeExtension);
    EXPECT_FALSE(request->quiet);
}

TEST(Arguments, NamesAndSwitchesAreUnderstood)
{
    const Command command =
        Parse({u"create"_s, u"--to=/o"_s, u"--remove-ext"_s, u"--quiet"_s, u"one"_s, u"--"_s, u"--two"_s});
    const auto *request = std::get_if<CreateRequest>(&command);
    ASSERT_NE(request, nullptr);
    EXPECT_EQ(request->names, (QStringList{u"one"_s, u"--two"_s}));
    EXPECT_TRUE(request->removeExtension);
    EXPECT_TRUE(request->quiet);
}

TEST(Arguments, EmptyLevelsAndDotsLeaveAPath)
{
    EXPECT_EQ(AbsolutePath(u"."_s, u"/home/me"_s), u"/home/me"_s);
    EXPECT_EQ(AbsolutePath(u"./a/"_s, u"/home/me"_s), u"/home/me/a"_s);
    EXPECT_EQ(AbsolutePath(u"/"_s, u"/home/me"_s), u"/"_s);
    EXPECT_EQ(AbsolutePath(u"x"_s, u"/"_s), u"/x"_s);
    EXPECT_EQ(AbsolutePath(u"//a/./b/../c.d"_s, u"/home/me"_s), u"/a/b/../c.d"_s);
}

TEST(Arguments, SeriesIsUnderstood)
{
    const Command command =
        Parse({u"series"_s, u"delete"_s, u"--in"_s, u"w"_s, u"--base"_s, u""_s, u"--from"_s, u"007"_s,
               u"--to"_s, u"12000"_s, u"--digits"_s, u"3"_s, u"--sub"_s, u"S"_s, u"--number-sub"_s});
    const auto *request = std::get_if<SeriesRequest>(&command);
    ASSERT_NE(request, nullptr);
    EXPECT_EQ(request->act, SeriesAct::Delete);
    EXPECT_EQ(request->folder, u"/home/me/w"_s);
    EXPECT_EQ(request->base, u""_s);
    EXPECT_EQ(request->sub, u"S"_s);
    EXPECT_TRUE(request->numbersSub);
    EXPECT_EQ(request->from, u"007"_s);
    EXPECT_EQ(request->to, u"12000"_s);
    EXPECT_EQ(request->digits, 3);
    EXPECT_FALSE(request->quiet);
}

TEST(Arguments, SeriesWithoutWhatItNeedsIsWrongUsage)
{
    const QStringList whole{u"series"_s, u"make"_s, u"--in=w"_s, u"--base=B"_s, u"--from=1"_s, u"--to=2"_s};
    ASSERT_TRUE(std::holds_alternative<SeriesRequest>(Parse(whole)));
    for (int missing = 1; missing < whole.size(); ++missing) {
        QStringList line = whole;
        line.removeAt(missing);
        EXPECT_TRUE(std::holds_alternative<UsageError>(Parse(line))) << line.join(u' ').toStdString();
    }
}

TEST(Arguments, SeriesThatCouldMakeNothingIsWrongUsage)
{
    const QStringList whole{u"series"_s, u"make"_s, u"--in=w"_s, u"--base=B"_s};
    const QList<QStringList> numbers = {
        {u"--from=x"_s, u"--to=2"_s},
        {u"--from=1"_s, u"--to="_s},
        {u"--from=-1"_s, u"--to=2"_s},
        {u"--from=1.5"_s, u"--to=2"_s},
        {u"--from=1"_s, u"--to=99999999999"_s, u"--digits=1"_s},
        {u"--from=3"_s, u"--to=2"_s},
        {u"--from=1"_s, u"--to=10000"_s},
        {u"--from=1"_s, u"--to=00002"_s, u"--digits=auto"_s},
        {u"--from=1"_s, u"--to=2"_s, u"--digits=5"_s},
        {u"--from=1"_s, u"--to=2"_s, u"--digits=0"_s},
        {u"--from=1"_s, u"--to=2"_s, u"--number-sub"_s},
        {u"--from=1"_s, u"--to=2"_s, u"rest"_s},
    };
    for (const QStringList &rest : numbers)
        EXPECT_TRUE(std::holds_alternative<UsageError>(Parse(whole + rest))) << rest.join(u' ').toStdString();
}

TEST(Arguments, ReportIsUnderstood)
{
    const Command command = Parse({u"report"_s, u"w/"_s, u"--folders-only"_s, u"--output"_s, u"/o/f.txt"_s});
    const auto *request = std::get_if<ReportRequest>(&command);
    ASSERT_NE(request, nullptr);
    EXPECT_EQ(request->folder, u"/home/me/w"_s);
    EXPECT_TRUE(request->foldersOnly);
    EXPECT_FALSE(request->namesOnly);
    EXPECT_EQ(request->output, u"/o/f.txt"_s);
    EXPECT_FALSE(request->quiet);
}

TEST(Arguments, ReportOfNoneOrSeveralFoldersIsWrongUsage)
{
    const QList<QStringList> lines = {
        {u"report"_s},
        {u"report"_s, u""_s},
        {u"report"_s, u"a"_s, u"b"_s},
        {u"report"_s, u"a"_s, u"--output"_s},
        {u"report"_s, u"a"_s, u"--output="_s},
        {u"report"_s, u"a"_s, u"--output=x"_s, u"--output=y"_s},
        {u"report"_s, u"a"_s, u"--bogus"_s},
    };
    for (const QStringList &line : lines)
        EXPECT_TRUE(std::holds_alternative<UsageError>(Parse(line))) << line.join(u' ').toStdString();
}

TEST(Arguments, WrongUsageIsTold)
{
    const QList<QStringList> lines = {
        {},
        {u"make"_s},
        {u"create"_s, u"a"_s},
        {u"create"_s, u"--to"_s, u"/o"_s},
        {u"create"_s, u"--to"_s, u""_s, u"a"_s},
        {u"create"_s, u"--to"_s, u"/o"_s, u"--list"_s, u"l"_s, u"a"_s},
        {u"create"_s, u"--to"_s, u"/o"_s, u"--list"_s, u"l"_s, u"--names-of"_s, u"d"_s},
        {u"create"_s, u"--to"_s, u"/o"_s, u"--to"_s, u"/p"_s, u"a"_s},
        {u"create"_s, u"--to"_s, u"/o"_s, u"--bogus"_s, u"a"_s},
    };
    for (const QStringList &line : lines)
        EXPECT_TRUE(std::holds_alternative<UsageError>(Parse(line))) << line.join(u' ').toStdString();
}

TEST(Arguments, HelpAndVersionAreTexts)
{
    for (const QStringList &line : {QStringList{u"--help"_s}, QStringList{u"create"_s, u"--help"_s},
                                    QStringList{u"series"_s, u"--help"_s},
                                    QStringList{u"report"_s, u"--help"_s}, QStringList{u"--version"_s}})
        EXPECT_TRUE(std::holds_alternative<ShowText>(Parse(line)));
}

} // namespace
