// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "widgets/looks/Look.h"

#include "widgets/SystemColours.h"

namespace tressel {

QColor FaceToDraw::System(SystemColour colour) const
{
    return ColourOf(colour, palette);
}

QRegion Look::Shape(QSize) const
{
    return {};
}

const Look *LookOf(ButtonStyle style)
{
    switch (style) {
    case ButtonStyle::Classic:
        return &ClassicLook();
    case ButtonStyle::HotTrack:
        return &HotTrackLook();
    case ButtonStyle::Flat:
        return &FlatLook();
    case ButtonStyle::DoubleLine:
        return &DoubleLineLook();
    case ButtonStyle::Highlight:
        return &HighlightLook();
    case ButtonStyle::BlueRounded:
        return &BlueRoundedLook();
    case ButtonStyle::SystemTheme:
        return &SystemThemeLook();
    case ButtonStyle::Plastik:
        return &PlastikLook();
    case ButtonStyle::Mandrake:
        return &MandrakeLook();
    case ButtonStyle::Keramik:
        return &KeramikLook();
    case ButtonStyle::Pill:
        return &PillLook();
    }
    return nullptr;
}

QColor PlainFace(const FaceToDraw &face)
{
    if (!face.custom)
        return face.System(SystemColour::ButtonFace);
    return face.state == LookState::Normal ? face.back : face.highlight;
}

QRegion ClippedShape(QSize size)
{
    const int w = size.width();
    const int h = size.height();
    return QRegion(
        QPolygon({{0, 1}, {1, 0}, {w - 1, 0}, {w, 1}, {w, h - 2}, {w - 2, h}, {2, h}, {0, h - 2}}));
}

QRegion OctagonShape(QSize size)
{
    const int w = size.width();
    const int h = size.height();
    return QRegion(
        QPolygon({{0, 2}, {2, 0}, {w - 3, 0}, {w, 3}, {w, h - 3}, {w - 3, h}, {4, h}, {0, h - 4}}));
}

} // namespace tressel
