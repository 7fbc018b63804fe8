// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// Replaced files on the real disc: their rights, and what a disc or a folder refuses.

#include "machine/WholeFile.h"
#include "machine/posix/PosixFileSystem.h"
#include "support/AsNobody.h"
#include "support/Failures.h"
#include "support/FullDisc.h"
#include "support/TemporaryFolder.h"
#include "support/Text.h"

#include <array>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

constexpr const char *listName = "system.posix_acl_access";

/// An access list as the system stores it: user 65534 may read and write, the group nothing, mask rw.
const QByteArray listForNobody("\2\0\0\0"
                               "\1\0\6\0\377\377\377\377"
                               "\2\0\6\0\376\377\0\0"
                               "\4\0\0\0\377\377\377\377"
                               "\20\0\6\0\377\377\377\377"
                               "\40\0\0\0\377\377\377\377",
                               44);

class PosixReplaceTest : public testing::Test {
protected:
    QString At(const QString &name) { return folder.Path() + u'/' + name; }
    QByteArray Native(const QByteArray &name) { return folder.Native(name); }
    void Put(const QString &name, const QByteArray &bytes, mode_t mode)
    {
        files.Open(At(name), OpenFor::Creating)->Write(bytes);
        ASSERT_EQ(chmod(Native(name.toUtf8()).constData(), mode), 0);
    }
    QByteArray Bytes(const QString &name) { return files.Open(At(name), OpenFor::Reading)->Read(1 << 20); }
    struct stat StatusOf(const QByteArray &name)
    {
        struct stat status = {};
        EXPECT_EQ(stat(Native(name).constData(), &status), 0) << name.constData();
        return status;
    }
    mode_t ModeOf(const QByteArray &name) { return StatusOf(name).st_mode & 07777; }
    std::optional<FailureNumber> ReplaceFails(const QString &name, const QByteArray &bytes)
    {
        return NumberThrownBy([&] { ReplaceContents(files, At(name), bytes); });
    }
    int Count() { return static_cast<int>(files.List(folder.Path()).size()); }
    /// A folder that takes no new file and lets none go, unless one is root.
    void CloseFolder() { ASSERT_EQ(chmod(Native("").constData(), 0555), 0); }

    TemporaryFolder folder;
    PosixFileSystem files;
};

TEST_F(PosixReplaceTest, NothingIsSeenOfItBeforeItIsWhole)
{
    const int nameless = open(Native("").constData(), O_TMPFILE | O_WRONLY | O_CLOEXEC, 0600);
    if (nameless < 0)
        GTEST_SKIP() << "no files without a name here";
    close(nameless);
    Put(u"f"_s, "old", 0600);
    const auto over = files.Replace(At(u"f"_s), IfThere::Replace);
    const auto beside = files.Replace(At(u"g"_s), IfThere::Refuse);
    over->Write("new");
    beside->Write("new too");
    EXPECT_EQ(Count(), 1);
    over->Commit();
    beside->Commit();
    EXPECT_EQ(Count(), 2);
    EXPECT_EQ(Bytes(u"f"_s), "new");
    EXPECT_EQ(Bytes(u"g"_s), "new too");
}

TEST_F(PosixReplaceTest, KeepsOwnerGroupAndMode)
{
    Put(u"f"_s, "old", 0640);
    if (IsRoot()) {
        ASSERT_EQ(chown(Native("f").constData(), 1234, 4321), 0);
    }
    ReplaceContents(files, At(u"f"_s), "new");
    EXPECT_EQ(ModeOf("f"), 0640U);
    if (IsRoot()) {
        EXPECT_EQ(StatusOf("f").st_uid, 1234U);
        EXPECT_EQ(StatusOf("f").st_gid, 4321U);
    }
    EXPECT_EQ(Count(), 1);
}

TEST_F(PosixReplaceTest, KeepsAnAccessList)
{
    Put(u"f"_s, "old", 0600);
    const QByteArray name = Native("f");
    if (setxattr(name.constData(), listName, listForNobody.constData(),
                 static_cast<size_t>(listForNobody.size()), 0)
        != 0)
        GTEST_SKIP() << "no access lists here";
    const ino_t before = StatusOf("f").st_ino;
    ReplaceContents(files, At(u"f"_s), "new");
    std::array<char, 100> list{};
    const ssize_t length = getxattr(name.constData(), listName, list.data(), list.size());
    EXPECT_EQ(QByteArray(list.data(), length), listForNobody);
    EXPECT_EQ(ModeOf("f"), 0660U);
    EXPECT_NE(StatusOf("f").st_ino, before);
}

TEST_F(PosixReplaceTest, TakesNoListOfTheFolders)
{
    Put(u"f"_s, "old", 0640);
    if (setxattr(Native("").constData(), "system.posix_acl_default", listForNobody.constData(),
                 static_cast<size_t>(listForNobody.size()), 0)
        != 0)
        GTEST_SKIP() << "no access lists here";
    ReplaceContents(files, At(u"f"_s), "new");
    EXPECT_EQ(getxattr(Native("f").constData(), listName, nullptr, 0), -1);
    EXPECT_EQ(ModeOf("f"), 0640U);
}

TEST_F(PosixReplaceTest, NobodyRunsNewContentsAsAnother)
{
    for (const QString &name : {u"f"_s, u"g"_s})
        Put(name, "old", 06755);
    ASSERT_EQ(link(Native("g").constData(), Native("h").constData()), 0);
    for (const QString &name : {u"f"_s, u"g"_s}) {
        ReplaceContents(files, At(name), "new");
        EXPECT_EQ(ModeOf(name.toUtf8()), 0755U);
    }
}

TEST_F(PosixReplaceTest, AFileOfSeveralNamesKeepsThem)
{
    Put(u"f"_s, "a long old text", 0644);
    ASSERT_EQ(link(Native("f").constData(), Native("g").constData()), 0);
    ReplaceContents(files, At(u"f"_s), "new");
    EXPECT_EQ(Bytes(u"g"_s), "new");
    EXPECT_EQ(StatusOf("f").st_nlink, 2U);
    ReplaceContents(files, At(u"g"_s), "longer than all before");
    EXPECT_EQ(Bytes(u"f"_s), "longer than all before");
    EXPECT_EQ(Count(), 2);
}

TEST_F(PosixReplaceTest, AFullDiscLeavesTheOldContentsOnEveryRoad)
{
    Put(u"f"_s, "old", 0644);
    Put(u"g"_s, "old too", 0644);
    ASSERT_EQ(link(Native("g").constData(), Native("h").constData()), 0);
    {
        const FullDisc disc(4096);
        for (const QString &name : {u"f"_s, u"g"_s, u"new"_s})
            EXPECT_EQ(ReplaceFails(name, QByteArray(10'000, 'x')), FailureNumber::DiskFull);
    }
    EXPECT_EQ(Bytes(u"f"_s), "old");
    EXPECT_EQ(Bytes(u"g"_s), "old too");
    EXPECT_EQ(Count(), 3);
}

TEST_F(PosixReplaceTest, AFolderThatTakesNoFileHasItsFileChangedInPlace)
{
    if (!IsRoot())
        GTEST_SKIP() << "needs root, to give it up";
    Put(u"f"_s, "a long old text", 0666);
    CloseFolder();
    EXPECT_TRUE(HoldsAsNobody([&] {
        ReplaceContents(files, At(u"f"_s), "new");
        return Bytes(u"f"_s) == "new";
    }));
    EXPECT_EQ(ModeOf("f"), 0666U);
    EXPECT_EQ(StatusOf("f").st_uid, 0U);
    // The old text is put back where the new one finds no room in the place of it.
    EXPECT_TRUE(HoldsAsNobody([&] {
        const FullDisc disc(4096);
        return ReplaceFails(u"f"_s, QByteArray(10'000, 'x')) == FailureNumber::DiskFull;
    }));
    EXPECT_EQ(Bytes(u"f"_s), "new");
    EXPECT_TRUE(
        HoldsAsNobody([&] { return ReplaceFails(u"g"_s, "x") == FailureNumber::PathFileAccessError; }));
    EXPECT_EQ(Count(), 1);
}

TEST_F(PosixReplaceTest, AFileOfAnotherInAStickyFolderIsSavedInPlace)
{
    if (!IsRoot())
        GTEST_SKIP() << "needs root, to give it up";
    Put(u"f"_s, "old", 0666);
    ASSERT_EQ(chmod(Native("").constData(), 01777), 0);
    EXPECT_TRUE(HoldsAsNobody([&] { return !ReplaceFails(u"f"_s, "new"); }));
    EXPECT_EQ(Bytes(u"f"_s), "new");
    EXPECT_EQ(StatusOf("f").st_uid, 0U);
    EXPECT_EQ(Count(), 1);
}

TEST_F(PosixReplaceTest, AGroupThatCantBeGivenKeepsItsFile)
{
    if (!IsRoot())
        GTEST_SKIP() << "needs root, to give it up";
    Put(u"f"_s, "old", 0660);
    ASSERT_EQ(chmod(Native("").constData(), 0777), 0);
    ASSERT_EQ(chown(Native("f").constData(), 65534, 4321), 0);
    EXPECT_TRUE(HoldsAsNobody([&] { return !ReplaceFails(u"f"_s, "new"); }));
    EXPECT_EQ(Bytes(u"f"_s), "new");
    EXPECT_EQ(StatusOf("f").st_gid, 4321U);
    EXPECT_EQ(ModeOf("f"), 0660U);
    // One that can't be read can't be held: it gets new rights, and others none.
    ASSERT_EQ(chmod(Native("f").constData(), 0220), 0);
    EXPECT_TRUE(HoldsAsNobody([&] { return !ReplaceFails(u"f"_s, "newer"); }));
    EXPECT_EQ(Bytes(u"f"_s), "newer");
    EXPECT_EQ(ModeOf("f"), 0200U);
}

TEST_F(PosixReplaceTest, TooManyOpenFilesIsAFailure)
{
    Put(u"f"_s, "old", 0644);
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &before), 0);
    for (int more = 0; more < 3; ++more) {
        // The first number that is free, and none, one or two behind it.
        const int next = dup(0);
        ASSERT_GE(next, 0);
        close(next);
        const rlimit few{static_cast<rlim_t>(next + more), before.rlim_max};
        ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &few), 0);
        const auto number = ReplaceFails(u"f"_s, "new");
        setrlimit(RLIMIT_NOFILE, &before);
        EXPECT_EQ(number, FailureNumber::PathFileAccessError) << more;
        EXPECT_EQ(Bytes(u"f"_s), "old");
    }
    EXPECT_EQ(ReplaceFails(u"f"_s, "new"), std::nullopt);
}

TEST_F(PosixReplaceTest, ALinkThatTheSystemKeepsOthersFromIsNotFollowed)
{
    if (!IsRoot())
        GTEST_SKIP() << "needs root, to give it up";
    QByteArray protects(1, '0');
    const int setting = open("/proc/sys/fs/protected_symlinks", O_RDONLY | O_CLOEXEC);
    if (setting < 0 || read(setting, protects.data(), 1) != 1 || protects != "1")
        GTEST_SKIP() << "the system doesn't protect from links";
    close(setting);
    ASSERT_EQ(chmod(Native("").constData(), 01777), 0);
    Put(u"victim"_s, "precious", 0666);
    ASSERT_EQ(chown(Native("victim").constData(), 65534, 65534), 0);
    ASSERT_EQ(symlink("victim", Native("list").constData()), 0);
    ASSERT_EQ(lchown(Native("list").constData(), 1234, 1234), 0);
    EXPECT_TRUE(
        HoldsAsNobody([&] { return ReplaceFails(u"list"_s, "x") == FailureNumber::PathFileAccessError; }));
    EXPECT_EQ(Bytes(u"victim"_s), "precious");
}

TEST_F(PosixReplaceTest, TakesTheLongestNames)
{
    const QString longest(255, u'x');
    ReplaceContents(files, At(longest), "new");
    ReplaceContents(files, At(longest), "newer");
    EXPECT_EQ(Bytes(longest), "newer");
    EXPECT_EQ(Count(), 1);
}

TEST_F(PosixReplaceTest, AFolderThatCantBeReadIsNoHindrance)
{
    if (!IsRoot())
        GTEST_SKIP() << "needs root, to give it up";
    Put(u"f"_s, "old", 0666);
    ASSERT_EQ(chown(Native("f").constData(), 65534, 65534), 0);
    ASSERT_EQ(chmod(Native("").constData(), 0333), 0);
    EXPECT_TRUE(HoldsAsNobody([&] { return !ReplaceFails(u"f"_s, "new"); }));
    EXPECT_EQ(Bytes(u"f"_s), "new");
}

} // namespace
