// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "RunCommand.h"
#include "support/CaselessDisc.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using namespace tressel;
namespace fs = std::filesystem;

/// The built program renames on the real disc.
class RenameCommand : public testing::Test, protected CommandPlace {
protected:
    RenameCommand() { fs::create_directories(folder / "w"); }
    void PutAll(const std::vector<std::string> &names) const
    {
        for (const std::string &name : names)
            Put("w/" + name, name);
    }
    std::set<std::string> Names() const
    {
        std::set<std::string> names;
        for (const fs::directory_entry &entry : fs::directory_iterator(folder / "w"))
            names.insert(entry.path().filename());
        return names;
    }
    std::string Held(const std::string &name) const { return Contents(folder / "w" / name); }
};

TEST_F(RenameCommand, NamesOfAllKinds)
{
    PutAll({"caf\xE9 \xFFx", ".profile",
            "stra\xC3\x9F"
            "e",
            "k\xC4\xB1r", "e\xCC\x81", "two\nlines", "back\\slash", "a:b*c"});
    fs::create_directory(folder / "w/sub");
    fs::create_directory_symlink("sub", folder / "w/tosub");
    fs::create_symlink("nowhere", folder / "w/dangling");
    ASSERT_EQ(mkfifo((folder / "w/pipe").c_str(), 0600), 0);
    const Outcome outcome = RunCli({"rename", "case", "w", "--upper"});
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_EQ(outcome.out, "renamed 10, not renamed 0\n");
    EXPECT_EQ(Names(),
              (std::set<std::string>{"CAF\xE9 \xFFX", ".PROFILE", "STRASSE", "KIR", "E\xCC\x81", "TWO\nLINES",
                                     "BACK\\SLASH", "A:B*C", "DANGLING", "PIPE", "sub", "tosub"}));
    EXPECT_EQ(Held("STRASSE"),
              "stra\xC3\x9F"
              "e");
    EXPECT_EQ(RunCli({"rename", "case", "w", "--folders", "--upper"}).out, "renamed 2, not renamed 0\n");
    EXPECT_TRUE(fs::is_symlink(folder / "w/TOSUB"));
}

TEST_F(RenameCommand, TheLongestNameNeedsNoRoom)
{
    const std::string longest(255, 'x');
    PutAll({longest});
    EXPECT_EQ(RunCli({"rename", "case", "w", "--upper"}).out, "renamed 1, not renamed 0\n");
    EXPECT_EQ(Names(), std::set<std::string>{std::string(255, 'X')});
}

TEST_F(RenameCommand, TwinsInOtherCaseAreNeverOneOverTheOther)
{
    PutAll({"a", "A", "b"});
    const Outcome outcome = RunCli({"rename", "case", "w", "--upper"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.err,
              "tressel-cli: " + (folder / "w/a").string()
                  + ": Its name would be A, which is there already\n"
                    "tressel-cli: nothing was renamed\n");
    EXPECT_EQ(Names(), (std::set<std::string>{"a", "A", "b"}));
    EXPECT_EQ(Held("A"), "A");
}

TEST_F(RenameCommand, AnUndecodableNameIsReadableOnATerminalAndRawInAPipe)
{
    PutAll({"a\nb", "c\xFF"});
    EXPECT_EQ(RunCli({"rename", "case", "w", "--upper", "--dry-run", "--quiet"}).out,
              "a\nb -> A\nB\nc\xFF -> C\xFF\n");
    outIsTerminal = true;
    EXPECT_EQ(RunCli({"rename", "case", "w", "--upper", "--dry-run", "--quiet"}).out,
              "'a'$'\\n''b' -> 'A'$'\\n''B'\r\n'c'$'\\377' -> 'C'$'\\377'\r\n");
}

TEST_F(RenameCommand, AFolderWithoutRightsKeepsItsNames)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can be another user";
    PutAll({"a", "b"});
    fs::permissions(folder, fs::perms(0755));
    fs::permissions(folder / "w", fs::perms(0555));
    const Outcome outcome = RunCli({"rename", "case", "w", "--upper"}, 65534);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.out, "renamed 0, not renamed 2\n");
    EXPECT_EQ(outcome.err,
              "tressel-cli: " + (folder / "w/a").string()
                  + ": Path/File access error\n"
                    "tressel-cli: not renamed a -> A\ntressel-cli: not renamed b -> B\n");
    EXPECT_EQ(Names(), (std::set<std::string>{"a", "b"}));
}

TEST_F(RenameCommand, AFullOrClosedOutputIsAFailure)
{
    PutAll({"a"});
    standardOutput = "/dev/full";
    EXPECT_EQ(RunCli({"rename", "case", "w", "--upper"}).status, 1);
    standardOutput.clear();
    closed = {1};
    EXPECT_EQ(RunCli({"rename", "case", "w", "--lower"}).status, 1);
    EXPECT_EQ(Names().size(), 1U);
}

TEST_F(RenameCommand, ASignalLeavesEachNameOldOrNew)
{
    std::vector<std::string> names;
    for (int number = 0; number < 20000; ++number)
        names.push_back("name" + std::to_string(100000 + number));
    for (const int signal : {SIGINT, SIGTERM}) {
        SCOPED_TRACE(signal);
        fs::remove_all(folder / "w");
        fs::create_directory(folder / "w");
        for (const std::string &name : names)
            ASSERT_EQ(symlink("nowhere", (folder / "w" / name).c_str()), 0);
        interruptAfter = folder / "w/NAME100000";
        interruptWith = signal;
        const Outcome outcome = RunCli({"rename", "case", "w", "--upper"});
        const std::set<std::string> now = Names();
        EXPECT_EQ(now.size(), names.size());
        size_t renamed = 0;
        for (const std::string &name : names) {
            const bool isNew = now.contains("NAME" + name.substr(4));
            EXPECT_NE(isNew, now.contains(name));
            renamed += isNew ? 1 : 0;
        }
        EXPECT_EQ(outcome.out,
                  "renamed " + std::to_string(renamed) + ", not renamed "
                      + std::to_string(names.size() - renamed) + "\n");
        EXPECT_EQ(outcome.status, renamed == names.size() ? 0 : 128 + signal);
    }
}

/// The same where "a" and "A" are one name.
class RenameCommandWithoutCase : public RenameCommand, public testing::WithParamInterface<CaselessDisc> {
protected:
    /// Runs a check on such a disc, with files there that hold their first names.
    void Expect(const std::vector<std::string> &names, const std::function<bool()> &check)
    {
        const auto holds = HoldsWithoutCase(GetParam(), (folder / "w").c_str(), [&] {
            PutAll(names);
            return check();
        });
        if (!holds)
            GTEST_SKIP() << "This system can't mount such a disc.";
        EXPECT_TRUE(*holds);
    }
};

TEST_P(RenameCommandWithoutCase, AChangeOfCaseAloneReachesTheNames)
{
    Expect({"abc", "Long name 1.Mp3", "UPPER"}, [this] {
        const Outcome plan = RunCli({"rename", "case", "w", "--upper", "--dry-run"});
        const Outcome upper = RunCli({"rename", "case", "w", "--upper"});
        const bool isUpper = Names() == std::set<std::string>{"ABC", "LONG NAME 1.MP3", "UPPER"};
        const Outcome words = RunCli({"rename", "case", "w", "--every-word"});
        return plan.out == "abc -> ABC\nLong name 1.Mp3 -> LONG NAME 1.MP3\n"
            && upper.out == "renamed 2, not renamed 0\n" && isUpper
            && words.out == "renamed 3, not renamed 0\n"
            && Names() == std::set<std::string>{"Abc", "Long Name 1.mp3", "Upper"} && Held("Abc") == "abc"
            && Held("Long Name 1.mp3") == "Long name 1.Mp3";
    });
}

TEST_P(RenameCommandWithoutCase, ANameInOtherCaseIsTaken)
{
    Expect({"one.txt", "TWO.txt"}, [this] {
        const Outcome outcome = RunCli({"rename", "replace", "w", "--from", "one", "--to", "two"});
        return outcome.status == 1
            && outcome.err.find("Its name would be TWO.txt, which is there already") != std::string::npos
            && Names() == std::set<std::string>{"one.txt", "TWO.txt"} && Held("TWO.txt") == "TWO.txt";
    });
}

INSTANTIATE_TEST_SUITE_P(Disc, RenameCommandWithoutCase,
                         testing::Values(CaselessDisc::InMemory, CaselessDisc::Fat,
                                         CaselessDisc::FatInUserSpace));

} // namespace
