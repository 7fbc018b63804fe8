// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "controls/SideBar.h"

#include "controls/Frame.h"

#include <algorithm>

namespace tressel {

SideBar::SideBar(Form &form, const QString &name)
    : Control(form, name)
{
}

int SideBar::ShownCount() const
{
    return static_cast<int>(Shown().size());
}

int SideBar::Rows() const
{
    const bool isWishedFor = visibleItems <= items.Count();
    return std::min(std::clamp(visibleItems, 0, ShownCount()), isWishedFor ? room : std::min(room, easyRoom));
}

QList<int> SideBar::RestEntries() const
{
    QList<int> rest = Shown();
    rest.remove(first - 1, Rows());
    return rest;
}

void SideBar::SetVisibleItems(int count)
{
    visibleItems = count;
    OnLayoutChanged();
}

void SideBar::SetFirstShown(int position)
{
    first = std::clamp(position, 1, LastFirst());
    NoteLook();
}

void SideBar::SetImageList(const QString &listName)
{
    imageList = listName;
    NoteLook();
}

void SideBar::SetRedraw(bool isOn)
{
    redraw = isOn;
    OnLayoutChanged();
}

void SideBar::SetRightToLeft(bool mirrored)
{
    rightToLeft = mirrored;
    NoteLook();
}

void SideBar::SetTitleFont(const FontChoice &font)
{
    titleFont = font;
    NoteLook();
}

void SideBar::SetTitleColor(ColourNumber colour)
{
    titleFont.colour = colour;
    NoteLook();
}

void SideBar::SetCaptionFont(const FontChoice &font)
{
    captionFont = font;
    NoteLook();
}

void SideBar::SetCaptionColor(ColourNumber colour)
{
    captionFont.colour = colour;
    NoteLook();
}

void SideBar::SetOutlookColors(bool isOn)
{
    outlookColors = isOn;
    NoteLook();
}

void SideBar::SetColors(const SideBarColours &palette)
{
    colours = palette;
    SetOutlookColors(true);
}

void SideBar::SetPageBackColor(ColourNumber colour)
{
    pageBackColor = colour;
    NoteLook();
}

void SideBar::SetShowMenu(bool hasMenu)
{
    showMenu = hasMenu;
    NoteLook();
}

void SideBar::Reset()
{
    imageList.clear();
    rightToLeft = false;
    titleFont = {};
    captionFont = {};
    outlookColors = false;
    colours.reset();
    pageBackColor = lightPage;
    showMenu = false;
    first = 1;
    visibleItems = allRows;
    SetRedraw(true);
}

void SideBar::UserSelects(int number)
{
    if (number < 1 || number > items.Count() || !items[number].IsVisible())
        return;
    UserAct([&] {
        ChangeSelected(&items[number]);
        RaiseOpened();
    });
}

void SideBar::UserFirst()
{
    UserMoves(-ShownCount());
}

void SideBar::UserLast()
{
    UserMoves(ShownCount());
}

void SideBar::UserMoves(int step)
{
    const QList<int> shown = Shown();
    if (shown.isEmpty())
        return;
    const int from = ShownPosition();
    const int last = static_cast<int>(shown.size()) - 1;
    const int to = std::clamp(from + step, 0, last);
    if (to != from)
        MoveTo(shown.at(to));
}

void SideBar::UserCycles(bool forward)
{
    const QList<int> shown = Shown();
    if (shown.size() < 2)
        return;
    const auto count = shown.size();
    const auto to = (ShownPosition() + (forward ? 1 : count - 1)) % count;
    MoveTo(shown.at(to));
}

void SideBar::UserTypes(const QString &text)
{
    const QList<int> shown = Shown();
    for (qsizetype step = 1; step < shown.size(); ++step) {
        const int number = shown.at((ShownPosition() + step) % shown.size());
        if (items[number].Caption().startsWith(text, Qt::CaseInsensitive))
            return MoveTo(number);
    }
}

void SideBar::UserScrolls(int rows)
{
    UserAct([&] { SetFirstShown(first + rows); });
}

void SideBar::UserSetsVisibleItems(int count)
{
    const bool isAll = count >= std::min(ShownCount(), room);
    UserAct([&] { SetVisibleItems(isAll ? items.Count() : std::max(count, 0)); });
}

void SideBar::UserShowsItem(int number, bool isShown)
{
    if (showMenu && number >= 1 && number <= items.Count())
        UserAct([&] { items[number].SetVisible(isShown); });
}

void SideBar::TakeRoom(int rows, int easyRows)
{
    if (room == rows && easyRoom == easyRows)
        return;
    room = rows;
    easyRoom = easyRows;
    Owner().Dispatch([this] { OnLayoutChanged(); });
}

void SideBar::TakePageSize(int width, int height)
{
    if (pageWidth == width && pageHeight == height)
        return;
    pageWidth = width;
    pageHeight = height;
    Owner().Dispatch([this] { PageResize.Raise(); });
}

void SideBar::NoteLook()
{
    if (redraw)
        NoteChanged();
}

void SideBar::OnCleared()
{
    selected = nullptr;
    first = 1;
    OnShownChanged();
}

void SideBar::OnShownChanged()
{
    if (!selected || !selected->IsVisible())
        ChangeSelected(Neighbour());
    OnLayoutChanged();
}

void SideBar::OnLayoutChanged()
{
    first = std::clamp(first, 1, LastFirst());
    NoteLook();
    if (!redraw || toldRows == Rows())
        return;
    toldRows = Rows();
    ScrollToSelected();
    StripResize.Raise();
}

void SideBar::Open(SideBarItem &item)
{
    ChangeSelected(&item);
    ScrollToSelected();
    NoteLook();
}

void SideBar::MoveTo(int number)
{
    UserAct([&] {
        Open(items[number]);
        RaiseOpened();
    });
}

void SideBar::RaiseOpened()
{
    NoteLook();
    ItemSelected.Raise(*selected);
}

void SideBar::ChangeSelected(SideBarItem *item)
{
    if (selected == item)
        return;
    if (selected && selected->Page())
        selected->Page()->SetVisible(false);
    selected = item;
    if (selected && selected->Page())
        selected->Page()->SetVisible(true);
}

void SideBar::ScrollToSelected()
{
    const int position = ShownPosition() + 1;
    if (Rows() > 0 && position > 0)
        first = std::clamp(first, position - Rows() + 1, position);
}

SideBarItem *SideBar::Neighbour() const
{
    const QList<int> shown = Shown();
    if (shown.isEmpty())
        return nullptr;
    const int gone = selected ? selected->Index() : 0;
    const auto next = std::ranges::find_if(shown, [&](int number) { return number > gone; });
    return &items[next != shown.end() ? *next : shown.last()];
}

QList<int> SideBar::Shown() const
{
    QList<int> shown;
    for (int number = 1; number <= items.Count(); ++number) {
        if (items[number].IsVisible())
            shown.append(number);
    }
    return shown;
}

int SideBar::ShownPosition() const
{
    return selected ? static_cast<int>(Shown().indexOf(selected->Index())) : -1;
}

int SideBar::LastFirst() const
{
    return Rows() > 0 ? ShownCount() - Rows() + 1 : 1;
}

} // namespace tressel
