// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// Held folders on the real disc, while another program changes what is there.

#include "language/FolderPaths.h"
#include "machine/posix/OpenBeneath.h"
#include "machine/posix/PosixFileSystem.h"
#include "support/Failures.h"
#include "support/TemporaryFolder.h"
#include "support/Text.h"

#include <cerrno>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

class HeldFoldersTest : public testing::Test {
protected:
    QString At(const QString &name) { return folder.Path() + u'/' + name; }
    QByteArray Native(const QByteArray &name) { return folder.Native(name); }
    void MakeFolders(const QList<QByteArray> &names)
    {
        for (const QByteArray &name : names)
            ASSERT_EQ(mkdir(Native(name).constData(), 0755), 0) << name.constData();
    }
    void PutLink(const QByteArray &name, const QByteArray &target)
    {
        ASSERT_EQ(symlink(Native(target).constData(), Native(name).constData()), 0);
    }
    bool IsThere(const QByteArray &name) { return access(Native(name).constData(), F_OK) == 0; }

    TemporaryFolder folder;
    PosixFileSystem files;
};

TEST_F(HeldFoldersTest, AFolderThatIsExchangedIsStillTheOneThatWasMet)
{
    MakeFolders({"named", "victim"});
    const auto hold = files.Hold(At(u"named"_s));
    ASSERT_FALSE(files.TryMakeFolder(At(u"named/first"_s)));
    ASSERT_EQ(rename(Native("named").constData(), Native("moved").constData()), 0);
    PutLink("named", "victim");
    ASSERT_FALSE(files.TryMakeFolder(At(u"named/second"_s)));
    EXPECT_TRUE(IsThere("moved/second"));
    EXPECT_FALSE(IsThere("victim/second"));
    EXPECT_EQ(files.List(At(u"named/first"_s)).size(), 0);
}

TEST_F(HeldFoldersTest, ASeriesIsNeitherMadeNorRemovedThroughAPlantedLink)
{
    MakeFolders({"in", "victim", "victim/Sub"});
    PutLink("in/Disk1", "victim");
    const auto hold = files.Hold(At(u"in"_s));
    RemoveFolderPath(files, At(u"in/Disk1/Sub"_s));
    EXPECT_TRUE(IsThere("victim/Sub"));
    MakeFolderPath(files, At(u"in/Disk1/New"_s));
    EXPECT_FALSE(IsThere("victim/New"));
}

TEST_F(HeldFoldersTest, SmallerStepsKeepToTheSameRules)
{
    MakeFolders({"a", "a/b", "a/b/c", "out"});
    PutLink("a/link", "out");
    ASSERT_EQ(close(open(Native("a/file").constData(), O_CREAT | O_WRONLY | O_CLOEXEC, 0600)), 0);
    const Descriptor root(open(Native("a").constData(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    using Way = Descriptor (*)(int, const char *);
    for (const Way way : {Way(OpenBeneath), Way(OpenLevelByLevel)}) {
        const auto errorOf = [&](const char *path) { return way(root.Number(), path).IsOpen() ? 0 : errno; };
        EXPECT_EQ(errorOf("b/c"), 0);
        EXPECT_EQ(errorOf("b//c/"), 0);
        EXPECT_EQ(errorOf("link"), ELOOP);
        EXPECT_EQ(errorOf("link/x"), ELOOP);
        EXPECT_EQ(errorOf("file"), ENOTDIR);
        EXPECT_EQ(errorOf("file/x"), ENOTDIR);
        EXPECT_EQ(errorOf("none"), ENOENT);
        EXPECT_EQ(errorOf(".."), EXDEV);
        const Descriptor found = way(root.Number(), "b/c");
        struct stat one = {};
        struct stat other = {};
        ASSERT_EQ(fstat(found.Number(), &one), 0);
        ASSERT_EQ(stat(Native("a/b/c").constData(), &other), 0);
        EXPECT_EQ(one.st_ino, other.st_ino);
    }
}

TEST_F(HeldFoldersTest, GoesAsDeepAsThereAreFolders)
{
    constexpr int levels = 400;
    const auto hold = files.Hold(folder.Path());
    QString path = folder.Path();
    for (int level = 0; level < levels; ++level) {
        path += u"/level of a deep tree"_s;
        ASSERT_EQ(NumberOf(files.TryMakeFolder(path)), std::nullopt) << level;
    }
    files.Open(path + u"/f"_s, OpenFor::Creating)->Write("deep");
    ASSERT_EQ(files.List(path).size(), 1);
    files.RemoveFile(path + u"/f"_s);
    for (int level = 0; level < levels; ++level) {
        ASSERT_EQ(NumberOf(files.TryRemoveFolder(path)), std::nullopt) << level;
        path.truncate(path.lastIndexOf(u'/'));
    }
}

TEST_F(HeldFoldersTest, AnOpenFolderIsLeftToNoProgramAndClosedWithTheHold)
{
    const auto openOnes = [] {
        int count = 0;
        for (int number = 0; number < 256; ++number)
            count += fcntl(number, F_GETFD) >= 0 ? 1 : 0;
        return count;
    };
    const int before = openOnes();
    {
        const auto hold = files.Hold(folder.Path());
        ASSERT_FALSE(files.TryMakeFolder(At(u"a"_s)));
        ASSERT_FALSE(files.TryMakeFolder(At(u"a/b"_s)));
        EXPECT_EQ(openOnes(), before + 1);
    }
    EXPECT_EQ(openOnes(), before);
}

} // namespace
