// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "Arguments.h"
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
    EXPECT_EQ(request->names, (QStringList {u"one"_s, u"--two"_s}));
    EXPECT_TRUE(request->removeExtension);
    EXPECT_TRUE(request->quiet);
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
    for (const QStringList &line :
         {QStringList {u"--help"_s}, QStringList {u"create"_s, u"--help"_s}, QStringList {u"--version"_s}})
        EXPECT_TRUE(std::holds_alternative<ShowText>(Parse(line)));
}

} // namespace
