// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "RunCommand.h"

#include <fstream>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace {

using namespace tressel;
namespace fs = std::filesystem;

class CreateCommand : public testing::Test, protected CommandPlace {
protected:
    std::set<std::string> Made() const { return Below("out"); }
    std::string To() const { return (folder / "out").string(); }
};

TEST_F(CreateCommand, MakesTheNamedFolders)
{
    const Outcome outcome = RunCli({"create", "--to", To(), "one", "two: 2", "a\\b", "\xC3\xA9t\xC3\xA9"});
    EXPECT_EQ(outcome.out, "made 5, already there 0, failed 0\n");
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(Made(), (std::set<std::string>{"one", "two_ 2", "a", "a/b", "\xC3\xA9t\xC3\xA9"}));
}

TEST_F(CreateCommand, SecondRunSaysWhatWasThere)
{
    RunCli({"create", "--to", To(), "a", "b"});
    const Outcome outcome = RunCli({"create", "--to", To(), "a", "b"});
    EXPECT_EQ(outcome.out, "made 1, already there 2, failed 0\n");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(Made(), (std::set<std::string>{"a", "b", "b (1)"}));
}

TEST_F(CreateCommand, ListFileIsReadByTheWindowsRules)
{
    const fs::path list = Put("names.txt", "; comment\r\n\r\nreport.txt\r\nSales\\Q1\r\n");
    const Outcome outcome = RunCli({"create", "--to", To(), "--list", list});
    EXPECT_EQ(outcome.out, "made 3, already there 0, failed 0\n");
    EXPECT_EQ(Made(), (std::set<std::string>{"report.txt", "Sales", "Sales/Q1"}));
}

TEST_F(CreateCommand, NamesOfAFolderAreItsFiles)
{
    fs::create_directories(folder / "music/sub");
    Put("music/a.mp3", "");
    Put("music/b\xFF.mp3", "");
    const Outcome outcome = RunCli({"create", "--to", To(), "--remove-ext", "--names-of", folder / "music"});
    EXPECT_EQ(outcome.out, "made 2, already there 0, failed 0\n");
    EXPECT_EQ(Made(), (std::set<std::string>{"a", "b\xFF"}));
}

TEST_F(CreateCommand, NameOfAFileNeverLeadsOut)
{
    fs::create_directories(folder / "in");
    Put("in/x\\..\\..\\..\\escaped", "");
    const Outcome outcome = RunCli({"create", "--to", To(), "--names-of", folder / "in"});
    EXPECT_EQ(outcome.out, "made 1, already there 0, failed 0\n");
    EXPECT_EQ(Made(), (std::set<std::string>{"x_.._.._.._escaped"}));
}

TEST_F(CreateCommand, ListLineNeverLeadsOut)
{
    RunCli({"create", "--to", To(), "--list", Put("l.txt", "..\\..\\escaped\n")});
    EXPECT_EQ(Made(), (std::set<std::string>{"__", "__/__", "__/__/escaped"}));
    EXPECT_FALSE(fs::exists(folder / "escaped"));
}

TEST_F(CreateCommand, ShortEntryWithRemoveExtLeavesAllUnmade)
{
    const Outcome outcome = RunCli({"create", "--to", To(), "--remove-ext", "one.txt", "abc", "two.txt"});
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_FALSE(fs::exists(folder / "out"));
}

TEST_F(CreateCommand, NameTooLongLeavesAllUnmade)
{
    const Outcome outcome =
        RunCli({"create", "--to", To(), std::string(255, 'x'), std::string(256, 'y'), "z"});
    EXPECT_EQ(outcome.err,
              "tressel-cli: " + std::string(256, 'y')
                  + ": It is longer than 255 bytes, the most that a name can be\n"
                    "tressel-cli: nothing was made\n");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_FALSE(fs::exists(folder / "out"));
}

TEST_F(CreateCommand, FileInTheWayIsLeftAlone)
{
    fs::create_directories(folder / "out");
    Put("out/taken", "precious");
    const Outcome outcome = RunCli({"create", "--to", To(), "taken"});
    EXPECT_EQ(outcome.out, "made 0, already there 0, failed 1\n");
    EXPECT_EQ(Contents(folder / "out/taken"), "precious");
}

TEST_F(CreateCommand, MissingListFileIsAClearSentence)
{
    const Outcome outcome = RunCli({"create", "--to", To(), "--list", folder / "none.txt"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_NE(outcome.err.find("/none.txt: File not found\n"), std::string::npos) << outcome.err;
    EXPECT_FALSE(fs::exists(folder / "out"));
}

TEST_F(CreateCommand, FolderAsListFileIsAClearSentence)
{
    fs::create_directories(folder / "list");
    const Outcome outcome = RunCli({"create", "--to", To(), "--list", folder / "list"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_NE(outcome.err.find("/list: Path/File access error\n"), std::string::npos) << outcome.err;
}

TEST_F(CreateCommand, DestinationThatIsAFileIsAClearSentence)
{
    Put("out", "precious");
    const Outcome outcome = RunCli({"create", "--to", To(), "a"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_NE(outcome.err.find("/out: It is no folder\n"), std::string::npos) << outcome.err;
    EXPECT_EQ(Contents(folder / "out"), "precious");
}

TEST_F(CreateCommand, DestinationWithoutRightsIsTold)
{
    if (getuid() != 0)
        GTEST_SKIP() << "only root can give its rights up";
    fs::create_directories(folder / "closed");
    chmod((folder / "closed").c_str(), 0755);
    chmod(folder.c_str(), 0777);
    const Outcome outcome = RunCli({"create", "--to", folder / "closed", "a"}, 65534);
    EXPECT_EQ(outcome.out, "made 0, already there 0, failed 1\n");
    EXPECT_EQ(outcome.status, 1);
}

TEST_F(CreateCommand, ListThatCannotBeReadWholeMakesNothing)
{
    const Outcome outcome = RunCli(
        {"create", "--to", To(), "--remove-ext", "--list", Put("l.txt", "report.txt\nabc\nnotes.txt\n")});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.err,
              "tressel-cli: abc: It is too short for an extension to be taken off\n"
              "tressel-cli: nothing was made\n");
    EXPECT_FALSE(fs::exists(folder / "out"));
}

TEST_F(CreateCommand, FolderThatCannotBeListedIsAClearSentence)
{
    if (getuid() != 0)
        GTEST_SKIP() << "only root can give its rights up";
    chmod(folder.c_str(), 0777);
    fs::create_directories(folder / "closed");
    chmod((folder / "closed").c_str(), 0);
    const Outcome outcome = RunCli({"create", "--to", To(), "--names-of", folder / "closed"}, 65534);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_NE(outcome.err.find("/closed: Path/File access error\n"), std::string::npos) << outcome.err;
}

TEST_F(CreateCommand, QuietSaysNothing)
{
    const Outcome outcome = RunCli({"create", "--quiet", "--to", To(), "a"});
    EXPECT_EQ(outcome.out + outcome.err, "");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_TRUE(fs::exists(folder / "out/a"));
}

TEST_F(CreateCommand, BinaryListFileDoesNoHarm)
{
    std::string bytes;
    for (int byte = 0; byte < 4096; ++byte)
        bytes += static_cast<char>(byte * 7 % 256);
    const Outcome outcome = RunCli({"create", "--to", To(), "--list", Put("binary", bytes)});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.out, "");
    EXPECT_NE(outcome.err.find(": No name can hold a NUL character\n"), std::string::npos);
    for (const char byte : outcome.err)
        EXPECT_TRUE(static_cast<unsigned char>(byte) >= ' ' || byte == '\n') << int(byte);
    EXPECT_FALSE(fs::exists(folder / "out"));
}

TEST_F(CreateCommand, LongestListIsMade)
{
    std::string lines;
    for (int line = 0; line < 32767; ++line)
        lines += std::to_string(line) + "\n";
    const Outcome outcome = RunCli({"create", "--to", To(), "--list", Put("long.txt", lines)});
    EXPECT_EQ(outcome.out, "made 32767, already there 0, failed 0\n");
}

TEST_F(CreateCommand, WrongUsageIsStatusTwo)
{
    EXPECT_EQ(RunCli({"create"}).status, 2);
    EXPECT_EQ(RunCli({}).status, 2);
    EXPECT_NE(RunCli({"create", "--bogus"}).err, "");
}

TEST_F(CreateCommand, HelpAndVersionAreOnStandardOutput)
{
    EXPECT_NE(RunCli({"--help"}).out.find("  create"), std::string::npos);
    EXPECT_NE(RunCli({"create", "--help"}).out.find("--remove-ext"), std::string::npos);
    EXPECT_EQ(RunCli({"--version"}).out, "tressel-cli 5.0.1450\n");
}

TEST_F(CreateCommand, InterruptionKeepsWhatWasMadeAndSaysSo)
{
    std::string lines;
    for (int line = 0; line < 30000; ++line)
        lines += std::to_string(line) + "\n";
    const fs::path list = Put("long.txt", lines);
    fs::create_directories(folder / "out");
    interruptAfter = folder / "out/100";
    const Outcome outcome = RunCli({"create", "--to", To(), "--list", list});
    EXPECT_EQ(outcome.status, 130);
    const auto made = static_cast<std::size_t>(std::stoi(outcome.out.substr(5)));
    EXPECT_EQ(outcome.out, "made " + std::to_string(made) + ", already there 0, failed 0\n");
    EXPECT_EQ(Made().size(), made);
    EXPECT_LT(made, 30000U);
}

TEST_F(CreateCommand, SettingsOfTheWindowStayUntouched)
{
    RunCli({"create", "--to", To(), "a"});
    EXPECT_FALSE(fs::exists(folder / "home/tressel"));
}

} // namespace
