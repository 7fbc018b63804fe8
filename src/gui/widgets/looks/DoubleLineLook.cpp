// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "widgets/SystemColours.h"
#include "widgets/looks/Look.h"

namespace tressel {

namespace {

constexpr int faceInset = 4;

QColor BoxColour(const FaceToDraw &face)
{
    const QColor face15 = face.System(SystemColour::ButtonFace);
    const QColor shadow = face.System(SystemColour::ButtonShadow);
    switch (face.state) {
    case LookState::Hover:
        return face.custom ? AverageColor(face.back, face.highlight) : AverageColor(shadow, face15);
    case LookState::Pressed:
        return face.custom ? face.highlight : shadow;
    case LookState::Normal:
    case LookState::Disabled:
        break;
    }
    return face.custom ? face.back : face15;
}

/// A dark and a light line around, soft at the corners, with a face box inside.
class DoubleLine : public Look {
public:
    bool DrawFace(Canvas &canvas, const FaceToDraw &face) const override
    {
        const int w = canvas.Width();
        const int h = canvas.Height();
        const QColor face15 = face.System(SystemColour::ButtonFace);
        const QColor ground = face.custom ? face.back : face15;
        canvas.FillBox(0, 0, w, h, ground);
        canvas.FillBox(faceInset, faceInset, w - 2 * faceInset, h - 2 * faceInset, BoxColour(face));

        const QColor dark = WithContrast(face.System(SystemColour::ButtonShadow), {ground});
        const QColor light = face.System(SystemColour::Window);
        canvas.FrameBox(0, 0, w - 1, h - 1, dark);
        canvas.FrameBox(1, 1, w - 3, h - 3, light);
        const QColor soft = AverageColor(dark, light);
        for (const int inset : {0, 1}) {
            for (const int x : {inset, w - 1 - inset}) {
                canvas.SetPixel(x, inset, soft);
                canvas.SetPixel(x, h - 1 - inset, soft);
            }
        }
        return true;
    }
};

} // namespace

const Look &DoubleLineLook()
{
    static const DoubleLine look;
    return look;
}

} // namespace tressel
