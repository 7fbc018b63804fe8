// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/posix/PosixProgram.h"

#include "machine/Paths.h"
#include "machine/posix/PosixFileSystem.h"
#include "support/AsNobody.h"
#include "support/EnvironmentVariable.h"
#include "support/TemporaryFolder.h"
#include "support/Text.h"

#include <cstdio>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <vector>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

class PosixProgramTest : public testing::Test {
protected:
    PosixProgramTest()
    {
        for (const QString &name : {u"bin"_s, u"share"_s, u"share/tressel"_s})
            EXPECT_FALSE(files.TryMakeFolder(At(name)));
    }
    QString At(const QString &name) { return folder.Path() + u'/' + name; }
    PosixProgram Program(const QByteArrayList &arguments = {}, const QByteArray &name = "tressel")
    {
        words = QByteArrayList{name} + arguments;
        pointers.clear();
        for (QByteArray &word : words)
            pointers.push_back(word.data());
        return {folder.Native("bin/" + name), static_cast<int>(words.size()), pointers.data(), {}};
    }

    TemporaryFolder folder;
    PosixFileSystem files;
    QByteArrayList words;
    std::vector<char *> pointers;
};

TEST_F(PosixProgramTest, FolderIsTheExecutablesOwnIfTheProgramsFilesLieThere)
{
    EXPECT_EQ(Program().Folder(), At(u"share/tressel"_s));
    ASSERT_FALSE(files.TryMakeFolder(At(u"bin/Lang"_s)));
    EXPECT_EQ(Program().Folder(), At(u"bin"_s));
    ASSERT_FALSE(files.TryRemoveFolder(At(u"bin/Lang"_s)));
    files.Open(At(u"bin/click.wav"_s), OpenFor::Creating);
    EXPECT_EQ(Program().Folder(), At(u"bin"_s));
}

TEST_F(PosixProgramTest, WritesInTheProgramFolderWhereItMay)
{
    EXPECT_EQ(Program().WritableFolder(), At(u"share/tressel"_s));
}

TEST_F(PosixProgramTest, WritesInTheUsersDataFolderWhereItMayNotWriteInItsOwn)
{
    ASSERT_FALSE(files.TryRemoveFolder(At(u"share/tressel"_s)));
    const EnvironmentVariable data("XDG_DATA_HOME", folder.Native("data/deep"));
    EXPECT_EQ(Program().WritableFolder(), At(u"data/deep/tressel"_s));
    EXPECT_TRUE(FolderExists(files, At(u"data/deep/tressel"_s)));
}

TEST_F(PosixProgramTest, ADataFolderThatIsNoWholePathDoesNotCount)
{
    ASSERT_FALSE(files.TryRemoveFolder(At(u"share/tressel"_s)));
    const EnvironmentVariable data("XDG_DATA_HOME", "data");
    const EnvironmentVariable home("HOME", folder.Native("home/"));
    EXPECT_EQ(Program().WritableFolder(), At(u"home/.local/share/tressel"_s));
    EXPECT_TRUE(FolderExists(files, At(u"home/.local/share/tressel"_s)));
}

TEST_F(PosixProgramTest, AFolderOfTheSystemIsNotWrittenBySomeUser)
{
    if (!IsRoot())
        GTEST_SKIP() << "needs root, to give it up";
    ASSERT_EQ(chmod(folder.Native("").constData(), 0755), 0);
    ASSERT_FALSE(files.TryMakeFolder(At(u"data"_s)));
    ASSERT_EQ(chmod(folder.Native("data").constData(), 0777), 0);
    const EnvironmentVariable data("XDG_DATA_HOME", folder.Native("data"));
    EXPECT_TRUE(HoldsAsNobody([this] { return Program().WritableFolder() == At(u"data/tressel"_s); }));
}

TEST_F(PosixProgramTest, NameIsTheExecutablesWithoutItsExtension)
{
    EXPECT_EQ(Program().ExecutableName(), u"tressel"_s);
    EXPECT_EQ(Program({}, "tressel-5.0.bin").ExecutableName(), u"tressel-5.0"_s);
    EXPECT_EQ(Program({}, ".hidden").ExecutableName(), u".hidden"_s);
}

TEST_F(PosixProgramTest, CommandLineIsTheArgumentsWithOneBlankBetweenThem)
{
    EXPECT_EQ(Program().CommandLine(), QString());
    EXPECT_EQ(Program({"/home/me/My Files/a.txt"}).CommandLine(), u"/home/me/My Files/a.txt"_s);
    EXPECT_EQ(Program({"a", "b", "\xE9"}).CommandLine(), u"a b "_s + QChar(0xDCE9));
}

// Without a fixture: the process that ends would leave its temporary folder behind.
TEST(PosixProgram, EndWritesDownAndEndsWithItsStatus)
{
    testing::GTEST_FLAG(death_test_style) = "threadsafe";
    PosixProgram program(0, nullptr, [] { return std::fputs("written down", stderr) >= 0; });
    EXPECT_EXIT(program.End(7), testing::ExitedWithCode(7), "written down");
    EXPECT_EXIT(program.End(0), testing::ExitedWithCode(0), "written down");
}

TEST(PosixProgram, EndTellsByItsStatusThatNotAllIsWrittenDown)
{
    testing::GTEST_FLAG(death_test_style) = "threadsafe";
    PosixProgram program(0, nullptr, [] { return false; });
    EXPECT_EXIT(program.End(0), testing::ExitedWithCode(1), "");
    EXPECT_EXIT(program.End(7), testing::ExitedWithCode(7), "");
}

TEST(PosixProgram, FindsTheRunningExecutable)
{
    EXPECT_EQ(PosixProgram(0, nullptr, {}).ExecutableName(), u"tressel-core-tests"_s);
}

} // namespace
