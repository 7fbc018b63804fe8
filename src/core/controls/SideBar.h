// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/Colours.h"
#include "controls/Control.h"
#include "controls/SideBarItems.h"
#include "machine/Dialogs.h"

#include <QList>

#include <array>
#include <limits>
#include <optional>

namespace tressel {

/// What each of the eleven colours of a side bar's palette is for, in the order of SetColors.
enum class SideBarColour {
    Header, ///< ground of the band that tells the open entry's caption
    HeaderLine, ///< line below that band, and the grip between page and strip
    Highlight, ///< light line along the upper edge of the header and of the grip
    Border, ///< line around the whole side bar
    Open, ///< ground of the open entry
    OpenMark, ///< mark at the leading edge of the open entry
    Strip, ///< ground of the rows
    Bar, ///< ground of the grip and of the bar of small icons below the rows
    Line, ///< lines between the rows
    Pressed, ///< ground of an entry while the mouse button is down on it
    Hover, ///< ground of an entry under the mouse
};

using SideBarColours = std::array<ColourNumber, 11>;

/// The side bar: a header with the caption of the open entry, its page, and below that the strip of
/// entries.
///
/// Exactly one of the shown entries is open; none only if all are hidden. The control itself shows the
/// page of the open entry and hides those of the others.
///
/// The strip shows entries as rows, as many as VisibleItems asks for and as the face has room for. The
/// rows are a window over the shown entries that can be scrolled; the entries outside of it (Rest) stand
/// as small icons in a bar below.
///
/// Its colours are the desktop's own, or those given by SetColors: OutlookColors chooses between them.
class SideBar : public Control {
public:
    SideBar(Form &form, const QString &name);

    SideBarItems &Items() { return items; }
    const SideBarItems &Items() const { return items; }
    /// The open entry, null if there is none.
    SideBarItem *SelectedItem() const { return selected; }
    /// Entries that aren't hidden.
    int ShownCount() const;

    /// How many entries the strip may show as rows. It reads back as it was written; below 0 it works
    /// as 0 (all entries are small icons), beyond the number of shown entries as that number. A number
    /// beyond that of all entries asks for as many as leave every page whole.
    int VisibleItems() const { return visibleItems; }
    void SetVisibleItems(int count);
    /// How many rows there are now, VisibleItems and the room of the face considered.
    int Rows() const;
    /// The number of the entry in each row, from the top.
    QList<int> RowEntries() const { return Shown().mid(first - 1, Rows()); }
    /// The numbers of the shown entries that no row shows.
    QList<int> RestEntries() const;
    /// Which of the shown entries is in the first row, counted from 1; 1 if there are no rows.
    int FirstShown() const { return first; }
    /// A position outside of what can be scrolled to means the nearest that can.
    void SetFirstShown(int position);
    /// Whether the rows can be scrolled up (towards the first entry) and down.
    bool CanScrollUp() const { return first > 1; }
    bool CanScrollDown() const { return first < LastFirst(); }

    /// The list that the entries' image numbers refer to; empty: the entries have no icons.
    const QString &ImageList() const { return imageList; }
    void SetImageList(const QString &listName);

    bool Redraw() const { return redraw; }
    /// Off: the face keeps what it shows and no layout event comes, until it is on again.
    void SetRedraw(bool isOn);

    bool RightToLeft() const { return rightToLeft; }
    /// True mirrors icons and text.
    void SetRightToLeft(bool mirrored);

    /// Font of the rows; its colour is TitleColor. A family that the desktop doesn't have means the
    /// desktop's own.
    const FontChoice &TitleFont() const { return titleFont; }
    void SetTitleFont(const FontChoice &font);
    ColourNumber TitleColor() const { return titleFont.colour; }
    void SetTitleColor(ColourNumber colour);
    /// Font of the header; its colour is CaptionColor.
    const FontChoice &CaptionFont() const { return captionFont; }
    void SetCaptionFont(const FontChoice &font);
    ColourNumber CaptionColor() const { return captionFont.colour; }
    void SetCaptionColor(ColourNumber colour);

    /// False: the desktop's own colours. True: those of SetColors, or blue ones before its first call.
    bool OutlookColors() const { return outlookColors; }
    void SetOutlookColors(bool isOn);
    /// The palette, nothing before the first SetColors.
    const std::optional<SideBarColours> &Colors() const { return colours; }
    /// Takes a palette over and shows it: OutlookColors becomes true.
    void SetColors(const SideBarColours &palette);
    ColourNumber PageBackColor() const { return pageBackColor; }
    void SetPageBackColor(ColourNumber colour);

    /// Whether the user has a menu to show and hide entries.
    bool ShowMenu() const { return showMenu; }
    void SetShowMenu(bool hasMenu);

    /// Clears all that a former appearance left: images, mirroring, fonts, colours, menu, number of
    /// rows and scrolling are as in a new side bar and redraw is on. The entries stay.
    void Reset();

    Event<SideBarItem &> ItemSelected; ///< the user opened an entry; never raised by the program's doing
    Event<> StripResize; ///< the number of rows changed
    Event<> PageResize; ///< the room of the page changed

    // For faces.

    /// The user clicked an entry; clicking the open one counts too. The strip doesn't scroll, so that
    /// nothing moves below the mouse. Nothing happens for a hidden entry or a number outside.
    void UserSelects(int number);
    /// Opens the shown entry beside the open one and scrolls to it, as all moves by keyboard do. At
    /// the ends nothing happens.
    void UserNext() { UserMoves(1); }
    void UserPrevious() { UserMoves(-1); }
    void UserFirst();
    void UserLast();
    /// Opens the next shown entry, behind the last one the first; backwards the other way round.
    void UserCycles(bool forward);
    /// Opens the next shown entry, round the end, whose caption starts with the text in any case.
    void UserTypes(const QString &text);
    /// Scrolls by rows, down if positive, as far as it goes.
    void UserScrolls(int rows);
    /// The user moved the grip: so many rows. As many as there is room for, or more, means one for
    /// every entry, so that an entry that comes back or a higher window gets its row.
    void UserSetsVisibleItems(int count);
    /// The user's choice in the menu. Nothing happens while ShowMenu is off.
    void UserShowsItem(int number, bool isShown);
    /// How many rows the face has room for, and how many so that every page is seen whole.
    void TakeRoom(int rows, int easyRows);
    /// The room that the face gives to the page, in twips.
    void TakePageSize(int width, int height);

private:
    friend class SideBarItem;
    friend class SideBarItems;

    void NoteLook();
    void OnCleared();
    void OnShownChanged();
    void OnLayoutChanged();
    void Open(SideBarItem &item);
    void UserMoves(int step);
    void MoveTo(int number);
    void RaiseOpened();
    void ChangeSelected(SideBarItem *item);
    void ScrollToSelected();
    SideBarItem *Neighbour() const;
    QList<int> Shown() const;
    int ShownPosition() const;
    int LastFirst() const;

    static constexpr int allRows = std::numeric_limits<int>::max();
    static constexpr ColourNumber lightPage = 0x00F5F5F5;

    SideBarItems items{*this};
    SideBarItem *selected = nullptr;
    int visibleItems = allRows;
    int room = allRows;
    int easyRoom = allRows;
    int toldRows = 0; ///< number of rows at the last StripResize
    int first = 1;
    QString imageList;
    bool redraw = true;
    bool rightToLeft = false;
    FontChoice titleFont;
    FontChoice captionFont;
    bool outlookColors = false;
    std::optional<SideBarColours> colours;
    ColourNumber pageBackColor = lightPage;
    bool showMenu = false;
    int pageWidth = 0;
    int pageHeight = 0;
};

} // namespace tressel
