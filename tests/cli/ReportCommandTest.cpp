// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "RunCommand.h"

#include <array>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using namespace tressel;
namespace fs = std::filesystem;

/// A folder "w" with two files, a folder in it with one, and in that an empty one.
class ReportCommand : public testing::Test, protected CommandPlace {
protected:
    ReportCommand()
    {
        fs::create_directories(folder / "w/Live/old");
        Put("w/b.mp3", "12");
        Put("w/a.mp3", "1");
        Put("w/Live/c.mp3", "");
    }

    /// A text with the path of "w" in place of each "@".
    std::string WithPath(const std::string &text) const
    {
        std::string whole;
        for (const char character : text)
            whole += character == '@' ? (folder / "w").string() : std::string(1, character);
        return whole;
    }
    std::string Listed() const { return folder / "w"; }

    const std::set<std::string> before{"b.mp3", "a.mp3", "Live", "Live/c.mp3", "Live/old"};
};

TEST_F(ReportCommand, LinesGoToStandardOutputAndTheLastOneBesideThem)
{
    const Outcome outcome = RunCli({"report", Listed()});
    EXPECT_EQ(outcome.out,
              WithPath("************************\n Start Of File Listing: \n************************\n"
                       " \n@\n   a.mp3\n   b.mp3\n \n"
                       " \n@/Live\n   c.mp3\n \n"
                       " \n@/Live/old\n \n"));
    EXPECT_EQ(outcome.err, "listed 3 folders, 3 files, unreadable 0\n");
    EXPECT_EQ(outcome.status, 0);
}

TEST_F(ReportCommand, NothingIsLeftAnywhere)
{
    RunCli({"report", Listed()});
    RunCli({"report", "--names-only", Listed()});
    EXPECT_EQ(Below("w"), before);
    EXPECT_TRUE(fs::is_empty(folder / "home"));
}

TEST_F(ReportCommand, NamesOnlyHasNoHeadAndNoBlanksAhead)
{
    EXPECT_EQ(RunCli({"report", "--names-only", Listed()}).out,
              WithPath(" \n@\na.mp3\nb.mp3\n \n \n@/Live\nc.mp3\n \n \n@/Live/old\n \n"));
}

TEST_F(ReportCommand, FoldersOnlyIsALineForEach)
{
    const Outcome outcome = RunCli({"report", "--folders-only", Listed()});
    EXPECT_EQ(outcome.out, WithPath("@ \n@/Live \n@/Live/old \n"));
    EXPECT_EQ(outcome.err, "listed 3 folders, unreadable 0\n");
    EXPECT_EQ(RunCli({"report", "--folders-only", "--names-only", Listed()}).out, outcome.out);
}

TEST_F(ReportCommand, OutputIsAReportAsTheWindowWritesIt)
{
    const Outcome outcome = RunCli({"report", Listed(), "--names-only", "--output", folder / "report.txt"});
    EXPECT_EQ(outcome.out, "listed 3 folders, 3 files, unreadable 0\n");
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(
        Contents(folder / "report.txt"),
        WithPath(" \r\n@\r\na.mp3\r\nb.mp3\r\n \r\n \r\n@/Live\r\nc.mp3\r\n \r\n \r\n@/Live/old\r\n \r\n"));
    EXPECT_EQ(Below("w"), before);
}

TEST_F(ReportCommand, OutputThatIsThereIsNeverOverwritten)
{
    const fs::path taken = Put("taken", "precious");
    fs::create_symlink(folder / "nowhere", folder / "link");
    for (const fs::path &path : {taken, folder / "link", folder / "w"}) {
        const Outcome outcome = RunCli({"report", Listed(), "--output", path});
        EXPECT_EQ(outcome.status, 1);
        EXPECT_EQ(outcome.out, "");
        EXPECT_NE(outcome.err.find(path.string() + ": File already exists\n"), std::string::npos)
            << outcome.err;
    }
    EXPECT_EQ(Contents(taken), "precious");
    EXPECT_FALSE(fs::exists(folder / "nowhere"));
}

TEST_F(ReportCommand, OutputWithoutAFolderIsAClearSentence)
{
    const Outcome outcome = RunCli({"report", Listed(), "--output", folder / "none/report.txt"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_NE(outcome.err.find("none/report.txt: Path not found\n"), std::string::npos) << outcome.err;
}

TEST_F(ReportCommand, MissingFolderIsAClearSentence)
{
    for (const char *name : {"none", "w/a.mp3"}) {
        const Outcome outcome = RunCli({"report", folder / name, "--output", folder / "report.txt"});
        EXPECT_EQ(outcome.status, 1);
        EXPECT_NE(outcome.err.find(std::string(name) + ": It is no folder that could be listed\n"),
                  std::string::npos)
            << outcome.err;
        EXPECT_FALSE(fs::exists(folder / "report.txt"));
    }
}

TEST_F(ReportCommand, LinksAreListedAndNotWalkedInto)
{
    fs::create_directories(folder / "elsewhere/secret");
    fs::create_directory_symlink(folder / "elsewhere", folder / "w/Live/link");
    fs::create_directory_symlink(folder / "w", folder / "w/Live/old/round");
    const Outcome outcome = RunCli({"report", "--names-only", Listed()});
    EXPECT_EQ(outcome.out,
              WithPath(" \n@\na.mp3\nb.mp3\n \n \n@/Live\nc.mp3\nlink\n \n \n@/Live/old\nround\n \n"));
}

TEST_F(ReportCommand, NamesThatAreNoUtf8ComeOutByteForByte)
{
    fs::create_directories(folder / "w/Live/old/d\xC3");
    Put("w/Live/old/d\xC3/\xFF\xE9"
        "f",
        "");
    EXPECT_NE(RunCli({"report", "--names-only", Listed()})
                  .out.find("/old/d\xC3\n\xFF\xE9"
                            "f\n"),
              std::string::npos);
    EXPECT_EQ(RunCli({"report", "--names-only", folder / "w/Live/old/d\xC3"}).status, 0);
}

TEST_F(ReportCommand, FolderThatCannotBeReadIsTold)
{
    if (getuid() != 0)
        GTEST_SKIP() << "only root can give its rights up";
    chmod(folder.c_str(), 0755);
    chmod((folder / "w/Live").c_str(), 0);
    const Outcome outcome = RunCli({"report", "--names-only", Listed()}, 65534);
    chmod((folder / "w/Live").c_str(), 0755);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.out, WithPath(" \n@\na.mp3\nb.mp3\n \n \n@/Live\n \n"));
    EXPECT_EQ(outcome.err,
              WithPath("tressel-cli: @/Live: Path/File access error\n"
                       "listed 2 folders, 2 files, unreadable 1\n"));
}

TEST_F(ReportCommand, FullDiscIsTold)
{
    standardOutput = "/dev/full";
    const Outcome outcome = RunCli({"report", Listed()});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_NE(outcome.err.find("standard output: Disk full\n"), std::string::npos) << outcome.err;
}

TEST_F(ReportCommand, WhateverEndsItLeavesAWholeReportOrNone)
{
    constexpr int folders = 300;
    for (int number = 0; number < folders; ++number)
        fs::create_directories(folder / "w" / std::to_string(number));
    fs::create_directories(folder / "o");
    const std::string whole = RunCli({"report", "--null", Listed()}).out;
    int ended = 0;
    // Each a little later than the one before.
    for (int pause = 0; pause < 40; ++pause) {
        interruptWith = std::array{SIGTERM, SIGINT, SIGHUP, SIGKILL}.at(static_cast<size_t>(pause) % 4);
        interruptWhen = [left = pause]() mutable { return left-- <= 0; };
        const Outcome outcome = RunCli({"report", "--null", "--output", folder / "o/report", Listed()});
        const std::string report = Contents(folder / "o/report");
        ended += report.empty() ? 1 : 0;
        EXPECT_TRUE(report.empty() || report == whole) << "signal " << interruptWith;
        EXPECT_TRUE(outcome.status != 0 || report == whole) << "signal " << interruptWith;
        EXPECT_LE(Below("o").size(), report.empty() ? 0U : 1U);
        fs::remove(folder / "o/report");
    }
    EXPECT_GT(ended, 0);
}

TEST_F(ReportCommand, QuietSaysNothingButTheLines)
{
    const Outcome outcome = RunCli({"report", "--quiet", "--folders-only", Listed()});
    EXPECT_EQ(outcome.out, WithPath("@ \n@/Live \n@/Live/old \n"));
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(RunCli({"report", "--quiet", "--output", folder / "o", Listed()}).out, "");
}

TEST_F(ReportCommand, WindowsLastListingIsLeftAlone)
{
    // Where the window keeps it depends on where the program is; neither place may be touched.
    const fs::path beside = fs::path(TRESSEL_CLI).parent_path() / "~TR24D0.tmp";
    fs::create_directories(folder / "home/tressel");
    Put("home/tressel/~TR24D0.tmp", "precious");
    const bool wasBeside = fs::exists(beside);
    RunCli({"report", "--names-only", Listed()});
    EXPECT_EQ(Contents(folder / "home/tressel/~TR24D0.tmp"), "precious");
    EXPECT_EQ(fs::exists(beside), wasBeside);
}

TEST_F(ReportCommand, WrongUsageIsStatusTwo)
{
    EXPECT_EQ(RunCli({"report"}).status, 2);
    EXPECT_EQ(RunCli({"report", Listed(), Listed()}).status, 2);
    EXPECT_NE(RunCli({"report", "--bogus", Listed()}).err, "");
}

TEST_F(ReportCommand, HelpIsOnStandardOutput)
{
    EXPECT_NE(RunCli({"report", "--help"}).out.find("--folders-only"), std::string::npos);
}

} // namespace
