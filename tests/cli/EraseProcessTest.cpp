// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// The built program erases on the real disc.

#include "RunCommand.h"
#include "support/AsNobody.h"
#include "support/Census.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <linux/magic.h>
#include <pty.h>
#include <sstream>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/vfs.h>
#include <unistd.h>

namespace {

using namespace tressel;
namespace fs = std::filesystem;

/// A terminal at which somebody has typed something already.
class Typed {
public:
    explicit Typed(const std::string &text)
    {
        EXPECT_EQ(openpty(&person, &program, path, nullptr, nullptr), 0);
        EXPECT_EQ(write(person, text.data(), text.size()), static_cast<ssize_t>(text.size()));
    }
    ~Typed()
    {
        close(person);
        close(program);
    }
    Typed(const Typed &) = delete;
    Typed &operator=(const Typed &) = delete;

    std::string Path() const { return path; }

private:
    int person = -1;
    int program = -1;
    char path[64] = {};
};

/// Whether a program that this one has started waits for something to be typed.
bool AProgramWaitsForInput()
{
    const std::string self = std::to_string(getpid());
    std::istringstream children(CommandPlace::Contents("/proc/self/task/" + self + "/children"));
    const std::string reads = std::to_string(SYS_read) + " 0x0 ";
    for (std::string child; children >> child;) {
        if (CommandPlace::Contents("/proc/" + child + "/syscall").rfind(reads, 0) == 0)
            return true;
    }
    return false;
}

class EraseProcess : public testing::Test, protected CommandPlace {
protected:
    EraseProcess()
    {
        fs::create_directories(folder / "w");
        workingFolder = folder / "w";
    }

    auto Census() const { return CensusOf(folder / "w"); }
    bool IsThere(const std::string &name) const { return fs::exists(folder / "w" / name); }
    /// Makes a file of so many bytes, all of them a hole.
    fs::path PutHole(const std::string &name, off_t length) const
    {
        const fs::path path = Put("w/" + name, "");
        EXPECT_EQ(truncate(path.c_str(), length), 0);
        return path;
    }
    const std::string unknownPlace = ": overwritten; whether in place the file system doesn't tell\n";
};

TEST_F(EraseProcess, RelativePathsOfAnyNameAndLengthGo)
{
    for (const size_t length : {0U, 1U, 4095U, 4096U, 4097U, 8192U}) {
        for (const char *const name : {"plain", " a b ", "raw\xff", "back\\slash", "-dash"}) {
            Put(std::string("w/") + name, std::string(length, 'a'));
            const Outcome outcome = RunCli({"erase", "--yes", "--quiet", "--", std::string("../w/") + name});
            EXPECT_EQ(outcome.status, 0) << outcome.err;
            EXPECT_EQ(outcome.err, "");
        }
    }
    EXPECT_EQ(Census().size(), 0U);
}

TEST_F(EraseProcess, MoreThanTwoGibibytesOfHolesGo)
{
    PutHole("f", (off_t{1} << 31) + 4097);
    const Outcome outcome = RunCli({"erase", "--yes", "f"});
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_TRUE(outcome.out.ends_with("\nerased 1, failed 0\n")) << outcome.out;
    EXPECT_EQ(Census().size(), 0U);
}

TEST_F(EraseProcess, OtherNamesOfTheFileHoldNothingAnyMore)
{
    Put("w/f", "secret");
    fs::create_hard_link(folder / "w/f", folder / "w/other");
    const Outcome refused = RunCli({"erase", "--yes", "f"});
    EXPECT_EQ(refused.status, 1);
    EXPECT_NE(refused.err.find("The file has 2 names"), std::string::npos) << refused.err;
    EXPECT_EQ(Contents(folder / "w/f"), "secret");
    EXPECT_EQ(RunCli({"erase", "--yes", "--all-names", "f"}).status, 0);
    EXPECT_EQ(Census(), (std::map<std::string, std::string>{{"other", "file "}}));
}

TEST_F(EraseProcess, WhatIsNoRegularFileIsRefusedAtOnceAndNothingIsTouched)
{
    Put("w/f", "mine");
    fs::create_directory(folder / "w/folder");
    Put("w/folder/inside", "mine");
    fs::create_symlink("f", folder / "w/link");
    fs::create_symlink("/dev/full", folder / "w/device");
    ASSERT_EQ(mkfifo((folder / "w/pipe").c_str(), 0600), 0);
    const auto before = Census();
    for (const char *name : {"folder", "link", "device", "pipe", "gone", "/dev/full"}) {
        const Outcome outcome = RunCli({"erase", "--yes", "f", name});
        EXPECT_EQ(outcome.status, 1) << name;
        EXPECT_EQ(outcome.out, "") << name;
        EXPECT_NE(outcome.err, "") << name;
    }
    EXPECT_EQ(Census(), before);
}

TEST_F(EraseProcess, AFileThatAnotherProgramHoldsStaysAsItIs)
{
    const fs::path path = Put("w/f", "mine");
    const int another = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    ASSERT_EQ(flock(another, LOCK_EX | LOCK_NB), 0);
    const Outcome outcome = RunCli({"erase", "--yes", "f"});
    close(another);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.err, "tressel-cli: " + path.string() + ": Permission denied\n");
    EXPECT_EQ(outcome.out, "erased 0, failed 1\n");
    EXPECT_EQ(Contents(path), "mine");
}

TEST_F(EraseProcess, AReadOnlyFileStaysAsItIs)
{
    if (!IsRoot())
        GTEST_SKIP() << "Only root can run the program as somebody else.";
    const fs::path path = Put("w/f", "mine");
    fs::permissions(path, fs::perms::owner_read | fs::perms::others_read);
    for (const fs::path &above : {folder, folder / "w"})
        fs::permissions(above, fs::perms::all);
    constexpr uid_t nobody = 65534;
    const Outcome outcome = RunCli({"erase", "--yes", "f"}, nobody);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.err, "tressel-cli: " + path.string() + ": Path/File access error\n");
    EXPECT_EQ(Contents(path), "mine");
}

TEST_F(EraseProcess, ATerminalIsAskedAndItsAnswerTaken)
{
    const fs::path path = Put("w/f", "secret");
    errIsTerminal = true;
    const std::string question =
        "  " + path.string() + "\r\nErase this file for good? There is no way back. Type \"yes\": ";
    {
        const Typed no("no\n");
        standardInput = no.Path();
        const Outcome outcome = RunCli({"erase", "f"});
        EXPECT_EQ(outcome.status, 1);
        EXPECT_EQ(outcome.err, question + "tressel-cli: nothing was erased\r\n");
        EXPECT_EQ(Contents(path), "secret");
    }
    const Typed yes("yes\n");
    standardInput = yes.Path();
    const Outcome outcome = RunCli({"erase", "f"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.err.rfind(question, 0), 0U) << outcome.err;
    EXPECT_EQ(outcome.out, path.string() + unknownPlace + "erased 1, failed 0\n");
    EXPECT_FALSE(IsThere("f"));
}

TEST_F(EraseProcess, ASignalAtTheQuestionErasesNothing)
{
    Put("w/f", "mine");
    errIsTerminal = true;
    const Typed nothing("");
    standardInput = nothing.Path();
    interruptWhen = AProgramWaitsForInput;
    const Outcome outcome = RunCli({"erase", "f"});
    EXPECT_EQ(outcome.status, 130);
    EXPECT_EQ(Contents(folder / "w/f"), "mine");
}

TEST_F(EraseProcess, ASignalStopsBetweenTwoBlocksAndTheFileIsThere)
{
    for (const auto &[signal, status] : {std::pair(SIGTERM, 143), {SIGINT, 130}}) {
        const fs::path path = PutHole("f", off_t{1} << 30);
        interruptWhen = [&path] {
            struct stat now = {};
            return stat(path.c_str(), &now) == 0 && now.st_blocks > 0;
        };
        interruptWith = signal;
        const Outcome outcome = RunCli({"erase", "--yes", "f"});
        EXPECT_EQ(outcome.status, status);
        EXPECT_EQ(outcome.err, "tressel-cli: " + path.string() + ": It is overwritten in part\n");
        EXPECT_EQ(outcome.out, "erased 0, failed 0\n");
        EXPECT_EQ(fs::file_size(path), std::uintmax_t{1} << 30);
        fs::remove(path);
    }
}

TEST_F(EraseProcess, AFullOrClosedOutputIsAFailure)
{
    Put("w/f", "secret");
    standardOutput = "/dev/full";
    Outcome outcome = RunCli({"erase", "--yes", "f"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_NE(outcome.err.find("tressel-cli: standard output: Disk full\n"), std::string::npos)
        << outcome.err;
    standardOutput.clear();
    Put("w/f", "secret");
    closed = {STDOUT_FILENO};
    outcome = RunCli({"erase", "--yes", "f"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.err, "tressel-cli: standard output: It is closed\n");
}

TEST_F(EraseProcess, ABarIsDrawnWhereThereIsSomebodyToSeeIt)
{
    Put("w/f", std::string(5000, 'a'));
    errIsTerminal = true;
    const Outcome outcome = RunCli({"erase", "--yes", "f"});
    // One pass, and its reading back.
    EXPECT_NE(outcome.err.find("of 10000"), std::string::npos) << outcome.err;
}

TEST_F(EraseProcess, OnAPlainDiscItIsSaidThatTheFileWasOverwrittenInPlace)
{
    std::string path = "/var/tmp/tressel-test-XXXXXX";
    const int file = mkstemp(path.data());
    const std::string bytes(100000, 'a');
    ASSERT_EQ(write(file, bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
    struct statfs medium = {};
    ASSERT_EQ(fstatfs(file, &medium), 0);
    close(file);
    const Outcome outcome = RunCli({"erase", "--yes", "--passes", "2", path});
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_FALSE(fs::exists(path));
    if (medium.f_type != EXT4_SUPER_MAGIC)
        GTEST_SKIP() << "The file system of /var/tmp isn't one of which it is known.";
    EXPECT_EQ(outcome.out, path + ": overwritten in place\nerased 1, failed 0\n");
}

} // namespace
