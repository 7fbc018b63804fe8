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

/// Where the four corners meet and what a small button cuts off them, in pixels of the screen.
struct Cuts {
    Cuts(const PillCorners &corners, QSize whole)
        : left(std::min(corners.topLeft.width(), (whole.width() + 1) / 2))
        , right(std::min(corners.topRight.width(), whole.width() / 2))
        , top(std::min(corners.topLeft.height(), (whole.height() + 1) / 2))
        , bottom(std::min(corners.bottomLeft.height(), whole.height() / 2))
        , width(whole.width())
        , height(whole.height())
    {
    }

    int left;
    int right;
    int top;
    int bottom;
    int width;
    int height;
};

void DrawCorners(QPainter &painter, const PillCorners &corners, const Cuts &cuts)
{
    const auto draw = [&](const QImage &corner, int w, int h, bool atRight, bool atBottom) {
        const QPoint target(atRight ? cuts.width - w : 0, atBottom ? cuts.height - h : 0);
        const QPoint source(atRight ? corner.width() - w : 0, atBottom ? corner.height() - h : 0);
        painter.drawImage(target, corner, QRect(source, QSize(w, h)));
    };
    draw(corners.topLeft, cuts.left, cuts.top, false, false);
    draw(corners.topRight, cuts.right, cuts.top, true, false);
    draw(corners.bottomLeft, cuts.left, cuts.bottom, false, true);
    draw(corners.bottomRight, cuts.right, cuts.bottom, true, true);
}

/// The sides on a finer grid than the design's: the innermost rows and columns of the corners, stretched, so
/// that no seam is seen between the two.
void StretchSides(QPainter &painter, const PillCorners &corners, const Cuts &cuts)
{
    const int across = cuts.width - cuts.left - cuts.right;
    const int down = cuts.height - cuts.top - cuts.bottom;
    const QImage &bottomLeft = corners.bottomLeft;
    painter.drawImage(QRect(cuts.left, 0, across, cuts.top), corners.topLeft,
                      QRect(corners.topLeft.width() - 1, 0, 1, cuts.top));
    painter.drawImage(QRect(cuts.left, cuts.height - cuts.bottom, across, cuts.bottom), bottomLeft,
                      QRect(bottomLeft.width() - 1, bottomLeft.height() - cuts.bottom, 1, cuts.bottom));
    painter.drawImage(QRect(0, cuts.top, cuts.left, down), corners.topLeft,
                      QRect(0, cuts.top - 1, cuts.left, 1));
    painter.drawImage(QRect(cuts.width - cuts.right, cuts.top, cuts.right, down), corners.topRight,
                      QRect(corners.topRight.width() - cuts.right, cuts.top - 1, cuts.right, 1));
}

/// The pill: fixed colours in four corners that are pictures and four sides that stretch.
class Pill : public Look {
public:
    bool DrawFace(Canvas &canvas, const FaceToDraw &face) const override
    {
        const PillColours &colours = ColoursOf(face);
        const PillCorners &corners = CornersOf(colours, canvas.Scale());
        const QRect whole = canvas.OnScreen(QRect(0, 0, canvas.Width(), canvas.Height()));
        const Cuts cuts(corners, whole.size());
        QPainter &painter = canvas.Painter();
        if (canvas.Scale() > 1) {
            painter.fillRect(whole.adjusted(cuts.left, cuts.top, -cuts.right, -cuts.bottom),
                             QColor(colours.body));
            StretchSides(painter, corners, cuts);
            DrawCorners(painter, corners, cuts);
        } else {
            canvas.FillBox(18, 11, canvas.Width() - 34, canvas.Height() - 19, QColor(colours.body));
            DrawCorners(painter, corners, cuts);
            DrawLines(canvas, colours);
        }
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
    qreal CornerRadius() const override { return 9; }
    /// The blue pill tells of the focus, under the pointer as well.
    bool ShowsFocus(const FaceToDraw &face) const override { return face.state != LookState::Pressed; }

private:
    /// The lines of the four sides, on the design's own grid.
    static void DrawLines(Canvas &canvas, const PillColours &colours)
    {
        const int w = canvas.Width();
        const int h = canvas.Height();
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
