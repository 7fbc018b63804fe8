// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// The built program reads database files on the real disc, through the reader that it starts.

#include "RunCommand.h"
#include "support/EnvironmentVariable.h"
#include "support/JetWriter.h"
#include "support/SampleDatabase.h"

#include <algorithm>
#include <chrono>
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using namespace tressel;
using namespace std::chrono_literals;
namespace fs = std::filesystem;

const std::string months =
    "01 January\n02 February\n03 March\n04 April\n05 May\n06 June\n07 July\n08 August\n"
    "09 September\n10 October\n11 November\n12 December\n";

class DatabaseProcess : public testing::Test, protected CommandPlace {
protected:
    DatabaseProcess()
    {
        fs::create_directories(folder / "w/Live");
        workingFolder = folder / "w";
        Put("w/a.mdb", SampleDatabase().toStdString());
    }
    /// A database whose values take a while.
    fs::path PutLong() { return Put("w/long.mdb", LongDatabase(200000).toStdString()); }
    Outcome Months(const std::string &file)
    {
        return RunCli({"database", file, "--values", "Months", "Folder"});
    }
    /// Whether any process on the machine has this file open, as far as it can be seen.
    static bool IsOpenAnywhere(const fs::path &file)
    {
        std::error_code error;
        for (fs::directory_iterator process("/proc", error), end; process != end; process.increment(error)) {
            if (HasOpen(process->path(), file))
                return true;
        }
        return false;
    }
    /// The process may go while it is looked at.
    static bool HasOpen(const fs::path &process, const fs::path &file)
    {
        std::error_code error;
        for (fs::directory_iterator open(process / "fd", error), end; open != end; open.increment(error)) {
            std::error_code gone;
            if (fs::read_symlink(open->path(), gone) == file)
                return true;
        }
        return false;
    }
};

TEST_F(DatabaseProcess, RelativePathsStartInTheWorkingFolder)
{
    EXPECT_EQ(RunCli({"database", "a.mdb"}).out, "Lessons\nMonths\nProducts\n");
    workingFolder = folder / "w/Live";
    EXPECT_EQ(Months("../a.mdb").out, months);
    fs::create_symlink("../a.mdb", folder / "w/Live/link.mdb");
    EXPECT_EQ(Months("link.mdb").out, months);
    EXPECT_EQ(RunCli({"database", "../a.mdb", "--fields", "months"}).status, 0);
}

TEST_F(DatabaseProcess, NamedFieldsStandInOneLineARow)
{
    const std::string first = RunCli({"database", "a.mdb", "--values", "Months", "Folder", "Number"}).out;
    EXPECT_TRUE(first.starts_with("01 January\t1\n02 February\t2\n")) << first;
    EXPECT_EQ(std::ranges::count(first, '\n'), 12);
    const Outcome missing = RunCli({"database", "a.mdb", "--values", "Months", "Folder", "None", "Number"});
    EXPECT_EQ(missing.out, "");
    EXPECT_EQ(missing.err, "tressel-cli: a.mdb: The table 'Months' has no field 'None'.\n");
    EXPECT_EQ(missing.status, 1);
}

TEST_F(DatabaseProcess, MakesTheFoldersOfAField)
{
    const Outcome outcome =
        RunCli({"create", "--to", "made", "--database", "a.mdb", "--table", "Months", "--field", "Folder"});
    EXPECT_EQ(outcome.out, "made 12, already there 0, failed 0\n") << outcome.err;
    EXPECT_TRUE(fs::exists(folder / "w/made/12 December"));
    EXPECT_EQ(Below("w/made").size(), 12U);
}

TEST_F(DatabaseProcess, AFailureNamesTheFileOnce)
{
    Put("w/empty.mdb", "");
    ASSERT_EQ(mkfifo((folder / "w/pipe.mdb").c_str(), 0600), 0);
    for (const auto &[file, reason] : {std::pair("none.mdb", "The file could not be found."),
                                       {"none/none.mdb", "The path is not valid."},
                                       {"empty.mdb", "The file has no known database format."},
                                       {"/dev/zero", "Only a regular file can be opened."},
                                       {"pipe.mdb", "Only a regular file can be opened."},
                                       {"Live", "Only a regular file can be opened."}}) {
        const Outcome outcome = Months(file);
        EXPECT_EQ(outcome.status, 1);
        EXPECT_EQ(outcome.out, "");
        EXPECT_EQ(outcome.err, std::string("tressel-cli: ") + file + ": " + reason + "\n");
    }
    EXPECT_EQ(RunCli({"database", "a.mdb", "--fields", "None"}).err,
              "tressel-cli: a.mdb: Could not find the table 'None'.\n");
}

TEST_F(DatabaseProcess, ATerminalGetsNoBarAndNoRawNames)
{
    JetWriter writer;
    const QString name = QStringLiteral("\033[31mred");
    writer.AddTable({name, {{QStringLiteral("F")}}, {{{QStringLiteral("one\ntwo")}}}});
    Put("w/red.mdb", writer.Bytes().toStdString());
    outIsTerminal = errIsTerminal = true;
    Outcome outcome = RunCli({"database", "red.mdb"});
    EXPECT_EQ(outcome.out, "''$'\\033''[31mred'\r\n");
    EXPECT_EQ(outcome.err, "");
    outcome = RunCli({"database", "red.mdb", "--values", name.toStdString(), "F"});
    EXPECT_EQ(outcome.out, "'one'$'\\n''two'\r\n");
    EXPECT_EQ(outcome.err, "");
    outcome = RunCli({"database", "none.mdb"});
    EXPECT_EQ(outcome.err, "tressel-cli: none.mdb: The file could not be found.\r\n");
    // Into a pipe they go as they are.
    outIsTerminal = errIsTerminal = false;
    EXPECT_EQ(RunCli({"database", "red.mdb"}).out, "\033[31mred\n");
}

TEST_F(DatabaseProcess, AFullOutputIsAFailure)
{
    standardOutput = "/dev/full";
    for (const std::vector<std::string> &words :
         std::vector<std::vector<std::string>>{{"database", "a.mdb"},
                                               {"database", "a.mdb", "--fields", "Months"},
                                               {"database", "a.mdb", "--values", "Months", "Folder"}}) {
        const Outcome outcome = RunCli(words);
        EXPECT_EQ(outcome.status, 1);
        EXPECT_EQ(outcome.err, "tressel-cli: standard output: Disk full\n");
    }
}

TEST_F(DatabaseProcess, AClosedOutputIsAFailure)
{
    closed = {STDOUT_FILENO};
    const Outcome outcome = Months("a.mdb");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.err, "tressel-cli: standard output: It is closed\n");
    // All three closed: the numbers that come free are no way for the reader to mix its answer up.
    closed = {STDIN_FILENO, STDERR_FILENO};
    EXPECT_EQ(Months("a.mdb").out, months);
}

TEST_F(DatabaseProcess, AReaderOfTheOutputThatGoesEndsTheRun)
{
    const fs::path file = PutLong();
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    close(ends[0]);
    outputDescriptor = ends[1];
    const Outcome outcome = RunCli({"database", "long.mdb", "--values", "Rows", "Name"});
    close(ends[1]);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.err, "tressel-cli: standard output: Nobody reads it any more\n");
    EXPECT_FALSE(IsOpenAnywhere(file));
}

TEST_F(DatabaseProcess, ASignalEndsItAndItsReader)
{
    const fs::path file = PutLong();
    standardOutput = Put("w/out", "");
    bool wasOpen = false;
    interruptWhen = [&] {
        if (fs::file_size(standardOutput) == 0)
            return false;
        wasOpen = IsOpenAnywhere(file);
        return true;
    };
    for (const auto &[signal, status] :
         {std::pair(SIGTERM, 143), {SIGINT, 130}, {SIGHUP, 129}, {SIGKILL, -SIGKILL}}) {
        Put("w/out", "");
        interruptWith = signal;
        EXPECT_EQ(RunCli({"database", "long.mdb", "--values", "Rows", "Name"}).status, status);
        EXPECT_TRUE(wasOpen);
        const std::string written = Contents(standardOutput);
        EXPECT_LT(std::ranges::count(written, '\n'), 200000);
        // Whoever is killed can't end the reader: it goes by itself.
        const auto deadline = std::chrono::steady_clock::now() + 20s;
        while (IsOpenAnywhere(file) && std::chrono::steady_clock::now() < deadline)
            sched_yield();
        EXPECT_FALSE(IsOpenAnywhere(file));
    }
}

TEST_F(DatabaseProcess, EachTypeHasItsTextInTheUsersLocale)
{
    struct Typed {
        const char *name;
        std::int16_t type;
        DatabaseValue value;
        std::string inC;
        std::string inGerman;
    };
    const QByteArray guid = QByteArray::fromHex("33221100554477668899aabbccddeeff");
    const std::string written = "{00112233-4455-6677-8899-AABBCCDDEEFF}";
    const std::vector<Typed> all{
        {"Yes", fieldTypes::YesNo, true, "True", "True"},
        {"Byte", fieldTypes::Byte, std::int64_t{255}, "255", "255"},
        {"Integer", fieldTypes::Integer, std::int64_t{-32768}, "-32768", "-32768"},
        {"Long", fieldTypes::Long, std::int64_t{2147483647}, "2147483647", "2147483647"},
        {"Money", fieldTypes::Money, MoneyValue{-12345}, "-1.2345", "-1,2345"},
        {"Single", fieldTypes::Single, 1.5F, "1.5", "1,5"},
        {"Double", fieldTypes::Double, 1.5e20, "1.5E+20", "1,5E+20"},
        {"Date", fieldTypes::Date, DateValue{38077}, "31 Mar 2004", "31.03.2004"},
        {"Moment", fieldTypes::Date, DateValue{38077.5}, "31 Mar 2004 12:00:00", "31.03.2004 12:00:00"},
        {"Time", fieldTypes::Date, DateValue{0.75}, "18:00:00", "18:00:00"},
        {"Text", fieldTypes::Text, QStringLiteral("1.5"), "1.5", "1.5"},
        {"Memo", fieldTypes::Memo, QStringLiteral("a memo"), "a memo", "a memo"},
        {"Guid", fieldTypes::Guid, GuidValue{guid}, written, written},
        {"Decimal", fieldTypes::Numeric, DecimalValue{true, 3, "1250"}, "-1.25", "-1,25"}};
    WrittenTable table{QStringLiteral("T"), {}, {{}}};
    for (const Typed &each : all) {
        table.columns.append({QString::fromLatin1(each.name), each.type, 50, 3});
        table.rows.first().values.append(each.value);
    }
    JetWriter writer;
    writer.AddTable(table);
    Put("w/types.mdb", writer.Bytes().toStdString());
    for (const bool isGerman : {false, true}) {
        const EnvironmentVariable locale("LC_ALL", isGerman ? "de_DE.UTF-8" : "C.UTF-8");
        for (const Typed &each : all) {
            EXPECT_EQ(RunCli({"database", "types.mdb", "--values", "T", each.name}).out,
                      (isGerman ? each.inGerman : each.inC) + "\n")
                << each.name;
        }
    }
}

TEST_F(DatabaseProcess, NothingIsWrittenIntoTheFileOrBesideIt)
{
    const std::string before = Contents(folder / "w/a.mdb");
    const auto entries = Below("w");
    Months("a.mdb");
    RunCli({"database", "a.mdb"});
    EXPECT_EQ(Contents(folder / "w/a.mdb"), before);
    EXPECT_EQ(Below("w"), entries);
}

} // namespace
