// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// What every file system does with a file that is open, and what it tells of one: the one in memory as well
// as the real one.

#include "core/machine/FileSystemContract.h"
#include "support/FullDisc.h"

#include <cstdlib>
#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

template <typename Disc> class OpenFileContract : public FileSystemContract<Disc> {
};

TYPED_TEST_SUITE(OpenFileContract, Discs);

#define ON_EACH_DISC(name) TYPED_TEST(OpenFileContract, name)

ON_EACH_DISC(ResizeCutsAndGrowsByZerosAndThePositionStays)
{
    this->Put(u"f"_s, "0123456789");
    const auto file = this->files.Open(this->At(u"f"_s), OpenFor::Changing);
    file->Seek(6);
    file->Resize(4);
    EXPECT_EQ(file->Length(), 4);
    EXPECT_EQ(file->Position(), 6);
    file->Resize(8);
    EXPECT_EQ(this->Bytes(u"f"_s), QByteArray("0123\0\0\0\0", 8));
    EXPECT_EQ(file->Position(), 6);
    file->Write("X");
    EXPECT_EQ(this->Bytes(u"f"_s), QByteArray("0123\0\0X\0", 8));
    EXPECT_EQ(NumberThrownBy([&] { file->Resize(-1); }), FailureNumber::InvalidProcedureCall);
    file->Close();
    EXPECT_EQ(NumberThrownBy([&] { file->Resize(0); }), FailureNumber::BadFileName);
}

ON_EACH_DISC(ResizeToNothingLeavesAnEmptyFile)
{
    this->Put(u"f"_s, "0123456789");
    this->files.Open(this->At(u"f"_s), OpenFor::Changing)->Resize(0);
    EXPECT_EQ(this->Bytes(u"f"_s), QByteArray());
    EXPECT_TRUE(this->IsThere(u"f"_s));
}

ON_EACH_DISC(WhatIsForgottenIsReadAgain)
{
    this->Put(u"f"_s, "0123456789");
    const auto file = this->files.Open(this->At(u"f"_s), OpenFor::Changing);
    file->Write("ab");
    file->Flush();
    file->ForgetCached();
    EXPECT_EQ(file->Read(4), "2345");
    file->Seek(0);
    EXPECT_EQ(file->Read(3), "ab2");
}

ON_EACH_DISC(PlacesAreToldAsAWholeOrNotAtAllAndStayWhereAFileIsWrittenOver)
{
    this->Put(u"f"_s, QByteArray(10000, 'a'));
    const auto file = this->files.Open(this->At(u"f"_s), OpenFor::Changing);
    file->Flush();
    const auto before = file->Extents();
    file->Write(QByteArray(10000, 'b'));
    file->Flush();
    EXPECT_EQ(file->Extents().has_value(), before.has_value());
    for (const Extent &extent : before.value_or(QList<Extent>()))
        EXPECT_GT(extent.length, 0U);
    EXPECT_EQ(file->Position(), 10000);
}

ON_EACH_DISC(FoldersAreFlushedAndNothingElse)
{
    this->MakeFolder(u"a"_s);
    this->Put(u"f"_s);
    EXPECT_EQ(NumberThrownBy([&] { this->files.FlushFolder(this->At(u"a"_s)); }), std::nullopt);
    EXPECT_EQ(NumberThrownBy([&] { this->files.FlushFolder(this->At(u"none"_s)); }),
              FailureNumber::PathNotFound);
    EXPECT_TRUE(NumberThrownBy([&] { this->files.FlushFolder(this->At(u"f"_s)); }).has_value());
}

ON_EACH_DISC(AllBelowOneFolderIsOnItsVolume)
{
    this->MakeFolder(u"a"_s);
    this->Put(u"a/f"_s);
    const auto volumeOf = [&](const QString &path) {
        return this->files.Status(this->At(path), Links::Keep)->volume;
    };
    EXPECT_EQ(volumeOf(u"a"_s), volumeOf(u"a/f"_s));
    EXPECT_EQ(volumeOf(u"a"_s), this->files.Status(this->disc.root, Links::Follow)->volume);
}

ON_EACH_DISC(NamesOfAFileAreCounted)
{
    this->Put(u"f"_s);
    EXPECT_EQ(this->files.Status(this->At(u"f"_s), Links::Keep)->names, 1U);
    this->disc.GiveSecondName(this->At(u"f"_s));
    EXPECT_EQ(this->files.Status(this->At(u"f"_s), Links::Keep)->names, 2U);
}

TEST(VolumesOfStatus, DifferFromDiscToDisc)
{
    MemoryMachine memory;
    memory.files.AddDrive(u'D');
    EXPECT_NE(memory.files.Status(u"C:\\"_s, Links::Keep)->volume,
              memory.files.Status(u"D:\\"_s, Links::Keep)->volume);
    PosixFileSystem real;
    EXPECT_NE(real.Status(u"/"_s, Links::Keep)->volume, real.Status(u"/proc"_s, Links::Keep)->volume);
}

/// Files in the folder for large temporary files, which as a rule is on a medium and not in memory.
class FileOnMedium : public testing::Test {
protected:
    FileOnMedium()
    {
        close(mkstemp(name.data()));
        file = files.Open(QString::fromUtf8(name), OpenFor::Changing);
    }
    ~FileOnMedium() override { unlink(name.constData()); }

    /// Another file, beside it, with its position at the beginning.
    std::unique_ptr<OpenFile> OpenSource(const QByteArray &bytes)
    {
        const QString path = QString::fromUtf8(name) + u".source"_s;
        files.Open(path, OpenFor::Writing)->Write(bytes);
        auto source = files.Open(path, OpenFor::Reading);
        files.RemoveFile(path);
        return source;
    }

    QByteArray name = "/var/tmp/tressel-test-XXXXXX";
    PosixFileSystem files;
    std::unique_ptr<OpenFile> file;
};

TEST_F(FileOnMedium, PlacesLeaveOutTheHolesAndCoverTheRest)
{
    constexpr qint64 block = 1 << 16;
    file->Write(QByteArray(block, 'a'));
    file->Resize(10 * block);
    file->Seek(9 * block);
    file->Write(QByteArray(block, 'b'));
    const auto extents = file->Extents();
    if (!extents)
        GTEST_SKIP() << "The file system of /var/tmp doesn't tell where files stand.";
    quint64 inAll = 0;
    for (const Extent &extent : *extents) {
        inAll += extent.length;
        EXPECT_GT(extent.place, 0U);
    }
    EXPECT_EQ(inAll, 2U * block);
    EXPECT_EQ(extents->first().offset, 0U);
    EXPECT_EQ(extents->last().offset, 9U * block);
}

TEST_F(FileOnMedium, PlacesOfAFileWhoseBytesStandInAJournalTooAreNotTold)
{
    file->Write(QByteArray(100, 'a'));
    const int number = open(name.constData(), O_RDONLY | O_CLOEXEC);
    int flags = 0;
    const bool knowsFlags = ioctl(number, FS_IOC_GETFLAGS, &flags) == 0;
    flags |= FS_JOURNAL_DATA_FL;
    const bool isInJournal = knowsFlags && ioctl(number, FS_IOC_SETFLAGS, &flags) == 0;
    close(number);
    if (!isInJournal)
        GTEST_SKIP() << "The file system of /var/tmp puts no file's bytes into a journal for this user.";
    EXPECT_EQ(file->Extents(), std::nullopt);
    EXPECT_TRUE(file->IsInJournal());
}

TEST_F(FileOnMedium, WhatIsTakenFromAnotherFileStandsAtThePosition)
{
    const auto source = OpenSource("0123456789");
    source->Seek(2);
    file->Write("ab");
    const qint64 taken = file->TakeFrom(*source, 5);
    if (taken == 0)
        GTEST_SKIP() << "The system of /var/tmp has no short way.";
    EXPECT_EQ(taken, 5);
    EXPECT_EQ(source->Position(), 7);
    EXPECT_EQ(file->Position(), 7);
    file->Write("!");
    file->Seek(0);
    EXPECT_EQ(file->Read(100), "ab23456!");
    // Behind its end the source has nothing more.
    file->Seek(8);
    EXPECT_EQ(file->TakeFrom(*source, 100), 3);
    EXPECT_EQ(file->TakeFrom(*source, 100), 0);
    EXPECT_EQ(file->Length(), 11);
}

TEST_F(FileOnMedium, NothingIsTakenWhereSomethingIsAmiss)
{
    const auto source = OpenSource("0123456789");
    source->Close();
    EXPECT_EQ(file->TakeFrom(*source, 5), 0);
    MemoryMachine memory;
    memory.files.PutFile(u"C:\\f"_s, "01234");
    const auto other = memory.files.Open(u"C:\\f"_s, OpenFor::Reading);
    EXPECT_EQ(file->TakeFrom(*other, 5), 0);
    EXPECT_EQ(other->Read(5), "01234");
    const auto again = OpenSource("0123456789");
    const FullDisc full(0);
    EXPECT_EQ(file->TakeFrom(*again, 5), 0);
    EXPECT_EQ(again->Position(), 0);
    EXPECT_EQ(file->Length(), 0);
}

TEST_F(FileOnMedium, LongRunsOfBytesComeBackWhole)
{
    // Longer than what is sent on its way to the medium at once, in one piece and in many.
    const QByteArray piece = QByteArray("0123456789abcdef!").repeated(61681).left(1 << 20);
    QByteArray all = piece.repeated(20);
    all.append("end");
    file->Write(all);
    file->Flush();
    for (int count = 0; count < 9; ++count)
        file->Write(piece);
    file->Seek(3);
    file->Write("###");
    all.replace(3, 3, "###");
    file->Seek(0);
    EXPECT_TRUE(file->Read(1 << 30) == all + piece.repeated(9));
}

} // namespace
