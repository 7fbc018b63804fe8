// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// What only the real disc can do or get wrong.

#include "machine/posix/PosixFileSystem.h"

#include "machine/Paths.h"
#include "machine/WholeFile.h"
#include "machine/posix/NativePath.h"
#include "machine/posix/PosixRename.h"
#include "support/AsNobody.h"
#include "support/Failures.h"
#include "support/TemporaryFolder.h"
#include "support/Text.h"

#include <QSet>

#include <algorithm>
#include <array>
#include <climits>
#include <csignal>
#include <cstdlib>
#include <dirent.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <memory>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

class PosixFileSystemTest : public testing::Test {
protected:
    QString At(const QString &name) { return folder.Path() + u'/' + name; }
    void PutNative(const QByteArray &name, mode_t mode = 0644)
    {
        const Descriptor file(
            open(folder.Native(name).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode));
        ASSERT_TRUE(file.IsOpen());
    }
    mode_t ModeOf(const QByteArray &name)
    {
        struct stat status = {};
        EXPECT_EQ(stat(folder.Native(name).constData(), &status), 0);
        return status.st_mode & 07777;
    }

    QStringList Names()
    {
        QStringList names;
        for (const FolderEntry &entry : files.List(folder.Path()))
            names += entry.name;
        return names;
    }

    TemporaryFolder folder;
    PosixFileSystem files;
};

QString ByteMark(unsigned char byte)
{
    return QString(QChar(0xDC80 + (byte - 0x80)));
}

TEST_F(PosixFileSystemTest, FolderIsMadeAtOnceOnlyIfAllAboveIsThere)
{
    EXPECT_FALSE(files.MadeAtOnce(At(u"a/b"_s)));
    EXPECT_FALSE(FolderExists(files, At(u"a"_s)));
    EXPECT_TRUE(files.MadeAtOnce(At(u"a"_s)));
    EXPECT_FALSE(files.MadeAtOnce(At(u"a"_s)));
    EXPECT_TRUE(files.MadeAtOnce(At(u"a/b"_s)));
    EXPECT_TRUE(FolderExists(files, At(u"a/b"_s)));
}

TEST_F(PosixFileSystemTest, NamesOfAnyBytesComeBackAsTheSameBytes)
{
    // Latin-1, a cut sequence, the UTF-8 pattern of a byte's own surrogate, a mark, a blank and a line end.
    const QList<QByteArray> names{"caf\xE9",
                                  "\xC3",
                                  "\xED\xB2\x80",
                                  "\xEF\xBB\xBF"
                                  "mark",
                                  "\xFF\xFE",
                                  "a\nb\tc\\d ",
                                  "\xF0\x9F\x98",
                                  "\xED\xA0\x80\xED\xB0\x80"};
    for (const QByteArray &name : names)
        PutNative(name);
    EXPECT_TRUE(files.Status(At(u"caf"_s + ByteMark(0xE9)), Links::Keep));
    const QList<FolderEntry> entries = files.List(folder.Path());
    ASSERT_EQ(entries.size(), names.size());
    QSet<QString> different;
    for (const FolderEntry &entry : entries) {
        different += entry.name;
        EXPECT_TRUE(files.Status(At(entry.name), Links::Keep)) << qPrintable(entry.name);
        files.Rename(At(entry.name), At(entry.name + u".x"_s));
        files.RemoveFile(At(entry.name + u".x"_s));
    }
    EXPECT_EQ(different.size(), names.size());
    EXPECT_TRUE(files.List(folder.Path()).isEmpty());
}

TEST_F(PosixFileSystemTest, HalfAPairNamesNothing)
{
    PutNative("\xEF\xBF\xBD");
    const QString half = At(QString(QChar(0xD800)));
    EXPECT_FALSE(files.Status(half, Links::Keep));
    EXPECT_EQ(NumberThrownBy([&] { files.RemoveFile(half); }), FailureNumber::InvalidProcedureCall);
    EXPECT_EQ(NumberOf(files.TryMakeFolder(half)), FailureNumber::InvalidProcedureCall);
}

TEST_F(PosixFileSystemTest, TakesNamesOf255Bytes)
{
    const QString longest = QString(254, u'x') + u'y';
    const QString longestOfBytes = QString(127, u'\u00E9') + u'y';
    for (const QString &name : {longest, longestOfBytes}) {
        EXPECT_EQ(NumberOf(files.TryMakeFolder(At(name))), std::nullopt);
        EXPECT_EQ(NumberOf(files.TryMakeFolder(At(name + u'z'))), FailureNumber::PathFileAccessError);
    }
    EXPECT_EQ(files.List(folder.Path()).size(), 2);
}

TEST_F(PosixFileSystemTest, WorksInTreesDeeperThanTheSystemTakesPaths)
{
    constexpr int levels = 2000;
    QString path = folder.Path();
    for (int level = 0; level < levels; ++level) {
        path += u"/level of a deep tree"_s;
        ASSERT_EQ(NumberOf(files.TryMakeFolder(path)), std::nullopt) << level;
    }
    ASSERT_GT(path.size(), 40'000);
    EXPECT_EQ(NumberOf(files.TryMakeFolder(path)), FailureNumber::PathFileAccessError);
    const QString file = path + u"/f"_s;
    files.Open(file, OpenFor::Creating)->Write("deep");
    ReplaceContents(files, file, "deeper");
    files.SetReadOnly(file, true);
    EXPECT_TRUE(files.Status(file, Links::Follow)->readOnly);
    files.Rename(file, path + u"/g"_s);
    EXPECT_EQ(files.Open(path + u"/g"_s, OpenFor::Reading)->Read(10), "deeper");
    EXPECT_EQ(NumberThrownBy([&] { files.Open(file, OpenFor::Reading); }), FailureNumber::FileNotFound);
    EXPECT_EQ(NumberThrownBy([&] { files.Open(path + u"/none/f"_s, OpenFor::Reading); }),
              FailureNumber::PathNotFound);
    ASSERT_EQ(files.List(path).size(), 1);
    EXPECT_EQ(files.Read(path)->Next()->name, u"g"_s);
    EXPECT_GT(files.FreeSpace(path), 0);
    EXPECT_TRUE(files.VolumeLabel(path + u"/none"_s) == files.VolumeLabel(folder.Path()));
    files.RemoveFile(path + u"/g"_s);
    for (int level = 0; level < levels; ++level) {
        ASSERT_EQ(NumberOf(files.TryRemoveFolder(path)), std::nullopt) << level;
        path = FolderOf(files, path);
    }
    EXPECT_TRUE(files.List(folder.Path()).isEmpty());
}

TEST_F(PosixFileSystemTest, ADeepPathPassesNoFile)
{
    QString path = folder.Path();
    for (int level = 0; level < 400; ++level) {
        path += u"/level of a deep tree"_s;
        ASSERT_EQ(NumberOf(files.TryMakeFolder(path)), std::nullopt) << level;
    }
    const QString missing = folder.Path() + u"/none"_s + path.mid(folder.Path().size());
    EXPECT_EQ(NumberOf(files.TryMakeFolder(missing)), FailureNumber::PathNotFound);
    EXPECT_EQ(NumberOf(files.TryMakeFolder(u'/' + QString(5000, u'x'))), FailureNumber::PathFileAccessError);
    while (path != folder.Path()) {
        ASSERT_EQ(NumberOf(files.TryRemoveFolder(path)), std::nullopt);
        path = FolderOf(files, path);
    }
}

TEST_F(PosixFileSystemTest, ListingNeverFollowsLinks)
{
    ASSERT_FALSE(files.TryMakeFolder(At(u"a"_s)));
    ASSERT_EQ(symlink("..", folder.Native("a/up").constData()), 0);
    ASSERT_EQ(symlink("nowhere", folder.Native("a/lost").constData()), 0);
    ASSERT_EQ(mkfifo(folder.Native("a/pipe").constData(), 0600), 0);
    const QList<FolderEntry> entries = files.List(At(u"a"_s));
    ASSERT_EQ(entries.size(), 3);
    EXPECT_EQ(entries.at(0).kind, EntryKind::Link);
    EXPECT_EQ(entries.at(1).kind, EntryKind::Other);
    EXPECT_EQ(entries.at(2).kind, EntryKind::Link);
    EXPECT_EQ(NumberOf(files.TryRemoveFolder(At(u"a/up"_s))), FailureNumber::PathFileAccessError);
    files.RemoveFile(At(u"a/up"_s));
    EXPECT_TRUE(FolderExists(files, At(u"a"_s)));
}

TEST_F(PosixFileSystemTest, ALinkToItselfLeadsNowhere)
{
    ASSERT_EQ(symlink("loop", folder.Native("loop").constData()), 0);
    EXPECT_FALSE(files.Status(At(u"loop"_s), Links::Follow));
    EXPECT_EQ(NumberThrownBy([&] { files.Open(At(u"loop"_s), OpenFor::Reading); }),
              FailureNumber::PathFileAccessError);
    EXPECT_EQ(NumberThrownBy([&] { ReplaceContents(files, At(u"loop"_s), "x"); }),
              FailureNumber::PathFileAccessError);
}

TEST_F(PosixFileSystemTest, APipeWithoutAnotherEndHoldsNobodyUp)
{
    ASSERT_EQ(mkfifo(folder.Native("pipe").constData(), 0600), 0);
    EXPECT_EQ(files.Open(At(u"pipe"_s), OpenFor::Streaming)->Read(10), "");
    for (const OpenFor purpose : {OpenFor::Reading, OpenFor::Writing, OpenFor::Appending}) {
        EXPECT_EQ(NumberThrownBy([&] { files.Open(At(u"pipe"_s), purpose); }),
                  FailureNumber::PathFileAccessError);
    }
}

TEST_F(PosixFileSystemTest, ReadsFilesThatDontTellTheirLength)
{
    EXPECT_TRUE(files.Open(u"/proc/self/status"_s, OpenFor::Reading)->Read(1 << 20).startsWith("Name:"));
}

TEST_F(PosixFileSystemTest, WhatAnotherProgramLockedStaysWhole)
{
    files.Open(At(u"f"_s), OpenFor::Creating)->Write("abc");
    const Descriptor other(open(folder.Native("f").constData(), O_RDONLY | O_CLOEXEC));
    ASSERT_EQ(flock(other.Number(), LOCK_SH | LOCK_NB), 0);
    EXPECT_EQ(NumberThrownBy([&] { files.Open(At(u"f"_s), OpenFor::Writing, Sharing::Exclusive); }),
              FailureNumber::PermissionDenied);
    EXPECT_EQ(files.Status(At(u"f"_s), Links::Keep)->length, 3);
}

TEST_F(PosixFileSystemTest, NoOpenFileIsHandedOnToOtherPrograms)
{
    const auto file = files.Open(At(u"f"_s), OpenFor::Creating);
    const auto reader = files.Read(folder.Path());
    const std::unique_ptr<DIR, int (*)(DIR *)> open(opendir("/proc/self/fd"), closedir);
    ASSERT_TRUE(open);
    int ours = 0;
    while (const dirent *const entry = readdir(open.get())) {
        const int number = std::atoi(entry->d_name);
        std::array<char, PATH_MAX> target{};
        const QByteArray link = QByteArray("/proc/self/fd/") + entry->d_name;
        if (readlink(link.constData(), target.data(), target.size() - 1) < 0)
            continue;
        if (!QByteArray(target.data()).startsWith(folder.Native("").chopped(1)))
            continue;
        ++ours;
        EXPECT_TRUE(fcntl(number, F_GETFD) & FD_CLOEXEC) << target.data();
    }
    EXPECT_EQ(ours, 2);
}

TEST_F(PosixFileSystemTest, TheRoadForSimplerFileSystemsOverwritesNothing)
{
    PutNative("f");
    PutNative("g");
    ASSERT_FALSE(files.TryMakeFolder(At(u"empty"_s)));
    ASSERT_FALSE(files.TryMakeFolder(At(u"d"_s)));
    const auto rename = [this](const QString &from, const QString &to) {
        return NumberThrownBy([&] { RenameBySmallerSteps(NativePath(At(from)), NativePath(At(to))); });
    };
    EXPECT_EQ(rename(u"f"_s, u"g"_s), FailureNumber::FileAlreadyExists);
    EXPECT_EQ(rename(u"d"_s, u"empty"_s), FailureNumber::FileAlreadyExists);
    EXPECT_EQ(rename(u"f"_s, u"f"_s), FailureNumber::FileAlreadyExists);
    EXPECT_EQ(rename(u"none"_s, u"g"_s), FailureNumber::FileNotFound);
    EXPECT_EQ(rename(u"f"_s, u"none/g"_s), FailureNumber::PathNotFound);
    EXPECT_EQ(rename(u"d"_s, u"d/e"_s), FailureNumber::InvalidProcedureCall);
    EXPECT_EQ(rename(u"f"_s, u"h"_s), std::nullopt);
    EXPECT_FALSE(FileExists(files, At(u"f"_s)));
    EXPECT_TRUE(FileExists(files, At(u"h"_s)));
}

TEST_F(PosixFileSystemTest, ADetourEndsAtTheNewNameOrTheOldOne)
{
    PutNative("f");
    PutNative("g");
    const QByteArray f = folder.Native("f");
    const QByteArray g = folder.Native("g");
    const QByteArray h = folder.Native("h");
    EXPECT_EQ(RenameByDetour({AT_FDCWD, f.constData()}, {AT_FDCWD, h.constData()}), 0);
    EXPECT_EQ(Names(), (QStringList{u"g"_s, u"h"_s}));
    EXPECT_EQ(RenameByDetour({AT_FDCWD, h.constData()}, {AT_FDCWD, g.constData()}), EEXIST);
    EXPECT_EQ(Names(), (QStringList{u"g"_s, u"h"_s}));
    EXPECT_EQ(RenameByDetour({AT_FDCWD, f.constData()}, {AT_FDCWD, h.constData()}), ENOENT);
}

TEST_F(PosixFileSystemTest, TwoNamesOfOneFileAreNoTwoSpellings)
{
    PutNative("name");
    ASSERT_EQ(link(folder.Native("name").constData(), folder.Native("NAME").constData()), 0);
    EXPECT_EQ(NumberThrownBy([&] { files.Rename(At(u"name"_s), At(u"NAME"_s)); }),
              FailureNumber::FileAlreadyExists);
    EXPECT_EQ(files.List(folder.Path()).size(), 2);
}

TEST_F(PosixFileSystemTest, WriteProtectionTakesAllWriteRightsAndGivesTheOwners)
{
    PutNative("f");
    ASSERT_EQ(chmod(folder.Native("f").constData(), 0664), 0);
    files.SetReadOnly(At(u"f"_s), true);
    EXPECT_EQ(ModeOf("f"), 0444U);
    files.SetReadOnly(At(u"f"_s), false);
    EXPECT_EQ(ModeOf("f"), 0644U);
}

TEST_F(PosixFileSystemTest, RefusedAccessIsAPathFileAccessError)
{
    if (!IsRoot())
        GTEST_SKIP() << "needs root, to give it up";
    ASSERT_FALSE(files.TryMakeFolder(At(u"closed"_s)));
    PutNative("closed/f", 0600);
    PutNative("secret", 0600);
    ASSERT_EQ(chmod(folder.Native("closed").constData(), 0700), 0);
    ASSERT_EQ(chmod(folder.Native("").constData(), 0755), 0);
    const auto refused = FailureNumber::PathFileAccessError;
    EXPECT_TRUE(HoldsAsNobody([&] { return NumberOf(files.TryMakeFolder(At(u"new"_s))) == refused; }));
    EXPECT_TRUE(HoldsAsNobody([&] { return NumberOf(files.TryMakeFolder(At(u"closed/new"_s))) == refused; }));
    EXPECT_TRUE(HoldsAsNobody([&] { return NumberOf(files.TryRemoveFolder(At(u"closed"_s))) == refused; }));
    EXPECT_TRUE(
        HoldsAsNobody([&] { return NumberThrownBy([&] { files.List(At(u"closed"_s)); }) == refused; }));
    EXPECT_TRUE(
        HoldsAsNobody([&] { return NumberThrownBy([&] { files.RemoveFile(At(u"secret"_s)); }) == refused; }));
    EXPECT_TRUE(HoldsAsNobody(
        [&] { return NumberThrownBy([&] { files.Open(At(u"secret"_s), OpenFor::Reading); }) == refused; }));
    EXPECT_TRUE(HoldsAsNobody(
        [&] { return NumberThrownBy([&] { files.Rename(At(u"secret"_s), At(u"x"_s)); }) == refused; }));
    EXPECT_TRUE(HoldsAsNobody(
        [&] { return NumberThrownBy([&] { ReplaceContents(files, At(u"secret"_s), "x"); }) == refused; }));
    EXPECT_TRUE(HoldsAsNobody(
        [&] { return NumberThrownBy([&] { files.SetReadOnly(At(u"secret"_s), true); }) == refused; }));
    EXPECT_TRUE(HoldsAsNobody([&] { return !files.Status(At(u"closed/f"_s), Links::Keep); }));
    EXPECT_TRUE(HoldsAsNobody([&] { return files.Status(At(u"secret"_s), Links::Keep).has_value(); }));
}

TEST_F(PosixFileSystemTest, SortsThousandsOfNames)
{
    // Links to nowhere: the cheapest entries to make.
    const Descriptor place(open(folder.Native("").constData(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    constexpr int count = 20'000;
    for (int number = 0; number < count; ++number)
        ASSERT_EQ(symlinkat("x", place.Number(), QByteArray::number(number).constData()), 0);
    const QList<FolderEntry> entries = files.List(folder.Path());
    ASSERT_EQ(entries.size(), count);
    EXPECT_TRUE(std::is_sorted(entries.begin(), entries.end(),
                               [](const auto &one, const auto &other) { return one.name < other.name; }));
}

} // namespace
