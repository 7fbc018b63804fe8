// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "support/MemoryMachine.h"

#include "machine/Paths.h"
#include "support/Failures.h"
#include "support/Text.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

TEST(MemoryFileSystem, PathsTolerateCaseDoubledAndClosingSeparators)
{
    MemoryMachine machine;
    machine.files.PutFolder(u"C:\\Work\\Sub"_s);
    const QStringList spellings{u"c:\\work\\sub"_s, u"C:\\Work\\\\Sub"_s, u"C:\\Work\\Sub\\"_s,
                                u"Work\\Sub"_s,     u"\\Work\\Sub"_s,     u"C:\\Work\\.\\Sub\\..\\sub"_s};
    for (const QString &path : spellings)
        EXPECT_TRUE(FolderExists(machine.files, path)) << qPrintable(path);
    EXPECT_EQ(machine.files.Tree(u"C:\\"_s),
              (QStringList{u"Tressel\\"_s, u"Tressel\\Lang\\"_s, u"Tressel\\Lang\\Language.dat"_s,
                           u"Work\\"_s, u"Work\\Sub\\"_s}));
}

TEST(MemoryFileSystem, RefusesTheCharactersThatItsNamesCannotHave)
{
    MemoryMachine machine;
    for (const QChar character : u"/:*?\"<>|\t"_s)
        EXPECT_EQ(NumberOf(machine.files.TryMakeFolder(u"C:\\a"_s + character)),
                  FailureNumber::InvalidProcedureCall);
    EXPECT_EQ(machine.files.Tree(u"C:\\"_s),
              (QStringList{u"Tressel\\"_s, u"Tressel\\Lang\\"_s, u"Tressel\\Lang\\Language.dat"_s}));
}

TEST(MemoryFileSystem, ADriveWithoutItsMediumIsNotReady)
{
    MemoryMachine machine;
    machine.files.AddDrive(u'A', u"CDROM"_s);
    EXPECT_EQ(machine.files.VolumeLabel(u"a:\\"_s), u"CDROM"_s);
    EXPECT_EQ(machine.files.Volumes().size(), 2);
    EXPECT_EQ(machine.files.Volumes().first().root, u"C:\\"_s);
    machine.files.SetReady(u'A', false);
    EXPECT_EQ(machine.files.Volumes().size(), 1);
    EXPECT_EQ(NumberThrownBy([&] { machine.files.List(u"A:\\"_s); }), FailureNumber::DiskNotReady);
    EXPECT_EQ(NumberThrownBy([&] { machine.files.VolumeLabel(u"Z:\\"_s); }), FailureNumber::DiskNotReady);
    EXPECT_EQ(NumberThrownBy([&] { machine.files.List(u"Z:\\"_s); }), FailureNumber::PathNotFound);
}

TEST(MemoryFileSystem, AFullDriveTakesWhatHasRoom)
{
    MemoryMachine machine;
    machine.files.AddDrive(u'D', {}, 5);
    const auto file = machine.files.Open(u"D:\\a"_s, OpenFor::Writing);
    file->Write("abc");
    EXPECT_EQ(machine.files.FreeSpace(u"D:\\"_s), 2);
    EXPECT_EQ(NumberThrownBy([&] { file->Write("defg"); }), FailureNumber::DiskFull);
    EXPECT_EQ(machine.files.Bytes(u"D:\\a"_s), "abcde");
    machine.files.RemoveFile(u"D:\\a"_s);
    EXPECT_EQ(machine.files.FreeSpace(u"D:\\"_s), 5);
}

TEST(MemoryFileSystem, RenameMayChangeCaseAlone)
{
    MemoryMachine machine;
    machine.files.PutFile(u"C:\\readme.txt"_s, "x");
    machine.files.Rename(u"C:\\readme.txt"_s, u"C:\\README.txt"_s);
    EXPECT_EQ(machine.files.Tree(u"C:\\"_s),
              (QStringList{u"README.txt"_s, u"Tressel\\"_s, u"Tressel\\Lang\\"_s,
                           u"Tressel\\Lang\\Language.dat"_s}));
}

TEST(MemoryFileSystem, ReadOnlyFilesStay)
{
    MemoryMachine machine;
    machine.files.PutFile(u"C:\\a"_s, "x");
    machine.files.SetReadOnly(u"C:\\a"_s, true);
    EXPECT_EQ(NumberThrownBy([&] { machine.files.RemoveFile(u"C:\\a"_s); }),
              FailureNumber::PathFileAccessError);
    EXPECT_EQ(NumberThrownBy([&] { machine.files.Open(u"C:\\a"_s, OpenFor::Writing); }),
              FailureNumber::PathFileAccessError);
    EXPECT_EQ(machine.files.Bytes(u"C:\\a"_s), "x");
}

TEST(MemoryFileSystem, OrderedFailureComesAtItsTurnAmongThoseThatWouldSucceed)
{
    MemoryMachine machine;
    machine.files.PutFolder(u"C:\\W"_s);
    machine.files.FailAt(Operation::MakeFolder, u"C:\\W"_s, 2, FailureNumber::DiskFull);
    EXPECT_EQ(NumberOf(machine.files.TryMakeFolder(u"C:\\W"_s)), FailureNumber::PathFileAccessError);
    EXPECT_EQ(NumberOf(machine.files.TryMakeFolder(u"C:\\Wide"_s)), std::nullopt);
    EXPECT_EQ(NumberOf(machine.files.TryMakeFolder(u"C:\\W\\a"_s)), std::nullopt);
    EXPECT_EQ(NumberOf(machine.files.TryMakeFolder(u"c:\\w\\a\\b"_s)), FailureNumber::DiskFull);
    EXPECT_EQ(NumberOf(machine.files.TryMakeFolder(u"C:\\W\\a\\b"_s)), std::nullopt);
    EXPECT_EQ(machine.journal.Lines().at(3), u"MakeFolder c:\\w\\a\\b -> 61"_s);
}

TEST(MemoryFileSystem, OrderedFailureThatNeverComesFailsTheTest)
{
    EXPECT_NONFATAL_FAILURE(
        {
            MemoryMachine machine;
            machine.files.FailAt(Operation::Status, u"C:\\W"_s, 1, FailureNumber::DiskNotReady);
        },
        "never came");
}

TEST(MemoryDialogs, ExpectedOnesAreAnsweredInOrder)
{
    MemoryMachine machine;
    machine.dialogs.ExpectBox(u"Really?"_s, BoxAnswer::No);
    machine.dialogs.ExpectOpenFile(u"C:\\a\\b.txt"_s);
    machine.dialogs.ExpectChooseColour(std::nullopt);
    EXPECT_EQ(machine.dialogs.Show({u"Really?"_s, u"T"_s, BoxIcon::Question, BoxButtons::YesNo}),
              BoxAnswer::No);
    const auto answer = machine.dialogs.OpenFile({});
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->paths, QStringList{u"C:\\a\\b.txt"_s});
    EXPECT_EQ(answer->folder, u"C:\\a"_s);
    EXPECT_EQ(machine.dialogs.ChooseColour(0xFF), std::nullopt);
    EXPECT_TRUE(machine.dialogs.AllCame());
}

TEST(MemoryDialogs, AnUnexpectedOneFailsTheTestAndLeavesTheRun)
{
    const auto showUnexpected = [] {
        MemoryMachine machine;
        try {
            machine.dialogs.Show({u"Surprise"_s, {}});
        } catch (const UnexpectedDialog &) {
            return;
        }
        std::abort();
    };
    EXPECT_NONFATAL_FAILURE(showUnexpected(), "unexpected dialog: Box Surprise");
}

TEST(MemoryDialogs, OneThatNeverCameFailsTheTest)
{
    EXPECT_NONFATAL_FAILURE(
        {
            MemoryMachine machine;
            machine.dialogs.ExpectBox(u"Hello"_s);
        },
        "never shown: Box Hello");
}

TEST(MemoryDialogs, ABoxThatDiffersInItsTitleFailsTheTest)
{
    EXPECT_NONFATAL_FAILURE(
        {
            MemoryMachine machine;
            machine.dialogs.ExpectBox(MessageBox{u"Hello"_s, u"One"_s});
            machine.dialogs.Show({u"Hello"_s, u"Two"_s});
        },
        "another box");
}

TEST(MemoryEvents, ActsRunAtTheirCallAndMayComeBackIn)
{
    MemoryMachine machine;
    QStringList log;
    machine.events.LetEventsRun();
    machine.events.At(2, [&] {
        log += u"second"_s;
        machine.events.LetEventsRun();
    });
    machine.events.At(3, [&] { log += u"third"_s; });
    machine.events.When([&] { return machine.events.IsBusy(); }, [&] { log += u"busy"_s; });
    machine.events.LetEventsRun();
    EXPECT_EQ(log, QStringList());
    machine.events.LetEventsRun();
    EXPECT_EQ(log, (QStringList{u"second"_s, u"third"_s}));
    machine.events.SetBusyPointer(true);
    machine.events.LetEventsRun();
    EXPECT_EQ(log.last(), u"busy"_s);
}

TEST(MemoryHive, KeepsKindsAndComparesWithoutCase)
{
    MemoryMachine machine;
    using Root = SettingsHive::Root;
    EXPECT_TRUE(machine.hive.Write(Root::User, u"Software\\Tressel"_s, u"Width"_s, std::uint32_t{7}));
    EXPECT_TRUE(machine.hive.Write(Root::User, u"software\\TRESSEL\\"_s, u"WIDTH"_s, u""_s));
    EXPECT_EQ(machine.hive.Read(Root::User, u"Software\\Tressel"_s, u"width"_s), HiveValue(u""_s));
    EXPECT_EQ(machine.hive.Dump(), QStringList{u"Software\\Tressel\\Width="_s});
    EXPECT_FALSE(machine.hive.Write(Root::Machine, u"K"_s, u"n"_s, u"v"_s));
    EXPECT_EQ(machine.journal.Count(u"WriteSetting"_s), 3);
}

TEST(MemoryProgram, EndLeavesEveryHandler)
{
    MemoryMachine machine;
    EXPECT_THROW(machine.program.End(3), ProcessEnded);
    EXPECT_EQ(machine.journal.Lines(), QStringList{u"End 3"_s});
}

} // namespace
