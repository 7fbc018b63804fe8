// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "widgets/looks/Look.h"

namespace tressel {

namespace {

/// A thin edge that sinks when pressed; a plain line when disabled.
class HotTrack : public Look {
public:
    bool DrawFace(Canvas &canvas, const FaceToDraw &face) const override
    {
        const int w = canvas.Width();
        const int h = canvas.Height();
        canvas.FillBox(0, 0, w, h, PlainFace(face));
        if (face.state == LookState::Disabled)
            canvas.FrameBox(0, 0, w - 1, h - 1, face.System(SystemColour::ButtonShadow));
        else if (face.state == LookState::Pressed)
            canvas.DrawEdgeBox(0, 0, w, h, Edge::SunkenOuter, face.palette);
        else
            canvas.DrawEdgeBox(0, 0, w, h, Edge::RaisedInner, face.palette);
        return true;
    }
};

} // namespace

const Look &HotTrackLook()
{
    static const HotTrack look;
    return look;
}

} // namespace tressel
