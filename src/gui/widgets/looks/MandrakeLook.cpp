// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "widgets/SystemColours.h"
#include "widgets/looks/Look.h"

namespace tressel {

namespace {

/// A soft slope between a light line above and dark ones below, in an eight-cornered frame.
class Mandrake : public Look {
public:
    bool DrawFace(Canvas &canvas, const FaceToDraw &face) const override
    {
        const int w = canvas.Width();
        const int h = canvas.Height();
        const QColor base = face.state == LookState::Hover ? ShiftColor(face.back, 21) : face.back;
        const bool pressed = face.state == LookState::Pressed;
        const QColor light = ShiftColor(base, 96);
        const QColor dark = ShiftColor(base, -48);

        canvas.FillBox(0, 0, w, h, base);
        canvas.GradientFill(ShiftColor(base, pressed ? -15 : 15), ShiftColor(base, pressed ? 15 : -15), 2, 2,
                            w - 3, h - 6);
        canvas.DrawLine(1, h - 3, w - 2, h - 3, ShiftColor(base, -15));
        canvas.DrawLine(1, 2, w - 2, 2, ShiftColor(base, pressed ? -15 : 21));
        const QColor &topLeft = pressed ? dark : light;
        const QColor &bottomRight = pressed ? light : dark;
        canvas.RoundRim(CornerRadius(),
                        {topLeft, bottomRight, {topLeft, topLeft}, {bottomRight, bottomRight}});
        const QColor frame = ShiftColor(face.back, face.state == LookState::Disabled ? -48 : -96);
        canvas.RoundFrame(0, 0, w - 1, h - 1, CornerRadius(),
                          WithContrast(frame, {face.back, base, ShiftColor(base, 15)}));
        canvas.RoundCorners(CornerRadius());
        return true;
    }
    QRegion Shape(QSize size) const override { return OctagonShape(size); }
    qreal CornerRadius() const override { return 5; }
};

} // namespace

const Look &MandrakeLook()
{
    static const Mandrake look;
    return look;
}

} // namespace tressel
