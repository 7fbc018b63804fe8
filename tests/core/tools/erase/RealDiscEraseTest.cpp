// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// The page's run on the real disc: what other programs and other kinds of entries do to it. A second name
// shows what the file holds once it has lost its first.

#include "support/AsNobody.h"
#include "support/Census.h"
#include "support/FullDisc.h"
#include "support/MemoryMachine.h"
#include "support/TemporaryFolder.h"
#include "support/Text.h"
#include "support/ToolBench.h"
#include "support/WatchedDisc.h"
#include "tools/erase/ErasePage.h"

#include <QLocale>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

class RealDiscErase : public testing::Test {
protected:
    RealDiscErase()
    {
        bench.options.OptSound.Select(1);
        page.btnGBErase.SetEnabled(true);
    }

    QString Path(const QString &name) const { return folder.Path() + u'/' + name; }
    void Put(const QString &name, const QByteArray &bytes)
    {
        const auto file = files.Open(Path(name), OpenFor::Writing);
        file->Write(bytes);
    }
    QByteArray Bytes(const QString &name) { return files.Open(Path(name), OpenFor::Reading)->Read(1 << 20); }
    /// Makes a file with a second name, "second".
    void PutWithSecondName(const QString &name, const QByteArray &bytes)
    {
        Put(name, bytes);
        unlink(folder.Native("second").constData());
        ASSERT_EQ(link(folder.Native(name.toUtf8()).constData(), folder.Native("second").constData()), 0);
    }
    void Erase(const QString &name)
    {
        page.lstErase.UserDrops({Path(name)});
        page.btnGBErase.UserClicks();
        EXPECT_EQ(page.lstErase.ListCount(), 0);
        EXPECT_EQ(page.lblEraseMessage.Caption(), u"Successfully Deleted"_s);
    }
    void ExpectFolderBox(const QString &name)
    {
        machine.dialogs.ExpectBox(
            {u"Folders ''"_s + Path(name) + u"'' cannot erased !!!"_s, u"Tressel"_s, BoxIcon::Exclamation});
    }
    bool IsThere(const QString &name) { return files.Status(Path(name), Links::Keep).has_value(); }

    const TemporaryFolder folder;
    MemoryMachine machine;
    WatchedDisc files;
    ToolBench bench{machine.With(files)};
    ErasePage page{bench.context};
};

struct Blocks {
    qsizetype length;
    int blocks;
};

TEST_F(RealDiscErase, EachLengthIsOverwrittenBlockByBlockAndGoes)
{
    for (const Blocks &row : {Blocks{0, 1}, {1, 1}, {4095, 1}, {4096, 2}, {4097, 2}, {8192, 3}}) {
        const QByteArray before(row.length, 'a');
        PutWithSecondName(u"f"_s, before);
        for (int block = 1; block <= row.blocks; ++block) {
            machine.events.At(block, [&, done = (block - 1) * 4096] {
                EXPECT_EQ(Bytes(u"second"_s), QByteArray(done, ' ') + before.mid(done)) << row.length;
            });
        }
        Erase(u"f"_s);
        EXPECT_FALSE(IsThere(u"f"_s));
        EXPECT_TRUE(Bytes(u"second"_s)
                        .startsWith("Erased by Tressel, the maker of many folders\r\n"
                                    "Times to overwrite current files "
                                    + QByteArray::number(row.blocks) + " and secure deleted "))
            << Bytes(u"second"_s).constData();
        EXPECT_TRUE(Bytes(u"second"_s).endsWith("\r\n"));
    }
}

TEST_F(RealDiscErase, AReaderSeesEachPatternTheBlocksAndTheTwoLines)
{
    const QByteArray before(5000, 'a');
    const QByteArray patternX(4096, 'X');
    const QByteArray blanks(4096, ' ');
    Put(u"f"_s, before);
    QList<std::pair<Operation, QByteArray>> seen;
    files.before = [&](const DiscStep &step) {
        if (step.path == Path(u"f"_s))
            seen.append({step.operation, Bytes(u"f"_s)});
    };
    Erase(u"f"_s);
    const QByteArray lines = "Erased by Tressel, the maker of many folders\r\nTimes to overwrite current "
                             "files 2 and secure deleted "
        + QLocale().toString(machine.clock.Now().date(), QLocale::ShortFormat).toUtf8() + "\r\n";
    const QList<std::pair<Operation, QByteArray>> expected{
        {Operation::CloseFile, before}, // Where it is looked whether another holds it.
        {Operation::WriteBytes, before},
        {Operation::WriteBytes, patternX + before.mid(4096)},
        {Operation::WriteBytes, blanks + before.mid(4096)},
        {Operation::WriteBytes, blanks + patternX},
        {Operation::CloseFile, blanks + blanks},
        {Operation::ResizeFile, blanks + blanks},
        {Operation::WriteBytes, {}},
        {Operation::CloseFile, lines},
        {Operation::RemoveFile, lines},
    };
    EXPECT_TRUE(seen == expected) << seen.size();
    EXPECT_FALSE(IsThere(u"f"_s));
}

TEST_F(RealDiscErase, AFileWithHolesIsOverwrittenInThem)
{
    PutWithSecondName(u"f"_s, "head");
    ASSERT_EQ(truncate(folder.Native("f").constData(), 20000), 0);
    machine.events.At(5, [&] {
        EXPECT_EQ(Bytes(u"second"_s), QByteArray(16384, ' ') + QByteArray(20000 - 16384, '\0'));
        struct stat status = {};
        EXPECT_EQ(stat(folder.Native("second").constData(), &status), 0);
        EXPECT_GE(status.st_blocks * 512, 16384);
    });
    Erase(u"f"_s);
    EXPECT_FALSE(IsThere(u"f"_s));
}

TEST_F(RealDiscErase, LengthsBeyondTwoGibibytesAreCounted)
{
    constexpr off_t length = (off_t{1} << 31) + 5;
    Put(u"f"_s, QByteArray(8192, 'a'));
    ASSERT_EQ(truncate(folder.Native("f").constData(), length), 0);
    page.lstErase.UserDrops({Path(u"f"_s)});
    page.lstErase.UserSelects(0);
    EXPECT_EQ(page.lblEraseMessage.Caption(), u"File size: 2,147,483,653 Byte"_s);
    machine.events.At(3, [&] {
        EXPECT_EQ(page.ProgrBar.Max(), 524289);
        EXPECT_EQ(page.lblOverwrite.Caption(), u"Times to overwrite current files 524,289"_s);
    });
    {
        // Two blocks of it are enough to see.
        const FullDisc full(8192);
        page.run.WipeFileClean(Path(u"f"_s));
    }
    EXPECT_EQ(Bytes(u"f"_s).left(8200), QByteArray(8192, ' ') + QByteArray(8, '\0'));
    EXPECT_EQ(files.Status(Path(u"f"_s), Links::Keep)->length, length);
}

TEST_F(RealDiscErase, AFullDiscUnderTheLastBlockLeavesTheFileAsFarAsItWasOverwritten)
{
    Put(u"f"_s, QByteArray(5000, 'a'));
    const FullDisc full(5000);
    Erase(u"f"_s);
    EXPECT_EQ(Bytes(u"f"_s), QByteArray(4096, ' ') + QByteArray(904, 'X'));
}

TEST_F(RealDiscErase, AFileThatGrowsMeanwhileGoesWithWhatWasAdded)
{
    PutWithSecondName(u"f"_s, QByteArray(4000, 'a'));
    machine.events.At(1, [&] {
        const auto another = files.Open(Path(u"f"_s), OpenFor::Appending);
        another->Write(QByteArray(50000, 'b'));
    });
    Erase(u"f"_s);
    EXPECT_FALSE(IsThere(u"f"_s));
    // Only what the file had at the beginning was overwritten, and all of it was cut.
    EXPECT_TRUE(Bytes(u"second"_s).contains("current files 1 and"));
    EXPECT_FALSE(Bytes(u"second"_s).contains('b' + QByteArray("bb")));
}

TEST_F(RealDiscErase, AFileThatAnotherProgramHoldsStaysAsItIs)
{
    Put(u"f"_s, "mine");
    const int another = open(folder.Native("f").constData(), O_RDONLY | O_CLOEXEC);
    ASSERT_EQ(flock(another, LOCK_EX | LOCK_NB), 0);
    Erase(u"f"_s);
    EXPECT_EQ(Bytes(u"f"_s), "mine");
    close(another);
    Erase(u"f"_s);
    EXPECT_FALSE(IsThere(u"f"_s));
}

TEST_F(RealDiscErase, NamesOfAnyBytesAreTaken)
{
    const QByteArray raw = folder.Native("raw\xff\xfe");
    const int file = open(raw.constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    ASSERT_EQ(write(file, "secret", 6), 6);
    close(file);
    Put(u" a\\b "_s, "secret");
    const QString odd = u"raw"_s + QChar(0xDCFF) + QChar(0xDCFE);
    Erase(odd);
    Erase(u" a\\b "_s);
    EXPECT_EQ(CensusOf(folder.Path().toStdString()).size(), 0U);
}

TEST_F(RealDiscErase, AReadOnlyFileGetsTheBoxAndStays)
{
    Put(u"f"_s, "mine");
    ASSERT_EQ(chmod(folder.Native("f").constData(), 0444), 0);
    ASSERT_EQ(chmod(folder.Native("").constData(), 0777), 0);
    EXPECT_TRUE(HoldsAsNobody([this] {
        ExpectFolderBox(u"f"_s);
        page.run.WipeFileClean(Path(u"f"_s));
        return machine.dialogs.AllCame();
    }));
    EXPECT_EQ(Bytes(u"f"_s), "mine");
}

TEST_F(RealDiscErase, WhatIsNoRegularFileGetsTheBoxAtOnceAndNothingIsTouched)
{
    Put(u"target"_s, "mine");
    ASSERT_FALSE(files.TryMakeFolder(Path(u"folder"_s)));
    Put(u"folder/inside"_s, "mine");
    ASSERT_EQ(symlink("target", folder.Native("link").constData()), 0);
    ASSERT_EQ(symlink("/dev/full", folder.Native("device").constData()), 0);
    ASSERT_EQ(symlink("nowhere", folder.Native("dangling").constData()), 0);
    ASSERT_EQ(mkfifo(folder.Native("pipe").constData(), 0600), 0);
    const auto before = CensusOf(folder.Path().toStdString());
    for (const QString &name : {u"folder"_s, u"link"_s, u"device"_s, u"dangling"_s, u"pipe"_s}) {
        ExpectFolderBox(name);
        Erase(name);
    }
    EXPECT_EQ(CensusOf(folder.Path().toStdString()), before);
}

TEST_F(RealDiscErase, ALinkThatIsPutInTheFilesPlaceMeanwhileIsNotFollowed)
{
    Put(u"f"_s, "secret");
    Put(u"letter"_s, "mine");
    machine.events.At(1, [&] {
        EXPECT_EQ(rename(folder.Native("f").constData(), folder.Native("g").constData()), 0);
        EXPECT_EQ(symlink("letter", folder.Native("f").constData()), 0);
    });
    ExpectFolderBox(u"f"_s);
    Erase(u"f"_s);
    EXPECT_EQ(Bytes(u"letter"_s), "mine");
    EXPECT_EQ(Bytes(u"g"_s), QByteArray(4096, ' '));
}

} // namespace
