// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "MainFormTest.h"

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

TEST_F(MainFormTest, TheSideBarHasItsSevenEntries)
{
    struct {
        QString caption;
        QString page;
    } const expected[] = {
        {u"Browse Files "_s, u"FrameXPMenu(0)"_s},
        {u"Get Text, File List, Safe Erase"_s, u"FrameXPMenu(6)"_s},
        {u"Make Numbered Folders "_s, u"FrameXPMenu(2)"_s},
        {u"File Splitter "_s, u"FrameXPMenu(7)"_s},
        {u"Load from Database "_s, u"FrameXPMenu(4)"_s},
        {u"Empty Dir Remover "_s, u"FrameXPMenu(5)"_s},
        {u"Filerename Utility "_s, u"FrameXPMenu(1)"_s},
    };
    form.LoadItems();
    ASSERT_EQ(form.EyeDropper1.Items().Count(), 7);
    for (int number = 1; const auto &entry : expected) {
        const SideBarItem &item = form.EyeDropper1.Items()[number];
        EXPECT_EQ(item.Key(), u"Item: %1"_s.arg(number));
        EXPECT_EQ(item.Caption(), entry.caption);
        EXPECT_EQ(item.Page()->Name(), entry.page);
        EXPECT_EQ(item.Image(), number);
        ++number;
    }
    EXPECT_EQ(form.EyeDropper1.ImageList(), u"ImageList1"_s);
    EXPECT_EQ(form.EyeDropper1.VisibleItems(), 11);
    EXPECT_TRUE(form.EyeDropper1.Redraw());
}

TEST_F(MainFormTest, LoadingTheEntriesAgainDoesNotDoubleThem)
{
    form.LoadItems();
    form.LoadItems();
    EXPECT_EQ(form.EyeDropper1.Items().Count(), 7);
}

TEST_F(MainFormTest, AFirstRunOpensTheFirstEntry)
{
    form.LoadItems();
    EXPECT_EQ(form.EyeDropper1.SelectedItem()->Index(), 1);
    EXPECT_TRUE(form.browse.page.IsVisible());
}

TEST_F(MainFormTest, TheStoredNumberIsThatOfTheEntry)
{
    settings.Write(keys::IndxBar, 5);
    form.LoadItems();
    EXPECT_EQ(form.EyeDropper1.SelectedItem()->Caption(), u"Load from Database "_s);
    EXPECT_TRUE(form.database.page.IsVisible());
    EXPECT_FALSE(form.emptyFolders.page.IsVisible());
}

TEST_F(MainFormTest, AStoredNumberThatNamesNoEntryLeavesTheSideBarItsOwnChoice)
{
    for (const int number : {0, 8, -1}) {
        settings.Write(keys::IndxBar, number);
        form.LoadItems();
        EXPECT_EQ(form.EyeDropper1.SelectedItem()->Index(), 1) << number;
    }
}

TEST_F(MainFormTest, AStoredTextThatIsNoNumberOpensTheFirstEntry)
{
    settings.Write(keys::IndxBar, 5);
    for (const JournalEntry &entry : machine.journal.Entries()) {
        if (entry.about.endsWith(u"\\IndxBar"))
            machine.hive.Put(SettingsHive::Root::User, entry.about.chopped(8), u"IndxBar"_s, u"five"_s);
    }
    ASSERT_EQ(settings.ReadText(keys::IndxBar), u"five"_s);
    form.LoadItems();
    EXPECT_EQ(form.EyeDropper1.SelectedItem()->Index(), 1);
}

TEST_F(MainFormTest, OpeningAnEntryStoresItsNumberAtOnceAndLaysOutThePanes)
{
    form.Show();
    form.PicStrip.SetLeft(100);
    form.EyeDropper1.UserSelects(4);
    EXPECT_EQ(settings.ReadInt32(keys::IndxBar), 4);
    EXPECT_EQ(form.PicStrip.Left(), 5100);
    EXPECT_TRUE(form.splitter.page.IsVisible());
    EXPECT_FALSE(form.browse.page.IsVisible());
}

TEST_F(MainFormTest, NoEntryReachesTheEmptyPage)
{
    form.Show();
    for (int number = 1; number <= 7; ++number) {
        form.EyeDropper1.UserSelects(number);
        EXPECT_FALSE(form.FrameXPMenu3.IsVisible());
        int shown = 0;
        for (const Frame *page : form.FrameXPMenu)
            shown += page->IsVisible() ? 1 : 0;
        EXPECT_EQ(shown, 1) << number;
    }
}

TEST_F(MainFormTest, TheToolbarDoesTheSameFromEveryPage)
{
    machine.files.PutFile(u"C:\\Work\\a.txt"_s);
    form.Show();
    form.browse.FileList.SetPath(u"C:\\Work"_s);
    session.ListFile = u"C:\\list.txt"_s;
    for (int number = 1; number <= 7; ++number) {
        form.EyeDropper1.UserSelects(number);
        form.area.LstItem.Clear();
        form.btnGBToolbarLoadList.UserClicks();
        EXPECT_EQ(form.area.LstItem.Items(), QStringList{u"a.txt"_s}) << number;
    }
}

} // namespace
