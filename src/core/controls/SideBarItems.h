// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <memory>
#include <vector>

namespace tressel {

class Frame;
class SideBar;

/// One entry of a side bar: what its row shows, and the page that it opens.
class SideBarItem {
public:
    SideBarItem(const SideBarItem &) = delete;
    SideBarItem &operator=(const SideBarItem &) = delete;

    const QString &Key() const { return key; }
    const QString &Caption() const { return caption; }
    /// Its number in the collection, counted from 1.
    int Index() const { return index; }

    /// Number in the side bar's image list, 0 for none.
    int Image() const { return image; }
    void SetImage(int number);

    bool IsVisible() const { return visible; }
    /// Hiding the open entry opens the next shown one, or the one before where none follows. Showing an
    /// entry where all were hidden opens it. Neither raises ItemSelected.
    void SetVisible(bool isVisible);

    bool IsSelected() const;
    /// True makes it the open entry and raises nothing; a hidden entry can't be opened. False does
    /// nothing: an entry closes when another one opens.
    void SetSelected(bool isSelected);

    /// Null if it hosts none.
    Frame *Page() const { return page; }
    /// Hosts a page. From then on the side bar shows and hides it; a page hosted before gets hidden.
    void SetPage(Frame &hosted);

private:
    friend class SideBarItems;
    SideBarItem(SideBar &owner, QString itemKey, QString itemCaption, int number);

    SideBar &bar;
    QString key;
    QString caption;
    int index;
    int image = 0;
    bool visible = true;
    Frame *page = nullptr;
};

/// The entries of a side bar, in their order.
class SideBarItems {
public:
    explicit SideBarItems(SideBar &owner)
        : bar(owner)
    {
    }
    SideBarItems(const SideBarItems &) = delete;
    SideBarItems &operator=(const SideBarItems &) = delete;

    int Count() const { return static_cast<int>(items.size()); }
    /// By number, counted from 1. Fails with 9 outside.
    SideBarItem &operator[](int number) const;
    /// Adds an entry at the end, shown and without image or page. The first one of an empty side bar
    /// opens. Fails with 457 if the key is taken; the empty key never is.
    SideBarItem &Add(const QString &key, const QString &caption);
    /// Takes out all entries and hides their pages; none is open afterwards.
    void Clear();

private:
    SideBar &bar;
    std::vector<std::unique_ptr<SideBarItem>> items;
};

} // namespace tressel
