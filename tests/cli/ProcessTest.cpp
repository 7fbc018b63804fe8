// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "RunCommand.h"
#include "support/SampleDatabase.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace {

using namespace tressel;
namespace fs = std::filesystem;

/// The built program as a process: where it is started, what its descriptors are, and what signals it gets.
class Process : public testing::Test, protected CommandPlace {
protected:
    Process() { fs::create_directories(folder / "w/Live"); }

    std::string Numbers(int count) const
    {
        std::string lines;
        for (int line = 0; line < count; ++line)
            lines += std::to_string(line) + "\n";
        return lines;
    }
};

TEST_F(Process, RelativePathsStartInTheWorkingFolder)
{
    workingFolder = folder / "w/Live";
    EXPECT_EQ(RunCli({"create", "--to", "../made", "a"}).status, 0);
    EXPECT_TRUE(fs::exists(folder / "w/made/a"));
    EXPECT_EQ(RunCli({"report", "--folders-only", "../made"}).out,
              (folder / "w/made").string() + " \n" + (folder / "w/made/a").string() + " \n");
    Put("w/made/stays", "");
    EXPECT_EQ(
        RunCli({"series", "delete", "--in", "../made", "--base", "Disk", "--from", "1", "--to", "2"}).out,
        "removed 0, kept 0, not there 2, failed 0\n");
    EXPECT_TRUE(fs::exists(folder / "w/Live"));
}

TEST_F(Process, WorkingFolderBehindALinkIsTheRealOne)
{
    fs::create_directory_symlink(folder / "w/Live", folder / "link");
    RunCli({"create", "--to", "link/../made", "a"});
    EXPECT_TRUE(fs::exists(folder / "w/made/a"));
}

TEST_F(Process, ASeriesBesideTheWorkingFolderGoesAndTheFolderStays)
{
    fs::create_directories(folder / "w/a");
    fs::create_directories(folder / "w/b/Disk1");
    workingFolder = folder / "w/a";
    EXPECT_EQ(RunCli({"series", "delete", "--in", "../b", "--base", "Disk", "--from", "1", "--to", "2"}).out,
              "removed 2, kept 0, not there 1, failed 0\n");
    EXPECT_EQ(Below("w"), (std::set<std::string>{"Live", "a"}));
}

TEST_F(Process, EveryCommandGoesThroughALinkBeforeItGoesUp)
{
    workingFolder = folder / "w/Live";
    fs::create_directories(folder / "far/deep");
    fs::create_directory_symlink(folder / "far/deep", folder / "w/Live/link");
    // What a path that is only cut would lead to.
    fs::create_directories(folder / "w/Live/x/wrong");
    fs::create_directories(folder / "far/x/empty");
    for (const char *file : {"far/x/name", "far/x/whole.1", "w/Live/x/name", "w/Live/x/whole.1"})
        Put(file, "some bytes");
    const std::string far = (folder / "far/x").string();
    const std::vector<std::pair<std::vector<std::string>, std::string>> rows{
        {{"create", "a", "--to", "link/../x"}, "make " + far + "/a\n"},
        {{"report", "--folders-only", "link/../x"}, far + " \n" + far + "/empty \n"},
        {{"series", "make", "--in=link/../x", "--base=D", "--from=1", "--to=1"}, "make " + far + "/D1\n"},
        {{"series", "delete", "--in=link/../x", "--base=empty", "--from=0", "--to=0", "--digits=1"},
         "remove " + far + "/empty\n"},
        {{"rename", "case", "link/../x", "--upper", "--folders"}, "empty -> EMPTY\n"},
        {{"split", "link/../x/name", "--size", "10"}, "make " + far + "/name.1\n"},
        {{"join", "link/../x/whole"}, "make " + far + "/whole\n"},
        {{"erase", "link/../x/name"}, "erase " + far + "/name\n"},
        {{"empty", "remove", "link/../x"}, "remove " + far + "/empty\n"},
    };
    for (auto [words, action] : rows) {
        if (words.front() != "report")
            words.emplace_back("--dry-run");
        EXPECT_EQ(RunCli(words).out, action) << words.front();
    }
    // The message names the file as it was typed, so that what stands in the other folder tells which was
    // opened.
    std::filesystem::remove(folder / "w/Live/x/name");
    EXPECT_EQ(RunCli({"database", "link/../x/name"}).err,
              "tressel-cli: link/../x/name: The file has no known database format.\n");
}

TEST_F(Process, FullStandardOutputIsAFailureOfEachCommand)
{
    Put("shop.mdb", SampleDatabase().toStdString());
    Put("film", "two parts");
    standardOutput = "/dev/full";
    for (const std::vector<std::string> &words : std::vector<std::vector<std::string>>{
             {"--help"},
             {"completions", "bash"},
             {"report", "w"},
             {"create", "--to", "out", "a"},
             {"series", "make", "--in", "w", "--base", "D", "--from", "1", "--to", "2"},
             {"series", "delete", "--in", "w", "--base", "D", "--from", "1", "--to", "2"},
             {"rename", "case", "w", "--upper"},
             {"split", "film", "--count", "2"},
             {"join", "film", "--force"},
             {"erase", "--yes", "film"},
             {"empty", "list", "out"},
             {"empty", "remove", "out"},
             {"database", "shop.mdb"}}) {
        const Outcome outcome = RunCli(words);
        EXPECT_EQ(outcome.status, 1) << words.front();
        EXPECT_NE(outcome.err.find("tressel-cli: standard output: Disk full\n"), std::string::npos)
            << outcome.err;
    }
}

TEST_F(Process, ClosedStandardOutputIsAFailureWhereSomethingIsToldThere)
{
    closed = {STDOUT_FILENO};
    const Outcome outcome = RunCli({"create", "--to", "out", "a"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.err, "tressel-cli: standard output: It is closed\n");
    EXPECT_EQ(RunCli({"create", "--quiet", "--to", "out", "b"}).status, 0);
}

TEST_F(Process, BrokenPipeHasWords)
{
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    close(ends[0]);
    outputDescriptor = ends[1];
    const Outcome outcome = RunCli({"report", "w"});
    close(ends[1]);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_NE(outcome.err.find("tressel-cli: standard output: Nobody reads it any more\n"), std::string::npos)
        << outcome.err;
}

TEST_F(Process, MessagesNeverLandInAFileOfOurs)
{
    closed = {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO};
    EXPECT_EQ(RunCli({"report", "w", "--output", "r.txt"}).status, 1);
    EXPECT_EQ(Contents(folder / "r.txt").find("listed"), std::string::npos);
    EXPECT_NE(Contents(folder / "r.txt").find("w/Live"), std::string::npos);
}

TEST_F(Process, ClosedStandardInputIsNoList)
{
    closed = {STDIN_FILENO};
    const Outcome outcome = RunCli({"create", "--to", "out", "--list", "-"});
    EXPECT_EQ(outcome.err, "tressel-cli: -: It is closed\ntressel-cli: nothing was made\n");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_FALSE(fs::exists(folder / "out"));
}

TEST_F(Process, ListComesFromStandardInput)
{
    standardInput = Put("names", "a\nb\\c\n");
    EXPECT_EQ(RunCli({"create", "--to", "out", "--list", "-"}).out, "made 3, already there 0, failed 0\n");
    EXPECT_EQ(RunCli({"create", "--to", "more", "--list", "/dev/stdin"}).out,
              "made 3, already there 0, failed 0\n");
}

TEST_F(Process, PipeAsListIsWaitedFor)
{
    const fs::path pipePath = folder / "pipe";
    ASSERT_EQ(mkfifo(pipePath.c_str(), 0600), 0);
    std::thread writer([&] { Put("pipe", "a\nb\n"); });
    const Outcome outcome = RunCli({"create", "--to", "out", "--list", "pipe"});
    writer.join();
    EXPECT_EQ(outcome.out, "made 2, already there 0, failed 0\n");
    EXPECT_EQ(outcome.status, 0);
}

TEST_F(Process, EndlessListIsRefused)
{
    const Outcome outcome = RunCli({"create", "--to", "out", "--list", "/dev/zero"});
    EXPECT_EQ(outcome.err,
              "tressel-cli: /dev/zero: It is longer than 64 MiB, the most that a list can be\n"
              "tressel-cli: nothing was made\n");
    EXPECT_EQ(outcome.status, 1);
}

TEST_F(Process, BarStandsOnATerminalWhoseOutputGoesElsewhere)
{
    errIsTerminal = true;
    Outcome outcome = RunCli({"create", "--to", "out", "--list", Put("l", Numbers(50))});
    EXPECT_EQ(outcome.err.rfind("\r[", 0), 0U) << outcome.err;
    EXPECT_EQ(outcome.err.substr(outcome.err.size() - 4), "\r\033[K");
    outcome = RunCli({"create", "--quiet", "--to", "out2", "a"});
    EXPECT_EQ(outcome.err, "");
    outIsTerminal = true;
    outcome = RunCli({"create", "--to", "out3", "a"});
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(outcome.out, "made 1, already there 0, failed 0\r\n");
}

TEST_F(Process, ReportOnATerminalHasNoBarAndNoRawNames)
{
    Put("w/Live/\033[31mred\xE2\x80\xAE", "");
    Put("w/Live/\xFF", "");
    outIsTerminal = errIsTerminal = true;
    const Outcome outcome = RunCli({"report", "--names-only", "w/Live"});
    EXPECT_EQ(outcome.out,
              " \r\n" + (folder / "w/Live").string()
                  + "\r\n''$'\\033''[31mred'$'\\342\\200\\256'\r\n''$'\\377'\r\n \r\n");
    EXPECT_EQ(outcome.err, "listed 1 folders, 2 files, unreadable 0\r\n");
}

TEST_F(Process, NamesInMessagesAreNeverRaw)
{
    Put("w/x\033]0;title\a", "");
    const Outcome outcome = RunCli({"create", "--to", "w/x\033]0;title\a", "a"});
    EXPECT_EQ(outcome.err.find('\033'), std::string::npos);
    EXPECT_NE(outcome.err.find("'$'\\033'']0;title'$'\\a': It is no folder"), std::string::npos)
        << outcome.err;
}

TEST_F(Process, TerminatedRunKeepsWhatWasMadeAndSaysSo)
{
    const std::string list = Put("long.txt", Numbers(30000));
    int number = 0;
    for (const auto &[signal, status] : {std::pair(SIGTERM, 143), {SIGINT, 130}, {SIGHUP, 129}}) {
        const std::string to = "out" + std::to_string(++number);
        fs::create_directories(folder / to);
        interruptAfter = folder / to / "100";
        interruptWith = signal;
        const Outcome outcome = RunCli({"create", "--to", to, "--list", list});
        EXPECT_EQ(outcome.status, status);
        EXPECT_EQ(outcome.out, "made " + std::to_string(Below(to).size()) + ", already there 0, failed 0\n");
        EXPECT_LT(Below(to).size(), 30000U);
    }
}

TEST_F(Process, SignalThatWasIgnoredStaysIgnored)
{
    const std::string list = Put("long.txt", Numbers(3000));
    int number = 0;
    for (const int signal : {SIGINT, SIGHUP}) {
        const std::string to = "out" + std::to_string(++number);
        fs::create_directories(folder / to);
        ignored = {signal};
        interruptAfter = folder / to / "10";
        interruptWith = signal;
        const Outcome outcome = RunCli({"create", "--to", to, "--list", list});
        EXPECT_EQ(outcome.status, 0);
        EXPECT_EQ(outcome.out, "made 3000, already there 0, failed 0\n");
    }
}

TEST_F(Process, InterruptedWaitForAPipeEnds)
{
    const fs::path pipePath = folder / "pipe";
    ASSERT_EQ(mkfifo(pipePath.c_str(), 0600), 0);
    interruptAfter = pipePath;
    interruptWith = SIGTERM;
    const Outcome outcome = RunCli({"create", "--to", "out", "--list", "pipe"});
    // The signal may come before the program has taken it over.
    EXPECT_TRUE(outcome.status == 143 || outcome.status == -SIGTERM) << outcome.status;
    EXPECT_FALSE(fs::exists(folder / "out"));
}

TEST_F(Process, ReportThatFindsNoRoomLeavesNoFile)
{
    for (int file = 0; file < 2000; ++file)
        Put("w/a file of some length " + std::to_string(file), "");
    longestFile = 4096;
    const Outcome outcome = RunCli({"report", "w", "--output", "r.txt"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_NE(outcome.err.find("/r.txt: Disk full\n"), std::string::npos) << outcome.err;
    EXPECT_EQ(Below("").count("r.txt"), 0U);
    EXPECT_EQ(Below("").size(), 2000U + 5U);
}

TEST_F(Process, ReportThatIsEndedLeavesNothingInTheWayOfTheNextOne)
{
    for (int number = 0; number < 3000; ++number)
        fs::create_directory(folder / "w" / std::to_string(number));
    // A file on its way has no name, or one of its own where the file system knows only files with names.
    interruptWhen = [&] {
        const auto isBegun = [](const fs::directory_entry &entry) {
            std::error_code gone;
            const std::string name = fs::read_symlink(entry.path(), gone).filename().string();
            return name.starts_with('#') || name.starts_with("~tr");
        };
        std::error_code gone;
        const fs::directory_iterator open("/proc/" + std::to_string(running) + "/fd", gone);
        return std::any_of(open, fs::directory_iterator(), isBegun);
    };
    for (const int signal : {SIGTERM, SIGKILL}) {
        interruptWith = signal;
        Outcome ended;
        // The run may be over before the signal is sent.
        for (int attempt = 0; attempt < 50 && ended.status != 143 && ended.status != -SIGKILL; ++attempt) {
            fs::remove(folder / "r.txt");
            ended = RunCli({"report", "w", "--output", "r.txt"});
        }
        EXPECT_EQ(ended.status, signal == SIGTERM ? 143 : -SIGKILL) << ended.err;
        EXPECT_FALSE(fs::exists(folder / "r.txt"));
    }
    interruptWhen = {};
    EXPECT_EQ(RunCli({"report", "w", "--output", "r.txt"}).out,
              "listed 3002 folders, 0 files, unreadable 0\n");
    EXPECT_NE(Contents(folder / "r.txt").find("/w/2999\r\n"), std::string::npos);
}

TEST_F(Process, ReportGoesWhereItsOutputSaysAndListsNoOutput)
{
    workingFolder = folder / "w";
    const std::string live = (folder / "w/Live").string();
    EXPECT_EQ(RunCli({"report", "--names-only", "Live", "--output", "-"}).out, " \n" + live + "\n \n");
    EXPECT_EQ(Below("w"), std::set<std::string>{"Live"});
    EXPECT_EQ(RunCli({"report", "--names-only", "Live", "--output", "Live/r.txt"}).status, 0);
    EXPECT_EQ(Contents(folder / "w/Live/r.txt"), " \r\n" + live + "\r\n \r\n");
}

TEST_F(Process, NulsTellALineBreakInANameFromTwoNames)
{
    Put("w/Live/a\nb", "");
    Put("w/Live/c", "");
    const std::string live = (folder / "w/Live").string();
    EXPECT_EQ(RunCli({"report", "--names-only", "--null", "w/Live"}).out,
              std::string(" \0", 2) + live + '\0' + std::string("a\nb\0c\0 \0", 8));
}

TEST_F(Process, EntryOfFourCharactersWithoutThemIsTheDestinationAlone)
{
    EXPECT_EQ(RunCli({"create", "--to", "NEW", "--remove-ext", "abcd"}).out,
              "made 1, already there 0, failed 0\n");
    EXPECT_EQ(Below("NEW"), std::set<std::string>{});
}

TEST_F(Process, ListBeyondItsIndexSaysWhy)
{
    const Outcome outcome = RunCli({"create", "--to", "out", "--list", Put("l", Numbers(32768))});
    EXPECT_EQ(outcome.err,
              "tressel-cli: 32768 names are more than the 32767 that a list of folders takes\n"
              "tressel-cli: nothing was made\n");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_FALSE(fs::exists(folder / "out"));
}

TEST_F(Process, EachFailureIsNamedOnceAlsoWhereItIsQuiet)
{
    fs::create_directories(folder / "out");
    Put("out/one", "");
    Put("out/two", "");
    const std::string out = (folder / "out").string();
    const std::string told = "tressel-cli: " + out
        + "/one: Something that is no folder is in its place\n"
          "tressel-cli: "
        + out + "/two: Something that is no folder is in its place\n";
    const Outcome loud = RunCli({"create", "--to", "out", "one", "free", "two"});
    EXPECT_EQ(loud.err, told);
    EXPECT_EQ(loud.out, "made 1, already there 0, failed 2\n");
    const Outcome quiet = RunCli({"create", "--quiet", "--to", "out", "one", "two"});
    EXPECT_EQ(quiet.err, told);
    EXPECT_EQ(quiet.out, "");
    EXPECT_EQ(quiet.status, 1);
}

TEST_F(Process, BashCompletesCommandsOptionsAndValues)
{
    Put("completions", RunCli({"completions", "bash"}).out);
    const auto completed = [&](const std::string &words, int at) {
        const std::string script = "source " + (folder / "completions").string()
            + "; COMP_WORDS=(tressel-cli " + words + "); COMP_CWORD=" + std::to_string(at)
            + "; _tressel_cli; echo ${COMPREPLY[*]}";
        Put("script", script);
        const std::string command =
            "bash " + (folder / "script").string() + " > " + (folder / "reply").string();
        EXPECT_EQ(std::system(command.c_str()), 0);
        return Contents(folder / "reply");
    };
    EXPECT_EQ(completed("cr", 1), "create\n");
    EXPECT_EQ(completed("series m", 2), "make\n");
    EXPECT_EQ(completed("series make --nu", 3), "--number-sub --null\n");
    EXPECT_EQ(completed("series make --digits a", 4), "auto\n");
}

} // namespace
