// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/AbsolutePath.h"

#include "machine/posix/PosixFileSystem.h"
#include "support/Failures.h"
#include "support/MemoryMachine.h"
#include "support/TemporaryFolder.h"
#include "support/Text.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

class PathOfTyped : public testing::Test {
protected:
    PathOfTyped()
    {
        machine.files.PutFolder(u"C:\\Work\\a\\b"_s);
        machine.files.PutFolder(u"C:\\Else\\deep"_s);
        machine.files.PutLink(u"C:\\Work\\link"_s, u"C:\\Else\\deep"_s);
        machine.files.PutLink(u"C:\\Work\\near"_s, u"a\\b"_s);
        machine.files.PutLink(u"C:\\Work\\round"_s, u"round"_s);
        machine.files.PutLink(u"C:\\Work\\lost"_s, u"gone"_s);
    }
    QString Of(const QString &path, Links last = Links::Follow)
    {
        return AbsolutePath(machine.files, path, u"C:\\Work"_s, last);
    }

    MemoryMachine machine;
};

TEST_F(PathOfTyped, StartsWhereTheProgramWasStarted)
{
    EXPECT_EQ(Of(u"a"_s), u"C:\\Work\\a"_s);
    EXPECT_EQ(Of(u"."_s), u"C:\\Work"_s);
    EXPECT_EQ(Of(u".\\a\\\\.\\b\\"_s), u"C:\\Work\\a\\b"_s);
    EXPECT_EQ(Of(u"\\x"_s), u"C:\\x"_s);
    EXPECT_EQ(Of(u"D:\\x\\y"_s), u"D:\\x\\y"_s);
    EXPECT_EQ(Of(u"C:\\"_s), u"C:\\"_s);
}

TEST_F(PathOfTyped, TwoDotsGoUpAndStopAtTheRoot)
{
    EXPECT_EQ(Of(u"..\\b"_s), u"C:\\b"_s);
    EXPECT_EQ(Of(u"a\\b\\..\\..\\c"_s), u"C:\\Work\\c"_s);
    EXPECT_EQ(Of(u"..\\..\\..\\x"_s), u"C:\\x"_s);
    EXPECT_EQ(Of(u"none\\deeper\\..\\x"_s), u"C:\\Work\\none\\x"_s);
}

TEST_F(PathOfTyped, LinksAreResolvedBeforeTwoDotsGoUp)
{
    EXPECT_EQ(Of(u"link\\.."_s), u"C:\\Else"_s);
    EXPECT_EQ(Of(u"link\\x"_s), u"C:\\Else\\deep\\x"_s);
    EXPECT_EQ(Of(u"near\\..\\c"_s), u"C:\\Work\\a\\c"_s);
    EXPECT_EQ(Of(u"lost\\x"_s), u"C:\\Work\\gone\\x"_s);
}

TEST_F(PathOfTyped, LastNameMayStayALink)
{
    EXPECT_EQ(Of(u"link"_s), u"C:\\Else\\deep"_s);
    EXPECT_EQ(Of(u"link"_s, Links::Keep), u"C:\\Work\\link"_s);
    EXPECT_EQ(Of(u"near\\..\\..\\link"_s, Links::Keep), u"C:\\Work\\link"_s);
    EXPECT_EQ(Of(u"link\\"_s, Links::Keep), u"C:\\Else\\deep"_s);
    EXPECT_EQ(Of(u"link\\.."_s, Links::Keep), u"C:\\Else"_s);
}

TEST_F(PathOfTyped, CirclesAndEmptyPathsFail)
{
    EXPECT_EQ(NumberThrownBy([&] { Of(u"round\\x"_s); }), FailureNumber::PathFileAccessError);
    EXPECT_EQ(NumberThrownBy([&] { Of(u""_s); }), FailureNumber::BadFileName);
}

TEST(PathOfTypedOnDisc, LinksAndTwoDotsAreResolved)
{
    const TemporaryFolder folder;
    ASSERT_EQ(mkdir(folder.Native("real").constData(), 0777), 0);
    ASSERT_EQ(symlink("real", folder.Native("link").constData()), 0);
    PosixFileSystem files;
    const QString at = AbsolutePath(files, folder.Path(), u"/"_s, Links::Follow);
    EXPECT_EQ(AbsolutePath(files, u"link/../link/x"_s, at, Links::Follow), at + u"/real/x"_s);
    EXPECT_EQ(AbsolutePath(files, u"real/../link"_s, at, Links::Keep), at + u"/link"_s);
    EXPECT_EQ(AbsolutePath(files, u"//usr/./../tmp//"_s, at, Links::Keep), u"/tmp"_s);
    EXPECT_EQ(AbsolutePath(files, u"/"_s, at, Links::Follow), u"/"_s);
    const QString odd = QString(u"a"_s) + QChar(0xDCFF);
    EXPECT_EQ(AbsolutePath(files, odd, at, Links::Follow), at + u'/' + odd);
}

} // namespace
