// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "widgets/looks/PillCorners.h"

#include <QHash>

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace tressel {

namespace {

/// The lines of one side from the outermost inwards, with the dark line of the border at a fixed place
/// for all sides, so that the border runs on without a break where one side turns into the next.
struct Side {
    std::vector<QRgb> lines;
    int leading; ///< lines put before the side's own to bring its border to that place
};

constexpr int borderPlace = 2;

template <typename Lines> Side SideOf(const Lines &lines, int ownBorderPlace, QRgb outside, bool fromTheEnd)
{
    Side side{{lines.begin(), lines.end()}, borderPlace - ownBorderPlace};
    if (fromTheEnd)
        std::reverse(side.lines.begin(), side.lines.end());
    side.lines.insert(side.lines.begin(), static_cast<std::size_t>(side.leading), outside);
    return side;
}

/// How a corner is measured, in pixels of the design from its outermost point.
struct Corner {
    Side upright; ///< the lines on its left or right
    Side level; ///< the lines above or below
    qreal radius;
    qreal levelReach; ///< from here inwards only the upright lines are seen
};

struct Colour {
    double red;
    double green;
    double blue;
};

Colour Mixed(const Colour &a, const Colour &b, double part)
{
    return {a.red + (b.red - a.red) * part, a.green + (b.green - a.green) * part,
            a.blue + (b.blue - a.blue) * part};
}

Colour FromRgb(QRgb rgb)
{
    return {double(qRed(rgb)), double(qGreen(rgb)), double(qBlue(rgb))};
}

/// The colour at a depth below the surface. Lines keep sharp borders: one passes into the next within one
/// pixel of the screen.
Colour ColourAt(const Side &side, double depth, double scale)
{
    const double place = std::clamp(depth - 0.5, 0.0, double(side.lines.size() - 1));
    const auto line = static_cast<std::size_t>(place);
    const std::size_t next = std::min(line + 1, side.lines.size() - 1);
    const double part = std::clamp((place - double(line) - 0.5) * std::ceil(scale) + 0.5, 0.0, 1.0);
    return Mixed(FromRgb(side.lines[line]), FromRgb(side.lines[next]), part);
}

/// How much the level lines count against the upright ones, from 0 to 1.
double LevelWeight(const Corner &corner, double x, double y)
{
    const double fromLevelEnd = std::max(0.0, (corner.levelReach - y) / corner.levelReach);
    const double fromUprightEnd = std::max(0.0, (pillCornerWidth - 1 - x) / (pillCornerWidth - 1));
    const double level = std::pow(fromLevelEnd, 4);
    const double upright = std::pow(fromUprightEnd, 4);
    return level + upright > 0 ? level / (level + upright) : 0;
}

QRgb PixelAt(const Corner &corner, double x, double y, double scale)
{
    const double r = corner.radius;
    const bool inArc = x < r && y < r;
    const double arcDepth = r - std::hypot(r - x, r - y);
    const double levelDepth = inArc ? arcDepth : (x >= r ? y : x);
    const double uprightDepth = inArc ? arcDepth : (y >= r ? x : y + (x - r) * y / r);
    const double coverage = inArc ? std::clamp(arcDepth * scale + 0.5, 0.0, 1.0) : 1;

    const double weight = LevelWeight(corner, x, y);
    const double leading = corner.upright.leading + (corner.level.leading - corner.upright.leading) * weight;
    const Colour colour = Mixed(ColourAt(corner.upright, uprightDepth + leading, scale),
                                ColourAt(corner.level, levelDepth + leading, scale), weight);
    return qPremultiply(
        qRgba(qRound(colour.red), qRound(colour.green), qRound(colour.blue), qRound(coverage * 255)));
}

/// Where the middle of a screen's pixel lies in pixels of the design, whose borders are rounded to whole
/// pixels of the screen, as those of the lines are.
double DesignPlace(int pixel, double scale)
{
    int place = static_cast<int>(pixel / scale);
    while (qRound((place + 1) * scale) <= pixel)
        ++place;
    while (qRound(place * scale) > pixel)
        --place;
    const int from = qRound(place * scale);
    const int to = qRound((place + 1) * scale);
    return place + (pixel - from + 0.5) / (to - from);
}

/// A corner as it stands at the upper left.
QImage Drawn(const Corner &corner, int height, double scale)
{
    QImage image(qRound(pillCornerWidth * scale), qRound(height * scale),
                 QImage::Format_ARGB32_Premultiplied);
    for (int row = 0; row < image.height(); ++row) {
        auto *pixels = reinterpret_cast<QRgb *>(image.scanLine(row));
        for (int column = 0; column < image.width(); ++column)
            pixels[column] = PixelAt(corner, DesignPlace(column, scale), DesignPlace(row, scale), scale);
    }
    return image;
}

PillCorners Built(const PillColours &colours, double scale)
{
    constexpr qreal topRadius = 10;
    constexpr qreal bottomRadius = 9;
    constexpr qreal topReach = 11;
    constexpr qreal bottomReach = 9;

    const Side left = SideOf(colours.left, 2, colours.left.front(), false);
    const Side right = SideOf(colours.right, 2, colours.right.back(), true);
    const Side top = SideOf(colours.top, 0, colours.left.front(), false);
    // The outermost of the bottom lines lies outside the button: it leads the others anyway.
    const Side bottom{{colours.bottom.rbegin(), colours.bottom.rend()}, 1};
    return {Drawn({left, top, topRadius, topReach}, pillTopHeight, scale),
            Drawn({right, top, topRadius, topReach}, pillTopHeight, scale).mirrored(true, false),
            Drawn({left, bottom, bottomRadius, bottomReach}, pillBottomHeight, scale).mirrored(false, true),
            Drawn({right, bottom, bottomRadius, bottomReach}, pillBottomHeight, scale).mirrored(true, true)};
}

} // namespace

const PillCorners &CornersOf(const PillColours &colours, qreal scale)
{
    static QHash<std::pair<const PillColours *, int>, PillCorners> built;
    const std::pair key(&colours, qRound(scale * 1000));
    auto found = built.find(key);
    if (found == built.end())
        found = built.insert(key, Built(colours, scale));
    return *found;
}

} // namespace tressel
