// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "widgets/PictureImages.h"
#include "widgets/SideBarLayout.h"
#include "widgets/SideBarLook.h"
#include "widgets/SideBarView.h"

#include <QIcon>

#include <functional>

class QPainter;

namespace tressel {

/// Gives the icon of an image number in the colours that its ground asks for.
using IconProvider = std::function<QIcon(int image, const PictureColours &colours)>;

/// What the mouse and the keyboard are at.
struct SideBarTouch {
    SideBarPart hover;
    SideBarPart pressed;
    bool focus = false;
};

/// Draws a side bar, but for the page.
class SideBarPainter {
public:
    SideBarPainter(QPainter &painter, const SideBarView &view, const SideBarLayout &layout,
                   const SideBarLook &look, const SideBarTouch &touch, const IconProvider &icons);

    void Paint(const QSize &size, const QColor &pageGround);

private:
    void PaintHeader();
    void PaintMenuButton();
    void PaintGrip();
    void PaintBar();
    void PaintRow(int number);
    void PaintCell(int number);
    void PaintFocus();
    void PaintChevron(const QRect &rect, bool up, bool active, const QColor &ground);
    void PaintText(const QRect &rect, const QString &text, const QColor &colour);
    /// The icon in the middle of the rectangle, which has that ground; false if there is none.
    bool PaintIcon(const QRect &rect, const SideBarEntryView &entry, const QColor &ground);
    QColor EntryGround(int number, const QColor &rest) const;
    QColor ButtonGround(SideBarPart::Kind kind, const QColor &rest) const;
    /// A piece of the given width at the leading edge, or at the trailing one.
    QRect Leading(const QRect &rect, int width) const;
    QRect Trailing(const QRect &rect, int width) const;

    QPainter &painter;
    const SideBarView &view;
    const SideBarLayout &layout;
    const SideBarLook &look;
    const SideBarTouch &touch;
    const IconProvider &icons;
};

} // namespace tressel
