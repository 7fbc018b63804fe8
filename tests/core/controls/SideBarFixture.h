// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/Frame.h"
#include "controls/SideBar.h"

#include <deque>
#include <gtest/gtest.h>

namespace tressel {

/// A side bar with the seven entries of the program, a page each, and a note of what it raised.
class SideBarTest : public testing::Test {
protected:
    SideBarTest()
    {
        bar.ItemSelected.Handle([this](SideBarItem &item) { opened.append(item.Index()); });
        bar.StripResize.Handle([this] { ++stripResizes; });
        bar.PageResize.Handle([this] { ++pageResizes; });
        for (int number = 1; number <= 7; ++number)
            pages.emplace_back(form, QStringLiteral("page%1").arg(number));
        Fill();
        stripResizes = 0;
        form.TakeChanged();
    }

    void Fill()
    {
        const QStringList captions{
            QStringLiteral("Browse Files "),          QStringLiteral("Get Text, File List, Safe Erase"),
            QStringLiteral("Make Numbered Folders "), QStringLiteral("File Splitter "),
            QStringLiteral("Load from Database "),    QStringLiteral("Empty Dir Remover "),
            QStringLiteral("Filerename Utility ")};
        for (int number = 1; number <= 7; ++number) {
            SideBarItem &item =
                bar.Items().Add(QStringLiteral("Item: %1").arg(number), captions.at(number - 1));
            item.SetPage(pages.at(static_cast<std::size_t>(number - 1)));
            item.SetImage(number);
        }
    }

    /// The number of the open entry, 0 for none.
    int Open() const { return bar.SelectedItem() ? bar.SelectedItem()->Index() : 0; }

    /// The numbers of the pages that show.
    QList<int> ShownPages() const
    {
        QList<int> shown;
        for (int number = 1; number <= 7; ++number) {
            if (pages.at(static_cast<std::size_t>(number - 1)).IsVisible())
                shown.append(number);
        }
        return shown;
    }

    void Hide(const QList<int> &numbers)
    {
        for (const int number : numbers)
            bar.Items()[number].SetVisible(false);
    }

    Form form{QStringLiteral("frmMain")};
    SideBar bar{form, QStringLiteral("EyeDropper1")};
    std::deque<Frame> pages;
    QList<int> opened;
    int stripResizes = 0;
    int pageResizes = 0;
};

} // namespace tressel
