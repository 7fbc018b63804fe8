// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// The built program finds and removes empty folders on the real disc. After every removal the whole tree is
// counted.

#include "RunCommand.h"
#include "support/AsNobody.h"
#include "support/Census.h"
#include "support/OwnMounts.h"

#include <gtest/gtest.h>
#include <unistd.h>

namespace {

using namespace tressel;
namespace fs = std::filesystem;

class EmptyProcess : public testing::Test, protected CommandPlace {
protected:
    EmptyProcess()
    {
        fs::create_directories(folder / "w");
        workingFolder = folder;
    }

    void MakeFolder(const std::string &path) const { fs::create_directories(folder / path); }
    void PutFile(const std::string &path) const
    {
        fs::create_directories((folder / path).parent_path());
        Put(path, "mine");
    }
    auto Census() const { return CensusOf(folder / "w"); }
    std::string Lines(const std::set<std::string> &below) const
    {
        std::string lines;
        for (const std::string &path : below)
            lines += (folder / "w" / path).string() + '\n';
        return lines;
    }
};

TEST_F(EmptyProcess, OnlyListedFoldersGo)
{
    const std::set<std::string> empty{" blanks ", "a/b", "back\\slash", "c", "d/raw\xff"};
    for (const std::string &path : empty)
        MakeFolder("w/" + path);
    for (const char *path : {"w/d/file", "w/e/.hidden", "w/f/g/file"})
        PutFile(path);
    EXPECT_EQ(RunCli({"empty", "list", "w"}).out, Lines(empty));
    const auto before = Census();
    EXPECT_EQ(RunCli({"empty", "remove", "--dry-run", "w"}).status, 0);
    EXPECT_EQ(Census(), before);
    EXPECT_EQ(RunCli({"empty", "remove", "w"}).out, "removed 5, failed 0\n");
    EXPECT_EQ(Gone(before, Census()), empty);
}

TEST_F(EmptyProcess, FindsWhatFindFinds)
{
    for (int number = 0; number < 300; ++number) {
        const std::string name = std::to_string(number);
        MakeFolder("w/" + name + (number % 7 == 0 ? "/x" : "/x/y"));
        if (number % 3 == 0)
            PutFile("w/" + name + "/x/f");
        if (number % 5 == 0)
            fs::create_symlink("..", folder / "w" / name / "x/up");
    }
    const std::string mine = (folder / "mine").string();
    const std::string theirs = (folder / "theirs").string();
    Put("mine", RunCli({"empty", "list", "w"}).out);
    EXPECT_EQ(std::system(("find '" + (folder / "w").string() + "' -type d -empty | sort > '" + theirs
                           + "'; sort '" + mine + "' | cmp - '" + theirs + "'")
                              .c_str()),
              0);
    EXPECT_GT(fs::file_size(mine), 1000U);
}

TEST_F(EmptyProcess, CascadeTakesTreesOfEmptyFoldersAndSelfTheFolderToo)
{
    for (const char *path : {"w/a/b/c", "w/a/d"})
        MakeFolder(path);
    PutFile("w/e/file");
    const auto before = Census();
    EXPECT_EQ(RunCli({"empty", "remove", "--cascade", "w"}).out, "removed 4, failed 0\n");
    EXPECT_EQ(Gone(before, Census()), (std::set<std::string>{"a", "a/b", "a/b/c", "a/d"}));
    fs::remove_all(folder / "w/e");
    EXPECT_EQ(RunCli({"empty", "remove", "--cascade", "w"}).out, "removed 0, failed 0\n");
    EXPECT_EQ(RunCli({"empty", "remove", "--cascade", "--self", "w"}).out, "removed 1, failed 0\n");
    EXPECT_FALSE(fs::exists(folder / "w"));
}

TEST_F(EmptyProcess, LinksAndCirclesAreContentAndNeverWalked)
{
    MakeFolder("outside/empty");
    MakeFolder("w/circle");
    fs::create_symlink("..", folder / "w/circle/up");
    fs::create_symlink("../outside", folder / "w/link");
    MakeFolder("w/empty");
    EXPECT_EQ(RunCli({"empty", "remove", "--cascade", "w"}).out, "removed 1, failed 0\n");
    EXPECT_EQ(Census(),
              (std::map<std::string, std::string>{
                  {"circle", "folder"}, {"circle/up", "link to .."}, {"link", "link to ../outside"}}));
    EXPECT_TRUE(fs::exists(folder / "outside/empty"));
}

TEST_F(EmptyProcess, AFolderWithoutReadRightsIsNamedAndStays)
{
    if (!IsRoot())
        GTEST_SKIP() << "Only root can run the program as somebody else.";
    PutFile("w/a/closed/file");
    MakeFolder("w/b");
    for (const char *path : {"", "w", "w/a", "w/b"})
        fs::permissions(folder / path, fs::perms::all);
    fs::permissions(folder / "w/a/closed", fs::perms::none);
    const auto before = Census();
    constexpr uid_t nobody = 65534;
    const Outcome outcome = RunCli({"empty", "remove", "--cascade", "w"}, nobody);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.err, "tressel-cli: " + (folder / "w/a/closed").string() + ": Path/File access error\n");
    EXPECT_EQ(outcome.out, "removed 1, failed 1\n");
    EXPECT_EQ(Gone(before, Census()), std::set<std::string>{"b"});
}

TEST_F(EmptyProcess, WhatIsMountedBelowIsLeftAlone)
{
    MakeFolder("w/a");
    MakeFolder("w/mounted");
    const auto holds = HoldsAmongOwnMounts([this] {
        if (!MountMemory((folder / "w/mounted").c_str(), 1 << 20))
            return false;
        MakeFolder("w/mounted/empty");
        const auto before = Census();
        const Outcome list = RunCli({"empty", "list", "--cascade", "w"});
        const Outcome remove = RunCli({"empty", "remove", "--cascade", "w"});
        return list.out == Lines({"a"}) && remove.out == "removed 1, failed 0\n"
            && Gone(before, Census()) == std::set<std::string>{"a"};
    });
    if (!holds)
        GTEST_SKIP() << "This system lets nobody have mounts of their own.";
    EXPECT_TRUE(*holds);
}

TEST_F(EmptyProcess, TwoThousandLevelsGoUpToTheFolderItself)
{
    std::string path = "w";
    for (int level = 0; level < 2000; ++level) {
        path += "/x";
        ASSERT_TRUE(fs::create_directory(folder / path)) << level;
    }
    EXPECT_EQ(RunCli({"empty", "list", "w"}).out, (folder / path).string() + '\n');
    EXPECT_EQ(RunCli({"empty", "remove", "--cascade", "w"}).out, "removed 2000, failed 0\n");
    EXPECT_EQ(Census().size(), 0U);
}

TEST_F(EmptyProcess, ASignalStopsBetweenTwoFoldersWithTheCount)
{
    constexpr size_t count = 20000;
    for (size_t number = 0; number < count; ++number)
        ASSERT_TRUE(fs::create_directory(folder / "w" / std::to_string(number)));
    size_t left = count;
    for (const auto &[signal, status] : {std::pair(SIGTERM, 143), {SIGINT, 130}}) {
        // The first of those that are there goes first.
        const fs::path first = folder / "w" / *Below("w").begin();
        interruptWhen = [&first] { return !fs::exists(first); };
        interruptWith = signal;
        const Outcome outcome = RunCli({"empty", "remove", "w"});
        EXPECT_EQ(outcome.status, status);
        const size_t now = Census().size();
        EXPECT_EQ(outcome.out, "removed " + std::to_string(left - now) + ", failed 0\n");
        EXPECT_LT(now, left);
        EXPECT_GT(now, 0U);
        left = now;
    }
}

TEST_F(EmptyProcess, AFullOrClosedOutputIsAFailure)
{
    for (const std::vector<std::string> &words :
         std::vector<std::vector<std::string>>{{"empty", "list", "w"}, {"empty", "remove", "w"}}) {
        MakeFolder("w/a");
        standardOutput = "/dev/full";
        Outcome outcome = RunCli(words);
        EXPECT_EQ(outcome.status, 1);
        EXPECT_NE(outcome.err.find("tressel-cli: standard output: Disk full\n"), std::string::npos)
            << outcome.err;
        standardOutput.clear();
        MakeFolder("w/a");
        closed = {STDOUT_FILENO};
        outcome = RunCli(words);
        EXPECT_EQ(outcome.status, 1);
        EXPECT_NE(outcome.err.find("tressel-cli: standard output: It is closed\n"), std::string::npos)
            << outcome.err;
        closed.clear();
    }
}

TEST_F(EmptyProcess, OnATerminalNoNameIsRaw)
{
    MakeFolder("w/\033[31mred");
    outIsTerminal = errIsTerminal = true;
    const Outcome outcome = RunCli({"empty", "list", "w"});
    EXPECT_EQ(outcome.out.find('\033'), std::string::npos) << outcome.out;
    EXPECT_NE(outcome.out.find("'$'\\033''[31mred'"), std::string::npos) << outcome.out;
    EXPECT_EQ(outcome.err, "found 1, failed 0\r\n");
}

} // namespace
