// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "widgets/looks/Look.h"

namespace tressel {

namespace {

/// A raised edge all around, sunken while pressed.
class Classic : public Look {
public:
    bool DrawFace(Canvas &canvas, const FaceToDraw &face) const override
    {
        const QColor colour = PlainFace(face);
        canvas.FillBox(0, 0, canvas.Width(), canvas.Height(), colour);
        const Edge edge = face.state == LookState::Pressed ? Edge::Sunken : Edge::Raised;
        canvas.DrawEdgeBox(0, 0, canvas.Width(), canvas.Height(), edge, face.palette, colour);
        return true;
    }
};

} // namespace

const Look &ClassicLook()
{
    static const Classic look;
    return look;
}

} // namespace tressel
