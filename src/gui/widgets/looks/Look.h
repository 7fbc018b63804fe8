// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/IsButton.h"
#include "widgets/looks/Canvas.h"

#include <QRegion>

class QStyle;
class QWidget;

namespace tressel {

/// What a look draws a face from.
struct FaceToDraw {
    LookState state = LookState::Normal;
    bool focused = false;
    /// Whether `back` and `highlight` are the button's own colours. A disabled button has none.
    bool custom = false;
    QColor back; ///< normal: the button's own, or the desktop's button face
    QColor highlight; ///< hovered and pressed: the button's own, or the desktop's highlight
    QPalette palette;
    const QStyle *style = nullptr;
    const QWidget *widget = nullptr; ///< null where there is none

    QColor System(SystemColour colour) const;
};

/// One of the eleven looks: how a face is drawn, its shape, and the room around its icon.
class Look {
public:
    virtual ~Look() = default;

    /// False if it can't be drawn here.
    virtual bool DrawFace(Canvas &canvas, const FaceToDraw &face) const = 0;
    /// From the border to the icon, in pixels.
    virtual int Margin() const { return 4; }
    /// The pixels that belong to the button; none if all do.
    virtual QRegion Shape(QSize size) const;
    /// True where the face's colours are always the same light ones, whatever the desktop's are.
    virtual bool HasLightFace(const FaceToDraw &) const { return false; }
    /// How round its corners are, in pixels of the design.
    virtual qreal CornerRadius() const { return 0; }
    /// True where the face has a ring of its own that tells a focused button from others.
    virtual bool ShowsFocus(const FaceToDraw &) const { return false; }
    /// From the border to the line that marks the focus, clear of the look's frame and rings and of the
    /// caption's box.
    virtual int FocusInset(const FaceToDraw &) const { return 2; }
};

/// Null for a number that is none of the eleven.
const Look *LookOf(ButtonStyle style);

const Look &ClassicLook();
const Look &HotTrackLook();
const Look &FlatLook();
const Look &DoubleLineLook();
const Look &HighlightLook();
const Look &BlueRoundedLook();
const Look &SystemThemeLook();
const Look &PlastikLook();
const Look &MandrakeLook();
const Look &KeramikLook();
const Look &PillLook();

/// The face's colour in the looks 0 to 2: the button's own by state, or the desktop's.
QColor PlainFace(const FaceToDraw &face);
/// One pixel clipped at the upper corners, two at the lower ones.
QRegion ClippedShape(QSize size);
/// An octagon with unequal corners.
QRegion OctagonShape(QSize size);

} // namespace tressel
