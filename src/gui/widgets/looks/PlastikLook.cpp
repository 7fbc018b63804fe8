// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "widgets/looks/Look.h"

namespace tressel {

namespace {

/// What a state adds to the face's colour, line by line.
struct Deltas {
    int top; ///< the gradient's ends
    int bottom;
    int topLine;
    int leftLine;
    int rightLine;
    int bottomLine;
};

/// A focused button that is neither hovered nor pressed looks as any other.
Deltas DeltasOf(LookState state)
{
    switch (state) {
    case LookState::Hover:
        return {21, 5, 21, 15, 8, -9};
    case LookState::Pressed:
        return {-21, -5, -37, -32, -15, 5};
    case LookState::Normal:
    case LookState::Disabled:
        break;
    }
    return {15, -15, 21, 8, -16, -21};
}

/// Smooth, faintly domed, in a dark frame whose corners are clipped.
class Plastik : public Look {
public:
    bool DrawFace(Canvas &canvas, const FaceToDraw &face) const override
    {
        const int w = canvas.Width();
        const int h = canvas.Height();
        const QColor &base = face.back;
        const Deltas deltas = DeltasOf(face.state);
        canvas.GradientFill(ShiftColor(base, deltas.top), ShiftColor(base, deltas.bottom), 0, -1, w - 1, h);
        canvas.GradientColumn(ShiftColor(base, deltas.topLine), ShiftColor(base, deltas.leftLine), 1, 1,
                              h - 2);
        canvas.GradientColumn(ShiftColor(base, deltas.rightLine), ShiftColor(base, deltas.bottomLine), w - 2,
                              1, h - 2);
        canvas.DrawLine(1, 1, w - 2, 1, ShiftColor(base, deltas.topLine));
        canvas.DrawLine(1, h - 2, w - 2, h - 2, ShiftColor(base, deltas.bottomLine));
        const bool pale = face.state == LookState::Disabled;
        canvas.RoundFrame(0, 0, w - 1, h - 1, CornerRadius(), ShiftColor(base, pale ? -37 : -96));
        canvas.RoundCorners(CornerRadius());
        return true;
    }
    int Margin() const override { return 5; }
    QRegion Shape(QSize size) const override { return ClippedShape(size); }
    qreal CornerRadius() const override { return 2.5; }
};

} // namespace

const Look &PlastikLook()
{
    static const Plastik look;
    return look;
}

} // namespace tressel
