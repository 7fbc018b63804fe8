// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "widgets/looks/Look.h"

namespace tressel {

namespace {

constexpr int faceStep = 10;
/// Dark text needs a pale face, light text hardly any lightening.
constexpr int lightHoverStep = 72;
constexpr int darkHoverStep = 12;

/// Flat and pale; a framed box in a pale highlight colour under the pointer.
class Highlight : public Look {
public:
    bool DrawFace(Canvas &canvas, const FaceToDraw &face) const override
    {
        const int w = canvas.Width();
        const int h = canvas.Height();
        const bool lit = face.state == LookState::Hover || face.state == LookState::Pressed;
        if (!lit) {
            canvas.FillBox(0, 0, w, h, ShiftColor(face.back, faceStep));
            return true;
        }
        const bool darkDesktop = face.System(SystemColour::ButtonText).lightness() > 127;
        const int hoverStep = darkDesktop ? darkHoverStep : lightHoverStep;
        canvas.FillBox(
            0, 0, w, h,
            ShiftColor(face.highlight, face.state == LookState::Hover ? hoverStep : hoverStep / 2));
        canvas.FrameBox(0, 0, w - 1, h - 1, face.highlight);
        return true;
    }
};

} // namespace

const Look &HighlightLook()
{
    static const Highlight look;
    return look;
}

} // namespace tressel
