// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "RunCommand.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using namespace tressel;
namespace fs = std::filesystem;

using Paths = std::set<std::string>;

class SeriesCommand : public testing::Test, protected CommandPlace {
protected:
    SeriesCommand() { fs::create_directories(folder / "w"); }

    Outcome Series(const std::string &act, const std::string &from, const std::string &to,
                   const std::vector<std::string> &more = {})
    {
        std::vector<std::string> arguments{"series", act,      "--in", folder / "w", "--base",
                                           "Disk",   "--from", from,   "--to",       to};
        arguments.insert(arguments.end(), more.begin(), more.end());
        return RunCli(arguments);
    }
    Paths Made() const { return Below("w"); }
};

TEST_F(SeriesCommand, FoldersStandSideBySideWithTheDigitsOfTheLast)
{
    const Outcome outcome = Series("make", "8", "10");
    EXPECT_EQ(outcome.out, "made 3, already there 0, failed 0\n");
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(Made(), (Paths{"Disk08", "Disk09", "Disk10"}));
}

TEST_F(SeriesCommand, SubFolderStandsInEach)
{
    EXPECT_EQ(Series("make", "1", "2", {"--sub", "In"}).out, "made 4, already there 0, failed 0\n");
    EXPECT_EQ(Made(), (Paths{"Disk1", "Disk1/In", "Disk2", "Disk2/In"}));
}

TEST_F(SeriesCommand, NumberedSubFoldersStandInOne)
{
    EXPECT_EQ(Series("make", "1", "02", {"--sub", "In", "--number-sub"}).out,
              "made 3, already there 0, failed 0\n");
    EXPECT_EQ(Made(), (Paths{"Disk", "Disk/In01", "Disk/In02"}));
}

TEST_F(SeriesCommand, DigitsAreAsWanted)
{
    Series("make", "7", "7", {"--digits", "1"});
    Series("make", "7", "7", {"--digits", "2"});
    Series("make", "7", "7", {"--digits", "3"});
    Series("make", "7", "7", {"--digits", "4"});
    Series("make", "12000", "12000", {"--digits", "2"});
    EXPECT_EQ(Made(), (Paths{"Disk7", "Disk07", "Disk007", "Disk0007", "Disk12000"}));
}

TEST_F(SeriesCommand, BackslashIsALevelAndOtherBytesSurvive)
{
    const Outcome outcome = RunCli({"series", "make", "--in", folder / "w", "--base", "a\\b\xFF", "--from",
                                    "0", "--to", "0", "--digits", "1"});
    EXPECT_EQ(outcome.out, "made 2, already there 0, failed 0\n");
    EXPECT_EQ(Made(), (Paths{"a", "a/b\xFF"}));
}

TEST_F(SeriesCommand, SecondRunSaysWhatWasThere)
{
    Series("make", "1", "3");
    const Outcome outcome = Series("make", "1", "4");
    EXPECT_EQ(outcome.out, "made 1, already there 3, failed 0\n");
    EXPECT_EQ(outcome.status, 0);
}

TEST_F(SeriesCommand, FileInTheWayIsLeftAlone)
{
    Put("w/Disk2", "precious");
    const Outcome outcome = Series("make", "1", "3");
    EXPECT_EQ(outcome.out, "made 2, already there 0, failed 1\n");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(Contents(folder / "w/Disk2"), "precious");
    EXPECT_EQ(Series("delete", "1", "3").out, "removed 2, kept 0, not there 0, failed 1\n");
    EXPECT_EQ(Contents(folder / "w/Disk2"), "precious");
}

TEST_F(SeriesCommand, NameTooLongMakesNothing)
{
    const Outcome outcome = Series("make", "1", "2", {"--sub", std::string(256, 'x')});
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_TRUE(Made().empty());
}

TEST_F(SeriesCommand, DeletingTakesTheEmptyOnesAndKeepsTheRest)
{
    Series("make", "1", "3");
    Put("w/Disk2/file", "precious");
    const Outcome outcome = Series("delete", "1", "4");
    EXPECT_EQ(outcome.out, "removed 2, kept 1, not there 1, failed 0\n");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(Made(), (Paths{"Disk2", "Disk2/file"}));
}

TEST_F(SeriesCommand, DeletingLeavesTheMainFoldersForTheNextTime)
{
    Put("w/stays", "");
    Series("make", "1", "2", {"--sub", "In"});
    EXPECT_EQ(Series("delete", "1", "2", {"--sub", "In"}).out, "removed 2, kept 0, not there 0, failed 0\n");
    EXPECT_EQ(Made(), (Paths{"stays", "Disk1", "Disk2"}));
    EXPECT_EQ(Series("delete", "1", "2", {"--sub", "In"}).out, "removed 2, kept 0, not there 2, failed 0\n");
    EXPECT_EQ(Made(), (Paths{"stays"}));
}

TEST_F(SeriesCommand, DeletingTakesTheEmptyParentsToo)
{
    fs::create_directories(folder / "w/a/b");
    const Outcome outcome =
        RunCli({"series", "delete", "--in", folder / "w/a/b", "--base", "Disk", "--from", "1", "--to", "2"});
    EXPECT_EQ(outcome.out, "removed 2, kept 0, not there 2, failed 0\n");
    EXPECT_TRUE(fs::exists(folder / "w"));
    EXPECT_FALSE(fs::exists(folder / "w/a"));
}

TEST_F(SeriesCommand, DeletingNumberedSubFoldersNeedsFixedDigits)
{
    Put("w/stays", "");
    Series("make", "1", "2", {"--sub", "In", "--number-sub"});
    EXPECT_EQ(Series("delete", "1", "2", {"--sub", "In", "--number-sub"}).out,
              "removed 0, kept 0, not there 2, failed 0\n");
    EXPECT_EQ(Series("delete", "1", "2", {"--sub", "In", "--number-sub", "--digits", "1"}).out,
              "removed 2, kept 0, not there 0, failed 0\n");
    EXPECT_EQ(Made(), (Paths{"stays", "Disk"}));
}

TEST_F(SeriesCommand, LinkToAFolderIsNotRemoved)
{
    fs::create_directories(folder / "elsewhere");
    fs::create_directory_symlink(folder / "elsewhere", folder / "w/Disk1");
    EXPECT_EQ(Series("delete", "1", "1").out, "removed 0, kept 0, not there 0, failed 1\n");
    EXPECT_TRUE(fs::is_symlink(folder / "w/Disk1"));
    EXPECT_TRUE(fs::exists(folder / "elsewhere"));
}

TEST_F(SeriesCommand, MissingFolderIsAClearSentence)
{
    for (const char *act : {"make", "delete"}) {
        const Outcome outcome =
            RunCli({"series", act, "--in", folder / "none", "--base", "D", "--from", "1", "--to", "2"});
        EXPECT_EQ(outcome.status, 1);
        EXPECT_EQ(outcome.out, "");
        EXPECT_NE(outcome.err.find("/none: It is no folder for a series to stand in\n"), std::string::npos)
            << outcome.err;
    }
    EXPECT_FALSE(fs::exists(folder / "none"));
}

TEST_F(SeriesCommand, PlaceWithoutRightsIsTold)
{
    if (getuid() != 0)
        GTEST_SKIP() << "only root can give its rights up";
    chmod(folder.c_str(), 0755);
    Series("make", "1", "1");
    const std::vector<std::string> numbers{"--in",   folder / "w", "--base", "Disk",
                                           "--from", "1",          "--to",   "2"};
    std::vector<std::string> make{"series", "make"};
    make.insert(make.end(), numbers.begin(), numbers.end());
    const Outcome outcome = RunCli(make, 65534);
    EXPECT_EQ(outcome.out, "made 0, already there 1, failed 1\n");
    EXPECT_EQ(outcome.status, 1);
    make[1] = "delete";
    EXPECT_EQ(RunCli(make, 65534).out, "removed 0, kept 0, not there 1, failed 1\n");
    EXPECT_EQ(Made(), (Paths{"Disk1"}));
}

TEST_F(SeriesCommand, QuietSaysNothing)
{
    Outcome outcome = Series("make", "1", "2", {"--quiet"});
    EXPECT_EQ(outcome.out + outcome.err, "");
    EXPECT_EQ(Made().size(), 2U);
    outcome = Series("delete", "1", "2", {"--quiet"});
    EXPECT_EQ(outcome.out + outcome.err, "");
    EXPECT_EQ(outcome.status, 0);
}

TEST_F(SeriesCommand, WrongUsageIsStatusTwoAndMakesNothing)
{
    EXPECT_EQ(Series("make", "2", "1").status, 2);
    EXPECT_EQ(Series("make", "x", "1").status, 2);
    EXPECT_EQ(Series("burn", "1", "1").status, 2);
    EXPECT_NE(Series("make", "1", "12345").err.find("--digits auto goes up to four digits"),
              std::string::npos);
    EXPECT_TRUE(Made().empty());
}

TEST_F(SeriesCommand, HelpTellsWhatGoes)
{
    const Outcome outcome = RunCli({"series", "--help"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_NE(outcome.out.find("Only empty folders go"), std::string::npos);
    EXPECT_EQ(outcome.err, "");
}

TEST_F(SeriesCommand, InterruptionKeepsWhatWasMadeAndSaysSo)
{
    interruptAfter = folder / "w/Disk100";
    const Outcome outcome = Series("make", "1", "1000000", {"--digits", "1"});
    EXPECT_EQ(outcome.status, 130);
    EXPECT_EQ(outcome.out, "made " + std::to_string(Made().size()) + ", already there 0, failed 0\n");
    EXPECT_GE(Made().size(), 100U);
}

} // namespace
