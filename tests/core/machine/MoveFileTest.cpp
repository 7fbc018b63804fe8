// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/MoveFile.h"

#include "support/Failures.h"
#include "support/MemoryMachine.h"
#include "support/Text.h"

#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

class MoveFileTest : public testing::Test {
protected:
    MoveFileTest()
    {
        machine.files.AddDrive(u'D');
        machine.files.PutFile(from, "contents");
    }
    std::optional<FailureNumber> MoveFails(const QString &to)
    {
        return NumberThrownBy([&] { MoveFile(machine.files, from, to); });
    }

    MemoryMachine machine;
    const QString from = u"C:\\from"_s;
};

TEST_F(MoveFileTest, RenamesOnOneVolume)
{
    EXPECT_EQ(MoveFails(u"C:\\to"_s), std::nullopt);
    EXPECT_EQ(machine.files.Bytes(u"C:\\to"_s), "contents");
    EXPECT_FALSE(machine.files.Exists(from));
    EXPECT_EQ(machine.journal.Count(u"OpenForReading"_s), 0);
}

TEST_F(MoveFileTest, CopiesToAnotherVolumeAndRemoves)
{
    EXPECT_EQ(MoveFails(u"D:\\to"_s), std::nullopt);
    EXPECT_EQ(machine.files.Bytes(u"D:\\to"_s), "contents");
    EXPECT_FALSE(machine.files.Exists(from));
}

TEST_F(MoveFileTest, ACopyKeepsTimeAndRightsAndIsDownBeforeTheFileGoes)
{
    const QDateTime then(QDate(1999, 12, 31), QTime(23, 59));
    machine.files.SetModified(from, then);
    machine.files.SetReadOnly(from, true);
    machine.files.SetReadOnly(from, false);
    machine.files.SetHidden(from);
    machine.journal.Clear();
    EXPECT_EQ(MoveFails(u"D:\\to"_s), std::nullopt);
    const auto status = machine.files.Status(u"D:\\to"_s, Links::Keep);
    EXPECT_EQ(status->modified, then);
    EXPECT_TRUE(status->hidden);
    const QStringList lines = machine.journal.Lines();
    EXPECT_GE(lines.indexOf(u"FlushFile D:\\to"_s), 0);
    EXPECT_LT(lines.indexOf(u"FlushFile D:\\to"_s), lines.indexOf(u"RemoveFile C:\\from"_s));
}

TEST_F(MoveFileTest, ALinkStaysALink)
{
    machine.files.PutLink(u"C:\\link"_s, from);
    MoveFile(machine.files, u"C:\\link"_s, u"D:\\link"_s);
    EXPECT_EQ(machine.files.Status(u"D:\\link"_s, Links::Keep)->kind, EntryKind::Link);
    EXPECT_EQ(machine.files.LinkTarget(u"D:\\link"_s), from);
    EXPECT_FALSE(machine.files.Exists(u"C:\\link"_s));
    EXPECT_TRUE(machine.files.Exists(from));
}

TEST_F(MoveFileTest, NeverOverwrites)
{
    for (const QString &to : {u"C:\\to"_s, u"D:\\to"_s}) {
        machine.files.PutFile(to, "mine");
        EXPECT_EQ(MoveFails(to), FailureNumber::FileAlreadyExists);
        EXPECT_EQ(machine.files.Bytes(to), "mine");
        EXPECT_EQ(machine.files.Bytes(from), "contents");
    }
}

TEST_F(MoveFileTest, AFailureOnTheWayLeavesTheFileWhereItWas)
{
    machine.files.FailAt(Operation::WriteBytes, u"D:\\to"_s, 1, FailureNumber::DiskFull);
    EXPECT_EQ(MoveFails(u"D:\\to"_s), FailureNumber::DiskFull);
    machine.files.FailAt(Operation::RemoveFile, from, 1, FailureNumber::PermissionDenied);
    EXPECT_EQ(MoveFails(u"D:\\to"_s), FailureNumber::PermissionDenied);
    EXPECT_FALSE(machine.files.Exists(u"D:\\to"_s));
    EXPECT_EQ(machine.files.Bytes(from), "contents");
}

} // namespace
