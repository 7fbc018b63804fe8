// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// The built program cuts and joins on the real disc.

#include "RunCommand.h"
#include "support/OwnMounts.h"

#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using namespace tressel;
namespace fs = std::filesystem;

std::string Pattern(size_t length)
{
    std::string bytes(length, '\0');
    for (size_t index = 0; index < length; ++index)
        bytes[index] = static_cast<char>(index * 7 + index / 251);
    return bytes;
}

class SplitProcess : public testing::Test, protected CommandPlace {
protected:
    SplitProcess()
    {
        fs::create_directories(folder / "w");
        workingFolder = folder / "w";
    }
    std::set<std::string> Here() const { return Below("w"); }
    /// Makes a file of nearly all the room that is left on its disc, piece by piece: the program takes of it
    /// too.
    void TakeRoom(const std::string &name) const
    {
        constexpr off_t piece = 1 << 20;
        const fs::path path = Put(name, "");
        const int file = open(path.c_str(), O_WRONLY | O_CLOEXEC);
        off_t taken = 0;
        while (fs::space(path).available > piece && posix_fallocate(file, taken, piece) == 0)
            taken += piece;
        close(file);
    }
    /// Runs a command of the shell in the folder; true if it ended well.
    bool Shell(const std::string &command) const
    {
        return std::system(("cd '" + workingFolder.string() + "' && " + command + " >/dev/null 2>&1").c_str())
            == 0;
    }
};

TEST_F(SplitProcess, EachLengthAndNameComesBack)
{
    const std::array<std::string, 5> names{"plain.bin", "with blank", "it's \"100%\"", "raw\xff\xfe",
                                           "-dash"};
    for (const size_t length : {1U, 1023U, 1024U, 1025U, 3072U, 5000U}) {
        for (const std::string &name : names) {
            const std::string contents = Pattern(length);
            Put("w/" + name, contents);
            const Outcome split = RunCli({"split", "--size", "1K", "--checksums", "--", name});
            ASSERT_EQ(split.status, 0) << split.err;
            EXPECT_TRUE(Shell("sha256sum -c -- *.sha256"));
            fs::remove(folder / "w" / name);
            const Outcome join = RunCli({"join", "--delete-parts", "--", name});
            EXPECT_EQ(join.status, 0) << join.err;
            EXPECT_EQ(Contents(folder / "w" / name), contents);
            EXPECT_EQ(Here(), (std::set<std::string>{name, name + ".sha256"}));
            fs::remove(folder / "w" / name);
            fs::remove(folder / "w" / (name + ".sha256"));
        }
    }
}

TEST_F(SplitProcess, PartsAreThoseOfOtherTools)
{
    const std::string contents = Pattern(10000);
    Put("w/a", contents);
    ASSERT_EQ(RunCli({"split", "a", "--size", "3K"}).status, 0);
    EXPECT_TRUE(Shell("cat a.1 a.2 a.3 a.4 | cmp - a"));
    EXPECT_TRUE(Shell("split -b 3K -d a b. && cmp b.00 a.1 && cmp b.01 a.2 && cmp b.02 a.3 && cmp b.03 a.4"));
    EXPECT_TRUE(Shell("mv b.00 b.1 && mv b.01 b.2 && mv b.02 b.3 && mv b.03 b.4"));
    EXPECT_EQ(RunCli({"join", "b"}).status, 0);
    EXPECT_EQ(Contents(folder / "w/b"), contents);
    EXPECT_TRUE(Shell("split -n 7 -a 1 --numeric-suffixes=1 a c."));
    EXPECT_EQ(RunCli({"join", "c"}).status, 0);
    EXPECT_EQ(Contents(folder / "w/c"), contents);
}

TEST_F(SplitProcess, ThreeGibibytesWithHolesComeBack)
{
    constexpr off_t length = (off_t{3} << 30) + 5;
    const fs::path file = Put("w/big", "head");
    ASSERT_EQ(truncate(file.c_str(), length), 0);
    std::fstream(file, std::ios::binary | std::ios::in | std::ios::out).seekp(length - 4) << "tail";
    const Outcome split = RunCli({"split", "big", "--count", "3"});
    ASSERT_EQ(split.out, "made 3 parts\n") << split.err;
    EXPECT_EQ(fs::file_size(folder / "w/big.1"), 1U << 30 | 2U);
    fs::rename(file, folder / "w/before");
    ASSERT_EQ(RunCli({"join", "big"}).status, 0);
    EXPECT_TRUE(Shell("cmp big before"));
}

TEST_F(SplitProcess, AFileLimitLeavesNoPart)
{
    Put("w/a", Pattern(100000));
    longestFile = 50000;
    const Outcome outcome = RunCli({"split", "a", "--size", "60000"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_NE(outcome.err.find("a.1: "), std::string::npos);
    EXPECT_EQ(Here(), std::set<std::string>{"a"});
}

TEST_F(SplitProcess, AFileLimitUnderTheLastPartLeavesNoPart)
{
    Put("w/a", Pattern(100001));
    // Three parts of 33,334, 33,334 and 33,333 bytes, and a batch file; or two and one that is longer.
    longestFile = 33333;
    EXPECT_EQ(RunCli({"split", "a", "--count", "3"}).status, 1);
    EXPECT_EQ(Here(), std::set<std::string>{"a"});
    Put("w/a", Pattern(100000));
    const Outcome outcome = RunCli({"split", "a", "--count", "3", "--batch"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_NE(outcome.err.find("a.3: Disk full"), std::string::npos) << outcome.err;
    EXPECT_EQ(Here(), std::set<std::string>{"a"});
}

TEST_F(SplitProcess, ASmallDiscIsLookedAtBeforeTheFirstByte)
{
    const auto holds = HoldsAmongOwnMounts([this] {
        if (!MountMemory((folder / "w").c_str(), 160 << 10))
            return false;
        Put("w/a", Pattern(90000));
        const Outcome split = RunCli({"split", "a", "--count", "3"});
        const bool isSplitRefused = split.status == 1
            && split.err.find("bytes, and the parts take 90000\n") != std::string::npos
            && Here() == std::set<std::string>{"a"};
        fs::rename(folder / "w/a", folder / "w/b.1");
        const Outcome join = RunCli({"join", "b"});
        return isSplitRefused && join.status == 1
            && join.err.find("bytes, and the file takes 90000\n") != std::string::npos
            && Here() == std::set<std::string>{"b.1"};
    });
    if (!holds)
        GTEST_SKIP() << "This system lets nobody have mounts of their own.";
    EXPECT_TRUE(*holds);
}

TEST_F(SplitProcess, ADiscThatAnotherFillsMeanwhileIsLeftAsItWas)
{
    // Another program takes what is left as soon as the first part is there.
    const auto holds = HoldsAmongOwnMounts([this] {
        if (!MountMemory((folder / "w").c_str(), 64 << 20))
            return false;
        Put("w/a", "");
        // The parts need nearly all of it.
        if (truncate((folder / "w/a").c_str(), 60 << 20) != 0)
            return false;
        interruptWhen = [this, isFull = false]() mutable {
            if (!isFull && fs::exists(folder / "w/a.1")) {
                isFull = true;
                TakeRoom("w/z");
            }
            return false;
        };
        const Outcome outcome = RunCli({"split", "a", "--size", "64K", "--batch"});
        return outcome.status == 1 && outcome.err.find(": Disk full\n") != std::string::npos
            && outcome.out == "made 0 parts, 0 other files\n" && Here() == std::set<std::string>{"a", "z"};
    });
    if (!holds)
        GTEST_SKIP() << "This system lets nobody have mounts of their own.";
    EXPECT_TRUE(*holds);
}

TEST_F(SplitProcess, NamesThatDoNotFitLeaveNothing)
{
    const std::string name(254, 'n');
    Put("w/" + name, Pattern(100));
    const Outcome outcome = RunCli({"split", name, "--size", "10"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_NE(outcome.err.find("It is longer than 255 bytes"), std::string::npos);
    EXPECT_EQ(Here(), std::set<std::string>{name});
    const std::string fits(250, 'n');
    Put("w/" + fits, Pattern(100));
    EXPECT_EQ(RunCli({"split", fits, "--size", "10"}).status, 0);
    EXPECT_EQ(RunCli({"join", fits, "--force"}).status, 0);
}

TEST_F(SplitProcess, WhatIsNoRegularFileIsRefusedAtOnce)
{
    ASSERT_EQ(mkfifo((folder / "w/pipe").c_str(), 0600), 0);
    fs::create_symlink("/dev/zero", folder / "w/device");
    fs::create_directory(folder / "w/sub");
    for (const char *name : {"pipe", "device", "sub", "sub/"}) {
        const Outcome outcome = RunCli({"split", name, "--size", "10"});
        EXPECT_EQ(outcome.status, 1) << name;
        EXPECT_NE(outcome.err.find("It is no regular file"), std::string::npos) << name << outcome.err;
    }
    ASSERT_EQ(mkfifo((folder / "w/b.1").c_str(), 0600), 0);
    EXPECT_EQ(RunCli({"join", "b"}).status, 1);
    EXPECT_EQ(Here(), (std::set<std::string>{"pipe", "device", "sub", "b.1"}));
}

TEST_F(SplitProcess, AFileOfAnotherIsCutWhereItCanBeRead)
{
    Put("w/a", Pattern(100));
    chmod((folder / "w/a").c_str(), 0444);
    fs::permissions(folder, fs::perms::all);
    fs::permissions(folder / "w", fs::perms::all);
    constexpr uid_t nobody = 65534;
    const Outcome outcome = RunCli({"split", "a", "--count", "2"}, geteuid() == 0 ? nobody : 0);
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_EQ(Contents(folder / "w/a.1") + Contents(folder / "w/a.2"), Pattern(100));
}

TEST_F(SplitProcess, ASignalLeavesNoPart)
{
    const fs::path file = Put("w/big", "");
    ASSERT_EQ(truncate(file.c_str(), off_t{2} << 30), 0);
    interruptAfter = folder / "w/big.1";
    const Outcome outcome = RunCli({"split", "big", "--size", "1G"});
    EXPECT_EQ(outcome.status, 130);
    EXPECT_EQ(outcome.out, "made 0 parts\n");
    EXPECT_EQ(Here(), std::set<std::string>{"big"});
}

TEST_F(SplitProcess, AKillInMidJoinLeavesTheOldFileWhole)
{
    const fs::path part = Put("w/big.1", "");
    ASSERT_EQ(truncate(part.c_str(), off_t{2} << 30), 0);
    Put("w/big", "old and whole");
    // What is on its way need not have a name yet, but it takes room.
    constexpr std::uintmax_t begun = 64U << 20;
    const auto isUnderWay = [this, before = fs::space(folder).free] {
        return fs::space(folder).free + begun < before;
    };
    interruptWhen = isUnderWay;
    interruptWith = SIGKILL;
    const Outcome outcome = RunCli({"join", "big", "--force", "--delete-parts"});
    EXPECT_EQ(outcome.status, -SIGKILL);
    EXPECT_EQ(Contents(folder / "w/big"), "old and whole");
    EXPECT_EQ(fs::file_size(part), 2U << 30);
    EXPECT_EQ(Here(), (std::set<std::string>{"big", "big.1"}));
}

TEST_F(SplitProcess, AFullOutputIsAFailure)
{
    Put("w/a", Pattern(100));
    standardOutput = "/dev/full";
    EXPECT_EQ(RunCli({"split", "a", "--count", "2"}).status, 1);
}

TEST_F(SplitProcess, ABarIsDrawnWhereThereIsSomebodyToSeeIt)
{
    Put("w/a", Pattern(100));
    errIsTerminal = true;
    const Outcome outcome = RunCli({"split", "a", "--count", "2"});
    EXPECT_NE(outcome.err.find("of 100"), std::string::npos) << outcome.err;
    EXPECT_EQ(outcome.out, "made 2 parts\n");
}

} // namespace
