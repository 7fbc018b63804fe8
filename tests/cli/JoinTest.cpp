// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "Command.h"
#include "CommandStage.h"

#include <QCryptographicHash>

#include <csignal>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

/// The parts of a file "a.bin" in the folder that commands are started in.
class Join : public CommandStage {
protected:
    Join() { Put({"one-", "two-", "end"}); }

    void Put(const QList<QByteArray> &parts)
    {
        for (qsizetype index = 0; index < parts.size(); ++index)
            memory.files.PutFile(PathOf(index + 1), parts.at(index));
    }
    Ended Of(const QStringList &words = {}) { return Run(QStringList{u"join"_s, u"a.bin"_s} + words); }
    static QString PathOf(qsizetype part) { return target + u'.' + QString::number(part); }
    QByteArray Whole() { return memory.files.Bytes(target); }
    static QByteArray Line(const QByteArray &bytes, const QByteArray &name)
    {
        return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex() + "  " + name + '\n';
    }
    void PutSums(const QByteArray &lines) { memory.files.PutFile(target + u".sha256"_s, lines); }
    bool IsThere(const QString &path) { return memory.files.Exists(path); }

    static inline const QString target = u"C:\\Work\\a.bin"_s;
    const QStringList parts{u"a.bin.1"_s, u"a.bin.2"_s, u"a.bin.3"_s};
};

TEST_F(Join, PutsThePartsTogether)
{
    const Ended ended = Of();
    EXPECT_EQ(ended.status, AllDone);
    EXPECT_EQ(ended.out, "joined 3 parts\n");
    EXPECT_EQ(ended.err, "");
    EXPECT_EQ(Whole(), "one-two-end");
    EXPECT_EQ(Below(u"C:\\Work"_s), QStringList{u"a.bin"_s} + parts);
}

TEST_F(Join, WhatSplitMadeComesTogetherAgain)
{
    const QByteArray contents(5000, 'x');
    memory.files.PutFile(u"C:\\Work\\b"_s, contents);
    Run({u"split"_s, u"b"_s, u"--count"_s, u"7"_s, u"--checksums"_s});
    memory.files.RemoveFile(u"C:\\Work\\b"_s);
    EXPECT_EQ(Run({u"join"_s, u"b"_s}).out, "joined 7 parts\n");
    EXPECT_EQ(memory.files.Bytes(u"C:\\Work\\b"_s), contents);
}

TEST_F(Join, PartsGoWhenTheWholeIsThere)
{
    memory.files.PutFile(target + u".bat"_s);
    const Ended ended = Of({u"--delete-parts"_s});
    EXPECT_EQ(ended.out, "joined 3 parts, deleted 4 files\n");
    EXPECT_EQ(Below(u"C:\\Work"_s), QStringList{u"a.bin"_s});
    const QStringList lines = memory.journal.Lines();
    const qsizetype placed = lines.indexOf(u"CommitFile "_s + target + u" 11"_s);
    ASSERT_GE(placed, 0);
    EXPECT_LT(placed, lines.indexOf(u"RemoveFile "_s + PathOf(1)));
}

TEST_F(Join, WhatIsThereIsLeftAloneWithoutForce)
{
    memory.files.PutFile(target, "old");
    const Ended ended = Of({u"--delete-parts"_s});
    EXPECT_EQ(ended.status, SomethingFailed);
    EXPECT_EQ(ended.err, "tressel-cli: C:\\Work\\a.bin: It is there already; --force replaces it\n");
    EXPECT_EQ(Whole(), "old");
    EXPECT_EQ(Changes(), 0);
    EXPECT_EQ(Of({u"--force"_s}).status, AllDone);
    EXPECT_EQ(Whole(), "one-two-end");
}

TEST_F(Join, EveryMissingNumberIsNamed)
{
    memory.files.RemoveFile(PathOf(2));
    for (const int part : {6, 10})
        memory.files.PutFile(PathOf(part), "x");
    const Ended ended = Of({u"--force"_s});
    EXPECT_EQ(ended.status, SomethingFailed);
    EXPECT_EQ(ended.err,
              "tressel-cli: C:\\Work\\a.bin: Its parts aren't all there; missing: 2, 4 to 5, 7 to 9\n");
    EXPECT_FALSE(IsThere(target));
}

TEST_F(Join, TheChecksumsKnowOfALastPartThatIsMissing)
{
    PutSums(Line("x", "a.bin.5"));
    EXPECT_EQ(Of().err, "tressel-cli: C:\\Work\\a.bin: Its parts aren't all there; missing: 4 to 5\n");
}

TEST_F(Join, WithoutPartsTheFirstIsNamed)
{
    const Ended ended = Run({u"join"_s, u"none"_s});
    EXPECT_EQ(ended.err, "tressel-cli: C:\\Work\\none.1: File not found\n");
    EXPECT_EQ(ended.status, SomethingFailed);
}

TEST_F(Join, APartOfAnotherSizeIsNamed)
{
    Put({"one-", "tw", "end"});
    EXPECT_EQ(Of().err, "tressel-cli: C:\\Work\\a.bin.2: Its size of 2 bytes doesn't fit the other parts\n");
    EXPECT_FALSE(IsThere(target));
}

TEST_F(Join, APartThatIsNoFileIsNamed)
{
    memory.files.RemoveFile(PathOf(2));
    memory.files.PutFolder(PathOf(2));
    EXPECT_EQ(Of().err, "tressel-cli: C:\\Work\\a.bin.2: It is no regular file\n");
}

TEST_F(Join, ChecksumsThatHoldAreNoHindrance)
{
    PutSums(Line("one-two-end", "a.bin") + Line("one-", "a.bin.1") + Line("two-", "a.bin.2")
            + Line("end", "a.bin.3"));
    EXPECT_EQ(Of().status, AllDone);
    EXPECT_EQ(Whole(), "one-two-end");
}

TEST_F(Join, AChecksumThatDoesNotHoldIsNamedAndTheOldFileStays)
{
    memory.files.PutFile(target, "old");
    PutSums(Line("one-two-end", "a.bin") + Line("one-", "a.bin.1") + Line("tw0-", "a.bin.2"));
    const Ended ended = Of({u"--force"_s, u"--delete-parts"_s});
    EXPECT_EQ(ended.status, SomethingFailed);
    EXPECT_EQ(ended.err, "tressel-cli: C:\\Work\\a.bin.2: Its checksum doesn't hold\n");
    EXPECT_EQ(ended.out, "joined 0 parts, deleted 0 files\n");
    EXPECT_EQ(Whole(), "old");
    EXPECT_EQ(Below(u"C:\\Work"_s), QStringList{u"a.bin"_s} + parts + QStringList{u"a.bin.sha256"_s});
}

TEST_F(Join, AWholeOfAnotherChecksumIsRefused)
{
    PutSums(Line("another", "a.bin"));
    EXPECT_EQ(Of().err, "tressel-cli: C:\\Work\\a.bin: The parts on end don't have its checksum\n");
    EXPECT_FALSE(IsThere(target));
}

TEST_F(Join, AFileOfNoChecksumsIsRefused)
{
    PutSums("hello\n");
    EXPECT_EQ(Of().err, "tressel-cli: C:\\Work\\a.bin.sha256: It holds no checksums\n");
}

TEST_F(Join, TooLittleRoomIsRefusedBeforeTheFirstByte)
{
    memory.files.AddDrive(u'C', {}, 10);
    EXPECT_EQ(Of().err, "tressel-cli: C:\\Work: There is room for 10 bytes, and the file takes 11\n");
    EXPECT_EQ(Changes(), 0);
}

TEST_F(Join, AFullDiscLeavesTheOldFileAndTheParts)
{
    memory.files.PutFile(target, "old");
    memory.files.FailAt(Operation::WriteBytes, target, 2, FailureNumber::DiskFull);
    const Ended ended = Of({u"--force"_s, u"--delete-parts"_s});
    EXPECT_EQ(ended.status, SomethingFailed);
    EXPECT_EQ(ended.err, "tressel-cli: C:\\Work\\a.bin: Disk full\n");
    EXPECT_EQ(Whole(), "old");
    EXPECT_EQ(Below(u"C:\\Work"_s), QStringList{u"a.bin"_s} + parts);
}

TEST_F(Join, APartThatCannotBeReadLeavesNothing)
{
    memory.files.FailAt(Operation::ReadBytes, PathOf(2), 1, FailureNumber::DeviceIoError);
    EXPECT_EQ(Of().err, "tressel-cli: C:\\Work\\a.bin.2: Device I/O error\n");
    EXPECT_EQ(Below(u"C:\\Work"_s), parts);
}

TEST_F(Join, APartThatGrowsOrShrinksMeanwhileLeavesTheOldFile)
{
    memory.files.PutFile(target, "old");
    for (const QByteArray &now : {QByteArray("two-and-more"), QByteArray("t")}) {
        Put({"one-", "two-", "end"});
        memory.files.DoBefore(Operation::ReadBytes, PathOf(1), 1,
                              [&] { memory.files.PutFile(PathOf(2), now); });
        const Ended ended = Of({u"--force"_s, u"--delete-parts"_s});
        EXPECT_EQ(ended.status, SomethingFailed);
        EXPECT_EQ(ended.err, "tressel-cli: C:\\Work\\a.bin.2: It changed while it was read\n");
        EXPECT_EQ(Whole(), "old");
        EXPECT_EQ(Below(u"C:\\Work"_s), QStringList{u"a.bin"_s} + parts);
    }
}

TEST_F(Join, AStopBetweenTwoStepsLeavesNothing)
{
    stops.signal = SIGINT;
    stops.after = 3;
    const Ended ended = Of();
    EXPECT_EQ(ended.status, StoppedBySignal + SIGINT);
    EXPECT_EQ(ended.out, "joined 0 parts\n");
    EXPECT_EQ(Below(u"C:\\Work"_s), parts);
}

TEST_F(Join, APartThatCannotGoIsNamedAndTheOthersGo)
{
    memory.files.FailAt(Operation::RemoveFile, PathOf(2), 1, FailureNumber::PathFileAccessError);
    const Ended ended = Of({u"--delete-parts"_s});
    EXPECT_EQ(ended.status, SomethingFailed);
    EXPECT_EQ(ended.out, "joined 3 parts, deleted 2 files\n");
    EXPECT_EQ(ended.err, "tressel-cli: C:\\Work\\a.bin.2: Path/File access error\n");
}

TEST_F(Join, ChecksumsCountAlsoWhereTheyCannotBeLookedAt)
{
    PutSums(Line("something else", "a.bin"));
    memory.files.FailAt(Operation::Status, target + u".sha256"_s, 0, FailureNumber::DeviceIoError);
    EXPECT_EQ(Of().status, SomethingFailed);
    EXPECT_FALSE(IsThere(target));
    memory.files.FailNoMore();
}

TEST_F(Join, TheBatchFileGoesAlsoWhereItCannotBeLookedAt)
{
    memory.files.PutFile(target + u".bat"_s, "COPY /B");
    memory.files.FailAt(Operation::Status, target + u".bat"_s, 0, FailureNumber::DeviceIoError);
    EXPECT_EQ(Of({u"--delete-parts"_s}).out, "joined 3 parts, deleted 4 files\n");
    memory.files.FailNoMore();
    EXPECT_FALSE(IsThere(target + u".bat"_s));
}

TEST_F(Join, AFolderThatCannotBeListedIsNamed)
{
    memory.files.FailAt(Operation::List, u"C:\\Work"_s, 1, FailureNumber::DeviceIoError);
    const Ended ended = Of();
    EXPECT_EQ(ended.status, SomethingFailed);
    EXPECT_EQ(ended.err, "tressel-cli: C:\\Work: Device I/O error\n");
}

TEST_F(Join, APartThatIsALinkGoesAndItsTargetStays)
{
    memory.files.RemoveFile(PathOf(2));
    memory.files.PutFile(u"C:\\Far\\part"_s, "two-");
    memory.files.PutLink(PathOf(2), u"C:\\Far\\part"_s);
    EXPECT_EQ(Of({u"--delete-parts"_s}).status, AllDone);
    EXPECT_EQ(Whole(), "one-two-end");
    EXPECT_EQ(Below(u"C:\\Far"_s), QStringList{u"part"_s});
}

TEST_F(Join, DryRunSaysWhatWouldBeDone)
{
    const Ended ended = Of({u"--delete-parts"_s, u"--dry-run"_s});
    EXPECT_EQ(ended.out,
              "make C:\\Work\\a.bin\ndelete C:\\Work\\a.bin.1\ndelete C:\\Work\\a.bin.2\n"
              "delete C:\\Work\\a.bin.3\n");
    EXPECT_EQ(ended.err, "would have joined 3 parts\n");
    EXPECT_EQ(Changes(), 0);
}

TEST_F(Join, WrongUsage)
{
    EXPECT_EQ(Run({u"join"_s}).status, WrongUsage);
    EXPECT_EQ(Of({u"more"_s}).status, WrongUsage);
    EXPECT_EQ(Changes(), 0);
}

} // namespace
