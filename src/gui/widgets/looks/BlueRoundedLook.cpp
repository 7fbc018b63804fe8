// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "widgets/SystemColours.h"
#include "widgets/looks/Look.h"

#include <array>
#include <optional>

namespace tressel {

namespace {

/// A face between a frame with rounded corners and the lines just within it.
struct RoundedColours {
    QColor frame;
    QColor faceTop;
    QColor faceBottom;
    std::array<QColor, 2> top; ///< from the outer line inwards, as those below
    std::array<QColor, 3> bottom;
    std::array<QColor, 2> right;
    std::array<QColor, 2> left;
};

/// The glowing ring of a hovered or focused button: two lines at the top, two at the bottom, and sides that
/// run from one to the other.
struct RingColours {
    std::array<QColor, 2> top;
    std::array<QColor, 2> bottom; ///< from the outer line inwards
};

QColor Rgb(QRgb number)
{
    return QColor::fromRgb(number);
}

/// Disabled, the face is the desktop's own: on a dark desktop a light one would draw the eye.
RoundedColours DisabledColours(const QColor &face)
{
    return {WithContrast(ShiftColor(face, -32), {face}),
            face,
            face,
            {face, face},
            {face, face, face},
            {face, face},
            {face, face}};
}

RoundedColours FixedColours(LookState state)
{
    if (state == LookState::Pressed)
        return {Rgb(0x003C74),
                Rgb(0xE3E2DB),
                Rgb(0xE4E3DC),
                {Rgb(0xD1CCC1), Rgb(0xDAD8CE)},
                {Rgb(0xF2F1EE), Rgb(0xE4E3DC), Rgb(0xE4E3DC)},
                {Rgb(0xE3E2DB), Rgb(0xE4E3DC)},
                {Rgb(0xDAD8CE), Rgb(0xE3E2DB)}};
    return {Rgb(0x003C74),
            Rgb(0xFCFCFB),
            Rgb(0xF0F0EA),
            {Rgb(0xFBFBFA), Rgb(0xFCFCFB)},
            {Rgb(0xD6D0C5), Rgb(0xE4E2DA), Rgb(0xEBEBE6)},
            {Rgb(0xDBD7CD), Rgb(0xF5F4F2)},
            {Rgb(0xF0F0F0), Rgb(0xFAFAF9)}};
}

RoundedColours CustomColours(const FaceToDraw &face)
{
    const QColor &back = face.back;
    if (face.state == LookState::Pressed) {
        const QColor &pressed = face.highlight;
        return {ShiftColor(back, -128),
                ShiftColor(pressed, -15),
                ShiftColor(pressed, -8),
                {ShiftColor(pressed, -37), ShiftColor(pressed, -24)},
                {ShiftColor(pressed, 5), ShiftColor(pressed, -5), ShiftColor(pressed, -8)},
                {ShiftColor(pressed, -15), ShiftColor(pressed, -8)},
                {ShiftColor(pressed, -24), ShiftColor(pressed, -15)}};
    }
    return {ShiftColor(back, -128),
            ShiftColor(back, 16),
            ShiftColor(back, -5),
            {ShiftColor(back, 16), ShiftColor(back, 16)},
            {ShiftColor(back, -37), ShiftColor(back, -21), ShiftColor(back, -8)},
            {ShiftColor(back, -32), ShiftColor(back, -15)},
            {ShiftColor(back, -5), ShiftColor(back, 5)}};
}

RoundedColours ColoursOf(const FaceToDraw &face)
{
    if (face.state == LookState::Disabled)
        return DisabledColours(face.back);
    return face.custom ? CustomColours(face) : FixedColours(face.state);
}

std::optional<RingColours> RingOf(const FaceToDraw &face)
{
    const QColor &lit = face.highlight;
    if (face.state == LookState::Hover) {
        if (face.custom)
            return RingColours{{ShiftColor(lit, 69), ShiftColor(lit, 16)},
                               {ShiftColor(lit, -48), ShiftColor(lit, -5)}};
        return RingColours{{Rgb(0xFFF0CF), Rgb(0xFDD889)}, {Rgb(0xE59710), Rgb(0xF8B330)}};
    }
    if (face.state == LookState::Normal && face.focused) {
        if (face.custom)
            return RingColours{{ShiftColor(lit, 69), ShiftColor(lit, 16)},
                               {ShiftColor(lit, -24), ShiftColor(lit, 5)}};
        return RingColours{{Rgb(0xCEE7FF), Rgb(0xBCD4F6)}, {Rgb(0x6982EE), Rgb(0x89ADE4)}};
    }
    return std::nullopt;
}

void DrawRing(Canvas &canvas, const RingColours &ring)
{
    const int w = canvas.Width();
    const int h = canvas.Height();
    for (const int x : {1, 2, w - 3, w - 2})
        canvas.GradientColumn(ring.top[1], ring.bottom[1], x, 2, h - 3);
    for (const int line : {1, 0}) {
        canvas.DrawLine(1 + line, 1 + line, w - 2 - line, 1 + line, ring.top[static_cast<std::size_t>(line)]);
        canvas.DrawLine(1 + line, h - 2 - line, w - 2 - line, h - 2 - line,
                        ring.bottom[static_cast<std::size_t>(line)]);
    }
}

void DrawInnerLines(Canvas &canvas, const RoundedColours &colours)
{
    const int w = canvas.Width();
    const int h = canvas.Height();
    canvas.DrawLine(1, 1, 1, h - 2, colours.left[0]);
    canvas.DrawLine(2, 2, 2, h - 3, colours.left[1]);
    canvas.DrawLine(w - 2, 1, w - 2, h - 2, colours.right[0]);
    canvas.DrawLine(w - 3, 2, w - 3, h - 3, colours.right[1]);
    canvas.DrawLine(1, 1, w - 2, 1, colours.top[0]);
    canvas.DrawLine(2, 2, w - 3, 2, colours.top[1]);
    canvas.DrawLine(2, h - 4, w - 3, h - 4, colours.bottom[2]);
    canvas.DrawLine(1, h - 3, w - 2, h - 3, colours.bottom[1]);
    canvas.DrawLine(1, h - 2, w - 2, h - 2, colours.bottom[0]);
}

/// Rounded, with a dark blue frame, and a ring that glows orange under the pointer and blue with the focus.
class BlueRounded : public Look {
public:
    bool DrawFace(Canvas &canvas, const FaceToDraw &face) const override
    {
        const RoundedColours colours = ColoursOf(face);
        const int w = canvas.Width();
        const int h = canvas.Height();
        canvas.GradientFill(colours.faceTop, colours.faceBottom, 0, -1, w - 1, h);
        DrawInnerLines(canvas, colours);
        if (const std::optional<RingColours> ring = RingOf(face))
            DrawRing(canvas, *ring);
        canvas.RoundFrame(0, 0, w - 1, h - 1, CornerRadius(), colours.frame);
        canvas.RoundCorners(CornerRadius());
        return true;
    }
    int Margin() const override { return 5; }
    QRegion Shape(QSize size) const override { return ClippedShape(size); }
    bool HasLightFace(const FaceToDraw &face) const override
    {
        return !face.custom && face.state != LookState::Disabled;
    }
    qreal CornerRadius() const override { return 3; }
    /// The ring of a hovered button takes the place of the focused one's.
    bool ShowsFocus(const FaceToDraw &face) const override { return face.state == LookState::Normal; }
    int FocusInset(const FaceToDraw &face) const override { return face.state == LookState::Hover ? 3 : 2; }
};

} // namespace

const Look &BlueRoundedLook()
{
    static const BlueRounded look;
    return look;
}

} // namespace tressel
