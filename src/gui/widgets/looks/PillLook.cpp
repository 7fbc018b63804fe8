// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "widgets/looks/Look.h"
#include "widgets/looks/PillCorners.h"

#include <algorithm>
#include <cmath>

namespace tressel {

namespace {

const PillColours &ColoursOf(const FaceToDraw &face)
{
    if (face.state == LookState::Pressed)
        return pressedPill;
    if (face.state == LookState::Hover || face.focused)
        return hoverPill;
    return normalPill;
}

/// The pixels clipped at either end of a row: those whose middle lies outside a quarter circle of this
/// radius.
int RoundInset(int row)
{
    constexpr int radius = 9;
    if (row >= radius)
        return 0;
    const double fromMiddle = radius - row - 0.5;
    return static_cast<int>(std::ceil(radius - std::sqrt(radius * radius - fromMiddle * fromMiddle) - 0.5));
}

/// The side on which a corner stands decides which part of it a small button cuts off.
void DrawCorner(Canvas &canvas, const QImage &corner, bool atRight, bool atBottom)
{
    const QSize whole = canvas.OnScreen(QRect(0, 0, canvas.Width(), canvas.Height())).size();
    const int w = std::min(corner.width(), atRight ? whole.width() / 2 : (whole.width() + 1) / 2);
    const int h = std::min(corner.height(), atBottom ? whole.height() / 2 : (whole.height() + 1) / 2);
    const QPoint target(atRight ? whole.width() - w : 0, atBottom ? whole.height() - h : 0);
    const QPoint source(atRight ? corner.width() - w : 0, atBottom ? corner.height() - h : 0);
    canvas.Painter().drawImage(target, corner, QRect(source, QSize(w, h)));
}

/// The pill: fixed colours in four corners that are pictures and four sides that stretch.
class Pill : public Look {
public:
    bool DrawFace(Canvas &canvas, const FaceToDraw &face) const override
    {
        const int w = canvas.Width();
        const int h = canvas.Height();
        const PillColours &colours = ColoursOf(face);
        canvas.FillBox(18, 11, w - 34, h - 19, QColor(colours.body));
        DrawSides(canvas, colours);
        return true;
    }
    int Margin() const override { return 7; }
    QRegion Shape(QSize size) const override
    {
        const int w = size.width();
        const int h = size.height();
        QRegion shape;
        for (int y = 0; y < h; ++y) {
            const int inset = std::min(RoundInset(std::min(y, h - 1 - y)), w / 2);
            shape += QRect(inset, y, w - 2 * inset, 1);
        }
        return shape;
    }
    bool HasLightFace(const FaceToDraw &) const override { return true; }
    bool ShowsFocus(const FaceToDraw &) const override { return true; }

private:
    static void DrawSides(Canvas &canvas, const PillColours &colours)
    {
        const int w = canvas.Width();
        const int h = canvas.Height();
        const PillCorners &corners = CornersOf(colours, canvas.Scale());
        DrawCorner(canvas, corners.topLeft, false, false);
        DrawCorner(canvas, corners.topRight, true, false);
        DrawCorner(canvas, corners.bottomLeft, false, true);
        DrawCorner(canvas, corners.bottomRight, true, true);
        for (int line = 0; line < 18; ++line)
            canvas.DrawLine(line, 11, line, h - 10, QColor(colours.left[static_cast<std::size_t>(line)]));
        for (int line = 0; line < 17; ++line)
            canvas.DrawLine(w - 17 + line, 11, w - 17 + line, h - 10,
                            QColor(colours.right[static_cast<std::size_t>(line)]));
        // A button too narrow for the level lines is all corners.
        if (w < 2 * 17)
            return;
        for (int line = 0; line < 12; ++line)
            canvas.DrawLine(17, line, w - 17, line, QColor(colours.top[static_cast<std::size_t>(line)]));
        for (int line = 0; line < 12; ++line)
            canvas.DrawLine(17, h - 11 + line, w - 17, h - 11 + line,
                            QColor(colours.bottom[static_cast<std::size_t>(line)]));
    }
};

} // namespace

const Look &PillLook()
{
    static const Pill look;
    return look;
}

} // namespace tressel
