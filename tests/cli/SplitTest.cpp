// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "Command.h"
#include "CommandStage.h"

#include <QCryptographicHash>

#include <csignal>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

/// A file "a.bin" of 2500 bytes in the folder that commands are started in.
class Split : public CommandStage {
protected:
    Split() { Put(2500); }

    void Put(qsizetype length)
    {
        contents.resize(length);
        for (qsizetype index = 0; index < length; ++index)
            contents[index] = static_cast<char>(index * 7 + index / 251);
        memory.files.PutFile(u"C:\\Work\\a.bin"_s, contents);
    }
    Ended Of(const QStringList &words) { return Run(QStringList{u"split"_s, u"a.bin"_s} + words); }
    QList<qsizetype> Lengths()
    {
        QList<qsizetype> lengths;
        joined.clear();
        for (int part = 1; memory.files.Exists(PathOf(part)); ++part) {
            lengths += memory.files.Bytes(PathOf(part)).size();
            joined += memory.files.Bytes(PathOf(part));
        }
        return lengths;
    }
    static QString PathOf(int part) { return u"C:\\Work\\a.bin."_s + QString::number(part); }
    /// What the folder holds when nothing was made.
    const QStringList untouched{u"a.bin"_s};

    QByteArray contents;
    QByteArray joined; ///< the parts on end, after Lengths
};

TEST_F(Split, BySize)
{
    const Ended ended = Of({u"--size"_s, u"1K"_s});
    EXPECT_EQ(ended.status, AllDone);
    EXPECT_EQ(ended.out, "made 3 parts\n");
    EXPECT_EQ(ended.err, "");
    EXPECT_EQ(Lengths(), (QList<qsizetype>{1024, 1024, 452}));
    EXPECT_EQ(joined, contents);
    EXPECT_EQ(memory.files.Bytes(u"C:\\Work\\a.bin"_s), contents);
}

TEST_F(Split, SizesHaveBinaryUnits)
{
    Of({u"--size"_s, u"2k"_s});
    EXPECT_EQ(Lengths(), (QList<qsizetype>{2048, 452}));
    for (const QString &size : {u"1M"_s, u"3g"_s, u"2500"_s}) {
        memory.files.RemoveFile(PathOf(1));
        if (memory.files.Exists(PathOf(2)))
            memory.files.RemoveFile(PathOf(2));
        Of({u"--size"_s, size});
        EXPECT_EQ(Lengths(), QList<qsizetype>{2500});
    }
}

TEST_F(Split, ByCountGivesExactlyThatMany)
{
    for (const qsizetype length : {10, 11, 6, 5, 4}) {
        Put(length);
        EXPECT_EQ(Of({u"--count"_s, u"4"_s}).out, "made 4 parts\n");
        EXPECT_EQ(Lengths().size(), 4) << length;
        EXPECT_EQ(joined, contents) << length;
        EXPECT_FALSE(Lengths().contains(0)) << length;
        for (int part = 1; part <= 4; ++part)
            memory.files.RemoveFile(PathOf(part));
    }
}

TEST_F(Split, AnEmptyFileHasNoParts)
{
    Put(0);
    EXPECT_EQ(Of({u"--size"_s, u"1K"_s}).out, "made 0 parts\n");
    EXPECT_EQ(Below(u"C:\\Work"_s), untouched);
    const Ended ended = Of({u"--count"_s, u"1"_s});
    EXPECT_EQ(ended.status, SomethingFailed);
    EXPECT_EQ(ended.err, "tressel-cli: C:\\Work\\a.bin: Its 0 bytes can't be cut into 1 parts\n");
}

TEST_F(Split, FewerBytesThanPartsAreRefused)
{
    Put(3);
    const Ended ended = Of({u"--count"_s, u"4"_s});
    EXPECT_EQ(ended.status, SomethingFailed);
    EXPECT_EQ(ended.err, "tressel-cli: C:\\Work\\a.bin: Its 3 bytes can't be cut into 4 parts\n");
    EXPECT_EQ(Below(u"C:\\Work"_s), untouched);
}

TEST_F(Split, WrongUsageTouchesNothing)
{
    for (const QStringList &words : {QStringList{},
                                     {u"--size"_s, u"1K"_s, u"--count"_s, u"2"_s},
                                     {u"--size"_s, u"0"_s},
                                     {u"--size"_s, u"1T"_s},
                                     {u"--size"_s, u"K"_s},
                                     {u"--size"_s, u"-5"_s},
                                     {u"--size"_s, u"+5"_s},
                                     {u"--size"_s, u"9999999999999999999"_s},
                                     {u"--size"_s, u"9000000000000000000K"_s},
                                     {u"--count"_s, u"0"_s},
                                     {u"--count"_s, u"two"_s},
                                     {u"--count"_s, u"2"_s, u"more"_s}}) {
        EXPECT_EQ(Of(words).status, WrongUsage) << words.join(u' ').toStdString();
    }
    EXPECT_EQ(Run({u"split"_s, u"--count"_s, u"2"_s}).status, WrongUsage);
    EXPECT_EQ(Changes(), 0);
}

TEST_F(Split, BatchIsThePagesBatchFile)
{
    EXPECT_EQ(Of({u"--size"_s, u"1K"_s, u"--batch"_s}).out, "made 3 parts, 1 other files\n");
    EXPECT_EQ(memory.files.Bytes(u"C:\\Work\\a.bin.bat"_s),
              "@ECHO OFF\r\n"
              "ECHO Joining Files...\r\n"
              "IF EXIST \"a.bin\" DEL \"a.bin\"\r\n"
              "COPY \"a.bin.1\" \"a.bin\"\r\n"
              "COPY /B \"a.bin\"+\"a.bin.2\"+\"a.bin.3\"\r\n"
              "ECHO Done!\r\n");
}

TEST_F(Split, ChecksumsAreOfTheWholeAndOfEachPart)
{
    EXPECT_EQ(Of({u"--size"_s, u"2K"_s, u"--checksums"_s}).out, "made 2 parts, 1 other files\n");
    const auto hex = [](const QByteArray &bytes) {
        return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
    };
    EXPECT_EQ(memory.files.Bytes(u"C:\\Work\\a.bin.sha256"_s),
              hex(contents) + "  a.bin\n" + hex(contents.left(2048)) + "  a.bin.1\n" + hex(contents.mid(2048))
                  + "  a.bin.2\n");
}

TEST_F(Split, WhatIsThereIsNamedAndNothingIsMade)
{
    memory.files.PutFile(PathOf(2), "mine");
    memory.files.PutFolder(PathOf(3));
    memory.files.PutFile(PathOf(7), "longer cut");
    memory.files.PutFile(u"C:\\Work\\a.bin.bat"_s);
    memory.files.PutFile(u"C:\\Work\\a.bin.sha256"_s);
    const QStringList before = Below(u"C:\\Work"_s);
    const Ended ended = Of({u"--size"_s, u"1K"_s, u"--batch"_s, u"--checksums"_s});
    EXPECT_EQ(ended.status, SomethingFailed);
    EXPECT_EQ(ended.out, "");
    EXPECT_EQ(ended.err,
              "tressel-cli: C:\\Work\\a.bin.2: It is there already\n"
              "tressel-cli: C:\\Work\\a.bin.3: It is there already\n"
              "tressel-cli: C:\\Work\\a.bin.7: It would be taken for a part of this cut\n"
              "tressel-cli: C:\\Work\\a.bin.bat: It is there already\n"
              "tressel-cli: C:\\Work\\a.bin.sha256: It is there already\n");
    EXPECT_EQ(Below(u"C:\\Work"_s), before);
    EXPECT_EQ(Changes(), 0);
}

TEST_F(Split, TooLittleRoomIsRefusedBeforeTheFirstByte)
{
    memory.files.AddDrive(u'C', {}, 2499);
    const Ended ended = Of({u"--size"_s, u"1K"_s});
    EXPECT_EQ(ended.status, SomethingFailed);
    EXPECT_EQ(ended.err, "tressel-cli: C:\\Work: There is room for 2499 bytes, and the parts take 2500\n");
    EXPECT_EQ(Changes(), 0);
}

TEST_F(Split, WhatIsNoFileIsRefused)
{
    memory.files.PutFolder(u"C:\\Work\\sub"_s);
    EXPECT_EQ(Run({u"split"_s, u"sub"_s, u"--count"_s, u"2"_s}).err,
              "tressel-cli: C:\\Work\\sub: It is no regular file\n");
    EXPECT_EQ(Run({u"split"_s, u"none"_s, u"--count"_s, u"2"_s}).err,
              "tressel-cli: C:\\Work\\none: File not found\n");
    EXPECT_EQ(Run({u"split"_s, u"none"_s, u"--count"_s, u"2"_s}).status, SomethingFailed);
}

TEST_F(Split, AReadOnlyFileCanBeCut)
{
    memory.files.SetReadOnly(u"C:\\Work\\a.bin"_s, true);
    EXPECT_EQ(Of({u"--count"_s, u"2"_s}).status, AllDone);
}

TEST_F(Split, PartsOfALinkStandBesideIt)
{
    memory.files.PutFile(u"C:\\Far\\b.bin"_s, "12345678");
    memory.files.PutLink(u"C:\\Work\\link"_s, u"C:\\Far\\b.bin"_s);
    EXPECT_EQ(Run({u"split"_s, u"link"_s, u"--count"_s, u"2"_s}).status, AllDone);
    EXPECT_EQ(memory.files.Bytes(u"C:\\Work\\link.2"_s), "5678");
    EXPECT_EQ(Below(u"C:\\Far"_s), QStringList{u"b.bin"_s});
}

TEST_F(Split, ADiscThatFillsUpLeavesNothing)
{
    for (int part = 1; part <= 3; ++part) {
        memory.files.FailAt(Operation::WriteBytes, PathOf(part), 1, FailureNumber::DiskFull);
        const Ended ended = Of({u"--size"_s, u"1K"_s, u"--batch"_s, u"--checksums"_s});
        EXPECT_EQ(ended.status, SomethingFailed);
        EXPECT_EQ(ended.err, "tressel-cli: " + PathOf(part).toLatin1() + ": Disk full\n");
        EXPECT_EQ(ended.out, "made 0 parts, 0 other files\n");
        EXPECT_EQ(Below(u"C:\\Work"_s), untouched);
    }
}

TEST_F(Split, APartThatCannotBeFlushedOrClosedLeavesNothing)
{
    for (const Operation operation : {Operation::FlushFile, Operation::CloseFile}) {
        memory.files.FailAt(operation, PathOf(2), 1, FailureNumber::DeviceIoError);
        EXPECT_EQ(Of({u"--size"_s, u"1K"_s}).err, "tressel-cli: C:\\Work\\a.bin.2: Device I/O error\n");
        EXPECT_EQ(Below(u"C:\\Work"_s), untouched);
    }
}

TEST_F(Split, AReadThatFailsLeavesNothing)
{
    memory.files.FailAt(Operation::ReadBytes, u"C:\\Work\\a.bin"_s, 2, FailureNumber::DeviceIoError);
    EXPECT_EQ(Of({u"--size"_s, u"1K"_s}).err, "tressel-cli: C:\\Work\\a.bin: Device I/O error\n");
    EXPECT_EQ(Below(u"C:\\Work"_s), untouched);
}

TEST_F(Split, ASourceThatGrowsOrShrinksMeanwhileLeavesNothing)
{
    const QString source = u"C:\\Work\\a.bin"_s;
    const QByteArray told = "tressel-cli: C:\\Work\\a.bin: It changed while it was read\n";
    memory.files.DoBefore(Operation::ReadBytes, source, 2,
                          [&] { memory.files.Open(source, OpenFor::Appending)->Write("more"); });
    Ended ended = Of({u"--size"_s, u"1K"_s, u"--batch"_s});
    EXPECT_EQ(ended.status, SomethingFailed);
    EXPECT_EQ(ended.err, told);
    EXPECT_EQ(Below(u"C:\\Work"_s), untouched);
    memory.files.DoBefore(Operation::ReadBytes, source, 2,
                          [&] { memory.files.Open(source, OpenFor::Changing)->Resize(1500); });
    ended = Of({u"--size"_s, u"1K"_s, u"--batch"_s});
    EXPECT_EQ(ended.err, told);
    EXPECT_EQ(ended.out, "made 0 parts, 0 other files\n");
    EXPECT_EQ(Below(u"C:\\Work"_s), untouched);
}

TEST_F(Split, APartThatAnotherPutsThereMeanwhileStays)
{
    memory.files.DoBefore(Operation::ReadBytes, u"C:\\Work\\a.bin"_s, 1,
                          [&] { memory.files.PutFile(PathOf(2), "mine"); });
    const Ended ended = Of({u"--size"_s, u"1K"_s});
    EXPECT_EQ(ended.err, "tressel-cli: C:\\Work\\a.bin.2: File already exists\n");
    EXPECT_EQ(Below(u"C:\\Work"_s), (QStringList{u"a.bin"_s, u"a.bin.2"_s}));
    EXPECT_EQ(memory.files.Bytes(PathOf(2)), "mine");
}

TEST_F(Split, EachPartIsOnTheDiscBeforeTheNextButOneIsMade)
{
    memory.journal.Clear();
    Of({u"--size"_s, u"1K"_s});
    QStringList steps;
    for (const JournalEntry &entry : memory.journal.Entries()) {
        if (entry.what == u"WriteBytes" || entry.what == u"FlushFile" || entry.what == u"CloseFile")
            steps += entry.what.left(5) + entry.about.right(2);
    }
    EXPECT_EQ(steps,
              (QStringList{u"Write.1"_s, u"Write.2"_s, u"Flush.1"_s, u"Close.1"_s, u"Write.3"_s, u"Flush.2"_s,
                           u"Close.2"_s, u"Flush.3"_s, u"Close.3"_s}));
}

TEST_F(Split, AStopBetweenTwoStepsLeavesNothing)
{
    stops.signal = SIGTERM;
    stops.after = 3;
    const Ended ended = Of({u"--size"_s, u"1K"_s});
    EXPECT_EQ(ended.status, StoppedBySignal + SIGTERM);
    EXPECT_EQ(ended.out, "made 0 parts\n");
    EXPECT_EQ(Below(u"C:\\Work"_s), untouched);
}

TEST_F(Split, APartThatCannotGoAgainIsCountedAndNamed)
{
    memory.files.FailAt(Operation::WriteBytes, PathOf(2), 1, FailureNumber::DiskFull);
    memory.files.FailAt(Operation::RemoveFile, PathOf(1), 1, FailureNumber::PathFileAccessError);
    const Ended ended = Of({u"--size"_s, u"1K"_s});
    EXPECT_EQ(ended.err,
              "tressel-cli: C:\\Work\\a.bin.2: Disk full\n"
              "tressel-cli: C:\\Work\\a.bin.1: Path/File access error\n");
    EXPECT_EQ(ended.out, "made 1 parts\n");
}

TEST_F(Split, DryRunSaysWhatWouldBeMade)
{
    const Ended ended = Of({u"--size"_s, u"2K"_s, u"--checksums"_s, u"--dry-run"_s});
    EXPECT_EQ(ended.out, "make C:\\Work\\a.bin.1\nmake C:\\Work\\a.bin.2\nmake C:\\Work\\a.bin.sha256\n");
    EXPECT_EQ(ended.err, "would have made 2 parts, 1 other files\n");
    EXPECT_EQ(Changes(), 0);
}

TEST_F(Split, QuietSaysNothing)
{
    const Ended ended = Of({u"--count"_s, u"2"_s, u"--quiet"_s});
    EXPECT_EQ(ended.out + ended.err, "");
    EXPECT_EQ(Lengths(), (QList<qsizetype>{1250, 1250}));
}

TEST_F(Split, NamesThatDoNotFitAreRefused)
{
    const QString longName(253, u'n');
    memory.files.PutFile(u"C:\\Work\\"_s + longName, QByteArray(12, 'x'));
    const Ended ended = Run({u"split"_s, longName, u"--count"_s, u"12"_s});
    EXPECT_EQ(ended.status, SomethingFailed);
    EXPECT_TRUE(ended.err.contains("It is longer than 255 bytes, the most that a name can be"));
    EXPECT_EQ(Changes(), 0);
}

TEST_F(Split, AFolderThatCannotBeListedIsNamed)
{
    memory.files.FailAt(Operation::List, u"C:\\Work"_s, 1, FailureNumber::DeviceIoError);
    const Ended ended = Of({u"--size"_s, u"1K"_s});
    EXPECT_EQ(ended.status, SomethingFailed);
    EXPECT_EQ(ended.err, "tressel-cli: C:\\Work: Device I/O error\n");
    EXPECT_EQ(Below(u"C:\\Work"_s), untouched);
}

} // namespace
