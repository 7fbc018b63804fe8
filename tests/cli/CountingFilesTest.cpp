// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "CountingFiles.h"

#include "language/FolderPaths.h"
#include "machine/posix/PosixFileSystem.h"
#include "support/MemoryMachine.h"
#include "support/TemporaryFolder.h"
#include "support/Text.h"

#include <QSet>

#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

class Counting : public testing::Test {
protected:
    Counting()
    {
        machine.files.PutFolder(u"C:\\Work"_s);
        counting.StartCounting(u"C:\\Work"_s);
    }
    /// What a run does for one entry.
    void Handle(const QString &entry, const QString &path)
    {
        FolderPathExists(counting, u"C:\\Work\\\\"_s + entry);
        MakeFolderPath(counting, u"C:\\Work\\"_s + path);
    }
    void ExpectCount(int made, int alreadyThere, int failed)
    {
        EXPECT_EQ(counting.Count().made, made);
        EXPECT_EQ(counting.Count().alreadyThere, alreadyThere);
        EXPECT_EQ(counting.Count().failed, failed);
    }

    MemoryMachine machine;
    CountingFiles counting{machine.files};
};

TEST_F(Counting, EveryFolderMadeCounts)
{
    Handle(u"a"_s, u"a"_s);
    Handle(u"b\\c"_s, u"b\\c"_s);
    ExpectCount(3, 0, 0);
    EXPECT_EQ(counting.Count().tried, 2);
}

TEST_F(Counting, EntryThatWasThereCountsAsThatAndItsSuffixAsMade)
{
    machine.files.PutFolder(u"C:\\Work\\a"_s);
    Handle(u"a"_s, u"a (1)"_s);
    ExpectCount(1, 1, 0);
    Handle(u"a"_s, u"a (1)"_s);
    ExpectCount(1, 2, 0);
}

TEST_F(Counting, MendedNameThatWasThereCountsAsThat)
{
    machine.files.PutFolder(u"C:\\Work\\What_"_s);
    Handle(u"What?"_s, u"What_"_s);
    ExpectCount(0, 1, 0);
}

TEST_F(Counting, FolderThatCannotBeMadeFailed)
{
    machine.files.PutFile(u"C:\\Work\\file"_s, "x");
    Handle(u"file"_s, u"file"_s);
    Handle(u"file\\below"_s, u"file\\below"_s);
    ExpectCount(0, 0, 2);
}

TEST(CountingOnDisc, PathsThatAreMadeAtOnceCountAsAnyOther)
{
    const TemporaryFolder folder;
    PosixFileSystem disc;
    CountingFiles counting(disc);
    counting.StartCounting(folder.Path());
    QList<int> made;
    counting.onEntry = [&] { made += counting.Count().made; };
    for (const QString &entry : {u"a"_s, u"b/c"_s, u"a"_s, u"a/d"_s, u"a/"_s + QString(256, u'x')}) {
        FolderPathExists(counting, folder.Path() + u"//"_s + entry);
        MakeFolderPath(counting, folder.Path() + u'/' + entry);
    }
    const CreationCount count = counting.Count();
    EXPECT_EQ(count.made, 4);
    EXPECT_EQ(count.alreadyThere, 1);
    EXPECT_EQ(count.failed, 1);
    EXPECT_EQ(count.tried, 5);
    EXPECT_EQ(QSet<int>(made.begin(), made.end()), (QSet<int>{0, 1, 3, 4}));
}

} // namespace
