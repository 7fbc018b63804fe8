// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "widgets/SystemColours.h"
#include "widgets/looks/Look.h"

namespace tressel {

namespace {

/// What a state adds to the face's colour in the two halves of the glaze.
struct Glaze {
    int top;
    int aboveMiddle;
    int belowMiddle;
    int bottom;
};

Glaze GlazeOf(LookState state)
{
    switch (state) {
    case LookState::Hover:
        return {37, 5, 5, 37};
    case LookState::Pressed:
        return {-53, -32, -37, -21};
    case LookState::Disabled:
        return {5, -21, -21, 5};
    case LookState::Normal:
        break;
    }
    return {32, -21, -32, 5};
}

/// What a state adds to the face's colour in the frame.
int FrameOf(LookState state)
{
    switch (state) {
    case LookState::Hover:
        return -112;
    case LookState::Disabled:
        return -53;
    case LookState::Normal:
    case LookState::Pressed:
        break;
    }
    return -128;
}

Rim RimOf(const QColor &base, bool pressed)
{
    const QColor shine = ShiftColor(base, pressed ? -48 : 128);
    const QColor shade = ShiftColor(base, pressed ? -53 : -48);
    return {shine, shade, {shine, ShiftColor(base, -37)}, {ShiftColor(base, -21), shade}};
}

/// Glazed like a tile: a bright upper half, a darker middle, and a deep frame.
class Keramik : public Look {
public:
    bool DrawFace(Canvas &canvas, const FaceToDraw &face) const override
    {
        const int w = canvas.Width();
        const int h = canvas.Height();
        const QColor &base = face.back;
        const Glaze glaze = GlazeOf(face.state);
        const int middle = h / 2;
        canvas.GradientFill(ShiftColor(base, glaze.top), ShiftColor(base, glaze.aboveMiddle), 0, -1, w - 1,
                            middle);
        canvas.GradientFill(ShiftColor(base, glaze.belowMiddle), ShiftColor(base, glaze.bottom), 0,
                            middle - 1, w - 1, h - middle);
        canvas.RoundRim(CornerRadius(), RimOf(base, face.state == LookState::Pressed));
        canvas.RoundFrame(
            0, 0, w - 1, h - 1, CornerRadius(),
            WithContrast(ShiftColor(base, FrameOf(face.state)), {base, ShiftColor(base, glaze.top)}));
        canvas.RoundCorners(CornerRadius());
        return true;
    }
    int Margin() const override { return 7; }
    QRegion Shape(QSize size) const override { return OctagonShape(size); }
    qreal CornerRadius() const override { return 5; }
};

} // namespace

const Look &KeramikLook()
{
    static const Keramik look;
    return look;
}

} // namespace tressel
