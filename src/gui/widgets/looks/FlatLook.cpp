// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "widgets/SystemColours.h"
#include "widgets/looks/Look.h"

namespace tressel {

namespace {

/// One line around, which becomes a thin edge under the pointer.
class Flat : public Look {
public:
    bool DrawFace(Canvas &canvas, const FaceToDraw &face) const override
    {
        const int w = canvas.Width();
        const int h = canvas.Height();
        const QColor colour = PlainFace(face);
        canvas.FillBox(0, 0, w, h, colour);
        if (face.state == LookState::Hover)
            canvas.DrawEdgeBox(0, 0, w, h, Edge::RaisedInner, face.palette, colour);
        else if (face.state == LookState::Pressed)
            canvas.DrawEdgeBox(0, 0, w, h, Edge::SunkenOuter, face.palette, colour);
        else
            canvas.FrameBox(0, 0, w - 1, h - 1,
                            WithContrast(face.System(SystemColour::ButtonShadow), {colour}));
        return true;
    }
};

} // namespace

const Look &FlatLook()
{
    static const Flat look;
    return look;
}

} // namespace tressel
