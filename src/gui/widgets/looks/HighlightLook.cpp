// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "widgets/looks/Look.h"

namespace tressel {

namespace {

constexpr int faceStep = 10;
/// Dark text needs a pale face, light text hardly any lightening.
constexpr int lightHoverStep = 72;
constexpr int darkHoverStep = 12;
constexpr double ownHoverPart = 0.4;

/// The button's own colour is made paler without a change of its hue, the desktop's by a step that stops
/// at each channel's end.
QColor LitFace(const FaceToDraw &face)
{
    const bool hovered = face.state == LookState::Hover;
    if (face.custom)
        return MixColor(face.highlight, Qt::white, hovered ? ownHoverPart : ownHoverPart / 2);
    const bool darkDesktop = face.System(SystemColour::ButtonText).lightness() > 127;
    const int step = darkDesktop ? darkHoverStep : lightHoverStep;
    return ShiftColor(face.highlight, hovered ? step : step / 2);
}

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
        canvas.FillBox(0, 0, w, h, LitFace(face));
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
