// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "forms/MainForm.h"

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

/// An entry of the side bar: what it says, and the number of the page that it opens.
struct Entry {
    QStringView caption;
    std::size_t page;
};

constexpr std::array entries{
    Entry{u"Browse Files ", 0},          Entry{u"Get Text, File List, Safe Erase", 6},
    Entry{u"Make Numbered Folders ", 2}, Entry{u"File Splitter ", 7},
    Entry{u"Load from Database ", 4},    Entry{u"Empty Dir Remover ", 5},
    Entry{u"Filerename Utility ", 1},
};

constexpr int shownEntries = 11;

/// The number of the entry that was open last, the first if that can't be read.
std::int32_t LastOpened(const Settings &settings)
{
    try {
        return settings.ReadInt32(keys::IndxBar);
    } catch (const Failure &) {
        return 1;
    }
}

} // namespace

void MainForm::TieSideBar()
{
    for (Frame *page : FrameXPMenu) {
        page->SetBackColor(0xF5F5F5);
        // The side bar shows the page of the entry that is open.
        page->SetVisible(false);
    }
    EyeDropper1.ItemSelected.Handle([this](const SideBarItem &item) { EyeDropper1_ItemSelected(item); });
    EyeDropper1.StripResize.Handle([this] { LayoutPanes(); });
    EyeDropper1.PageResize.Handle([this] { LayoutPanes(); });
}

void MainForm::LoadItems()
{
    EyeDropper1.SetImageList(u"ImageList1"_s);
    EyeDropper1.SetRedraw(false);
    EyeDropper1.Items().Clear();
    const int opened = LastOpened(settings);
    for (int number = 1; const Entry &entry : entries) {
        SideBarItem &item =
            EyeDropper1.Items().Add(u"Item: "_s + QString::number(number), entry.caption.toString());
        item.SetPage(*FrameXPMenu[entry.page]);
        item.SetImage(number);
        if (number == opened)
            item.SetSelected(true);
        ++number;
    }
    EyeDropper1.SetVisibleItems(shownEntries);
    EyeDropper1.SetRedraw(true);
}

void MainForm::EyeDropper1_ItemSelected(const SideBarItem &item)
{
    settings.Write(keys::IndxBar, item.Index());
    LayoutPanes();
}

} // namespace tressel
