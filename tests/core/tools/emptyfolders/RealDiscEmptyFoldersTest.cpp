// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// The page on the real disc. After every removal the whole tree is counted: nothing but listed empty folders
// has gone.

#include "machine/posix/PosixFileSystem.h"
#include "support/AsNobody.h"
#include "support/Census.h"
#include "support/MemoryMachine.h"
#include "support/OwnMounts.h"
#include "support/TemporaryFolder.h"
#include "support/Text.h"
#include "support/ToolBench.h"
#include "tools/emptyfolders/EmptyFoldersPage.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace tressel;
using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

namespace {

class RealDiscEmptyFolders : public testing::Test {
protected:
    RealDiscEmptyFolders() { MakeFolder("w"); }

    void MakeFolder(const QByteArray &path) const { fs::create_directories(Native(path)); }
    void Put(const QByteArray &path) const
    {
        MakeFolder(path.left(path.lastIndexOf('/')));
        const int file = open(folder.Native(path).constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
        EXPECT_EQ(write(file, "mine", 4), 4);
        close(file);
    }
    void Link(const QByteArray &path, const QByteArray &target) const
    {
        EXPECT_EQ(symlink(target.constData(), folder.Native(path).constData()), 0);
    }
    fs::path Native(const QByteArray &path) const { return folder.Native(path).toStdString(); }
    QString Path(const QString &path) const { return folder.Path() + u'/' + path; }

    void Search(const QString &below = u"w"_s)
    {
        page.DirListRemove.SetPath(Path(below));
        page.btnGBToolbarSearch.UserClicks();
    }
    /// What was found, from the folder of the test on.
    QStringList Found() const
    {
        QStringList found;
        for (const QString &path : page.ListRemove.Items())
            found += path.mid(folder.Path().size() + 1);
        return found;
    }
    void ExpectNothingFound() { machine.dialogs.ExpectBox(u"No empty directories found."_s); }
    void DeleteAll()
    {
        machine.dialogs.ExpectBox(u"Are you sure you want to delete all empty folders"_s, BoxAnswer::Yes);
        page.btnGBToolbarDeleteAll.UserClicks();
    }
    auto Census() const { return CensusOf(folder.Path().toStdString()); }
    QString Status() const { return bench.area.lblStatusLine.Caption(); }

    const TemporaryFolder folder;
    MemoryMachine machine;
    PosixFileSystem files;
    ToolBench bench{machine.With(files)};
    EmptyFoldersPage page{bench.context};
};

TEST_F(RealDiscEmptyFolders, OnlyListedFoldersGo)
{
    for (const char *empty : {"w/a/b/c", "w/d", "w/ blanks ", "w/back\\slash", "w/e/raw\xff"})
        MakeFolder(empty);
    for (const char *file : {"w/e/file", "w/f/.hidden", "w/g/h/file"})
        Put(file);
    Search();
    EXPECT_EQ(Found(),
              (QStringList{u"w/ blanks /"_s, u"w/a/b/c/"_s, u"w/back\\slash/"_s, u"w/d/"_s,
                           u"w/e/raw"_s + QChar(0xDCFF) + u'/'}));
    const auto before = Census();
    DeleteAll();
    EXPECT_EQ(Status(), u"Found 0"_s);
    EXPECT_EQ(Gone(before, Census()),
              (std::set<std::string>{"w/ blanks ", "w/a/b/c", "w/back\\slash", "w/d", "w/e/raw\xff"}));
    // The next search finds what has become empty.
    Search();
    EXPECT_EQ(Found(), QStringList{u"w/a/b/"_s});
}

TEST_F(RealDiscEmptyFolders, DelCurrentTakesOneFolderAndNoMore)
{
    for (const char *empty : {"w/a", "w/b", "w/c"})
        MakeFolder(empty);
    Search();
    const auto before = Census();
    page.ListRemove.UserSelects(1);
    machine.dialogs.ExpectBox(u"Are you sure you want to delete "_s + Path(u"w/b/"_s) + u'?', BoxAnswer::Yes);
    page.btnGBToolbarDelDir.UserClicks();
    EXPECT_EQ(Gone(before, Census()), std::set<std::string>{"w/b"});
    EXPECT_EQ(Found(), (QStringList{u"w/a/"_s, u"w/c/"_s}));
}

TEST_F(RealDiscEmptyFolders, LinksAndCirclesAreContentAndNeverWalked)
{
    MakeFolder("w/circle");
    Link("w/circle/up", "..");
    MakeFolder("w/itself");
    Link("w/itself/me", "me");
    MakeFolder("outside/empty");
    MakeFolder("w/away");
    Link("w/away/link", "../../outside");
    Link("w/link", "../outside");
    EXPECT_EQ(mkfifo(folder.Native("w/pipe").constData(), 0600), 0);
    MakeFolder("w/empty");
    Search();
    EXPECT_EQ(Found(), QStringList{u"w/empty/"_s});
    const auto before = Census();
    DeleteAll();
    EXPECT_EQ(Gone(before, Census()), std::set<std::string>{"w/empty"});
}

TEST_F(RealDiscEmptyFolders, ALinkAsTheStartIsSearchedBehind)
{
    MakeFolder("outside/empty");
    Link("start", "outside");
    Search(u"start"_s);
    EXPECT_EQ(Found(), QStringList{u"start/empty/"_s});
    const auto before = Census();
    DeleteAll();
    EXPECT_EQ(Gone(before, Census()), std::set<std::string>{"outside/empty"});
}

TEST_F(RealDiscEmptyFolders, AFolderWithoutReadRightsIsListedAndStopsDeleteAll)
{
    Put("w/b closed/file");
    MakeFolder("w/a");
    MakeFolder("w/c");
    for (const char *path : {"", "w", "w/a", "w/c"})
        fs::permissions(Native(path), fs::perms::all);
    fs::permissions(Native("w/b closed"), fs::perms::none);
    const auto before = Census();
    EXPECT_TRUE(HoldsAsNobody([this] {
        Search();
        if (Found() != QStringList{u"w/a/"_s, u"w/b closed/"_s, u"w/c/"_s})
            return false;
        DeleteAll();
        return Found() == QStringList{u"w/b closed/"_s, u"w/c/"_s} && Status() == u"Found 1"_s
            && page.btnGBToolbarDeleteAll.IsEnabled();
    }));
    EXPECT_EQ(Gone(before, Census()), std::set<std::string>{"w/a"});
    fs::permissions(Native("w/b closed"), fs::perms::all);
}

TEST_F(RealDiscEmptyFolders, AFolderThatHasFilledSinceStaysWithItsContents)
{
    for (const char *empty : {"w/a", "w/b", "w/c"})
        MakeFolder(empty);
    Search();
    Put("w/b/new");
    const auto before = Census();
    DeleteAll();
    EXPECT_EQ(Gone(before, Census()), std::set<std::string>{"w/a"});
    EXPECT_EQ(Found(), (QStringList{u"w/b/"_s, u"w/c/"_s}));
}

TEST_F(RealDiscEmptyFolders, OneThatAnotherHasRemovedStopsDeleteAll)
{
    for (const char *empty : {"w/a", "w/b", "w/c"})
        MakeFolder(empty);
    Search();
    machine.events.At(2, [&] { fs::remove(Native("w/b")); });
    const auto before = Census();
    DeleteAll();
    EXPECT_EQ(Gone(before, Census()), (std::set<std::string>{"w/a", "w/b"}));
    EXPECT_EQ(Found(), (QStringList{u"w/b/"_s, u"w/c/"_s}));
}

TEST_F(RealDiscEmptyFolders, ALinkThatIsPutInAFoldersPlaceIsNotFollowed)
{
    MakeFolder("w/a/b");
    MakeFolder("outside/b");
    Search();
    EXPECT_EQ(Found(), QStringList{u"w/a/b/"_s});
    fs::rename(Native("w/a"), Native("moved"));
    Link("w/a", "../outside");
    const auto before = Census();
    DeleteAll();
    EXPECT_EQ(Gone(before, Census()), std::set<std::string>{});
    EXPECT_EQ(Found(), QStringList{u"w/a/b/"_s});
}

TEST_F(RealDiscEmptyFolders, TwoThousandLevelsAreWalkedToTheirEnd)
{
    constexpr int levels = 2000;
    QByteArray deepest = "w";
    for (int level = 0; level < levels; ++level) {
        deepest += "/x";
        ASSERT_EQ(mkdir(folder.Native(deepest).constData(), 0700), 0) << level;
    }
    Search();
    EXPECT_EQ(Found(), QStringList{QString::fromLatin1(deepest) + u'/'});
    const auto before = Census();
    DeleteAll();
    EXPECT_EQ(Gone(before, Census()), std::set<std::string>{deepest.toStdString()});
}

TEST_F(RealDiscEmptyFolders, FortyThousandAreFoundAndCountedInSixteenBits)
{
    constexpr int count = 40000;
    constexpr int most = 32767;
    for (int number = 0; number < count; ++number)
        ASSERT_EQ(mkdir(folder.Native("w/" + QByteArray::number(number)).constData(), 0700), 0);
    Put("w/file");
    Search();
    EXPECT_EQ(Status(), u"Found 40000"_s);
    QList<int> fatal;
    bench.form.SetFatalHandler([&](const Failure &failure) { fatal += failure.Number(); });
    machine.clipboard.SetText(u"before"_s);
    page.btnGBToolbarCopy.UserClicks();
    EXPECT_EQ(fatal, QList<int>{6});
    EXPECT_EQ(machine.clipboard.Text(), u"before"_s);
    EXPECT_EQ(Status(), u"Total Directory Copy to clipboard is:  32768"_s);
    DeleteAll();
    // The count of the removed ends the run without a word.
    EXPECT_EQ(Status(), u"Found "_s + QString::number(most));
    EXPECT_EQ(page.ListRemove.ListCount(), count - most - 1);
    EXPECT_EQ(Census().size(), static_cast<size_t>(count - most - 1 + 2));
}

TEST_F(RealDiscEmptyFolders, StopAtEachPumpKeepsWhatWasFoundAndTouchesNothing)
{
    for (const char *empty : {"w/a/b", "w/c", "w/d/e/f"})
        MakeFolder(empty);
    Put("w/d/file");
    Link("w/link", "d");
    Search();
    const QStringList all = Found();
    EXPECT_EQ(all, (QStringList{u"w/a/b/"_s, u"w/c/"_s, u"w/d/e/f/"_s}));
    const auto before = Census();
    const int calls = machine.events.Calls();
    // A folder each, an entry each, and a find each.
    EXPECT_EQ(calls, 7 + 8 + 3);
    for (int call = 1; call <= calls; ++call) {
        QStringList atStop;
        machine.events.At(call, [&] {
            EXPECT_EQ(page.btnGBToolbarSearch.Caption(), u"Stop"_s);
            page.btnGBToolbarSearch.UserClicks();
            atStop = Found();
            EXPECT_EQ(Status(), u"Found "_s + QString::number(atStop.size()));
            if (atStop.isEmpty())
                ExpectNothingFound();
        });
        Search();
        EXPECT_EQ(Found(), atStop) << call;
        EXPECT_EQ(Found(), all.first(atStop.size())) << call;
        EXPECT_EQ(page.btnGBToolbarSearch.Caption(), u"Find Dir"_s);
        EXPECT_EQ(Status(),
                  atStop.isEmpty() ? u"I'm Finished"_s : u"Found "_s + QString::number(atStop.size()));
        EXPECT_EQ(page.DirListRemove.Path(), Path(u"w"_s));
    }
    EXPECT_EQ(Census(), before);
}

TEST_F(RealDiscEmptyFolders, StopAmongThousandsOfFoldersEndsTheWalkThere)
{
    constexpr int count = 4000;
    constexpr int foundBefore = 1234;
    for (int number = 0; number < count; ++number)
        MakeFolder("w/" + QByteArray::number(10000 + number) + "/x");
    int callsAfter = 0;
    machine.events.When([this] { return page.ListRemove.ListCount() == foundBefore; },
                        [&] {
                            page.btnGBToolbarSearch.UserClicks();
                            callsAfter = -machine.events.Calls();
                        });
    Search();
    callsAfter += machine.events.Calls();
    EXPECT_EQ(callsAfter, 0);
    EXPECT_EQ(page.ListRemove.ListCount(), foundBefore);
    EXPECT_EQ(Found().last(), u"w/%1/x/"_s.arg(10000 + foundBefore - 1));
    EXPECT_EQ(Status(), u"Found 1234"_s);
    EXPECT_EQ(page.btnGBToolbarSearch.Caption(), u"Find Dir"_s);
    EXPECT_TRUE(page.btnGBToolbarDeleteAll.IsEnabled());
    EXPECT_EQ(Census().size(), static_cast<size_t>(2 * count + 1));
}

TEST_F(RealDiscEmptyFolders, WhatIsMountedBelowIsListedAndStays)
{
    MakeFolder("w/a");
    MakeFolder("w/b mounted");
    const auto holds = HoldsAmongOwnMounts([this] {
        if (!MountMemory(folder.Native("w/b mounted"), 1 << 20))
            return false;
        Search();
        if (Found() != QStringList{u"w/a/"_s, u"w/b mounted/"_s})
            return false;
        DeleteAll();
        return Found() == QStringList{u"w/b mounted/"_s} && Census().contains("w/b mounted");
    });
    if (!holds)
        GTEST_SKIP() << "This system lets nobody have mounts of their own.";
    EXPECT_TRUE(*holds);
}

} // namespace
