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
    qreal uprightReach; ///< from here inwards only the level lines are seen
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

/// A line of the border keeps its sharp edges on a fine grid; where colours are nearer than this, one line
/// passes into the next, so that no stripes are seen.
bool IsSharp(QRgb a, QRgb b)
{
    constexpr int sharp = 40;
    return std::abs(qRed(a) - qRed(b)) > sharp || std::abs(qGreen(a) - qGreen(b)) > sharp
        || std::abs(qBlue(a) - qBlue(b)) > sharp;
}

/// The colour at a depth below the surface. A sharp passage takes one pixel of the screen, a soft one the
/// way between the middles of the two lines.
Colour ColourAt(const Side &side, double depth, double scale)
{
    const double place = std::clamp(depth - 0.5, 0.0, double(side.lines.size() - 1));
    const auto line = static_cast<std::size_t>(place);
    const std::size_t next = std::min(line + 1, side.lines.size() - 1);
    const double way = place - double(line);
    const bool soft = scale > 1 && !IsSharp(side.lines[line], side.lines[next]);
    const double part = soft ? way : std::clamp((way - 0.5) * std::ceil(scale) + 0.5, 0.0, 1.0);
    return Mixed(FromRgb(side.lines[line]), FromRgb(side.lines[next]), part);
}

/// How much the level lines count against the upright ones, from 0 to 1.
double LevelWeight(const Corner &corner, double x, double y)
{
    const double fromLevelEnd = std::max(0.0, (corner.levelReach - y) / corner.levelReach);
    const double fromUprightEnd = std::max(0.0, (corner.uprightReach - x) / corner.uprightReach);
    constexpr double softness = 3;
    const double level = std::pow(fromLevelEnd, softness);
    const double upright = std::pow(fromUprightEnd, softness);
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
    constexpr int pillCornerWidth = 18;
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
    constexpr qreal leftReach = 17;
    constexpr qreal rightReach = 16;
    // On the design's own grid the upright lines run on beside the last of the level ones.
    const bool fine = scale > 1;
    const int topHeight = fine ? 12 : 11;
    const int bottomHeight = fine ? 11 : 12;
    const qreal topReach = topHeight;
    const qreal bottomReach = fine ? bottomHeight : 9;

    const Side left = SideOf(colours.left, 2, colours.left.front(), false);
    const Side right = SideOf(colours.right, 2, colours.right.back(), true);
    const Side top = SideOf(colours.top, 0, colours.left.front(), false);
    // The outermost of the bottom lines lies outside the button: it leads the others anyway.
    const Side bottom{{colours.bottom.rbegin(), colours.bottom.rend()}, 1};
    const auto drawn = [&](const Side &upright, qreal reach, bool atBottom) {
        return atBottom ? Drawn({upright, bottom, bottomRadius, reach, bottomReach}, bottomHeight, scale)
                        : Drawn({upright, top, topRadius, reach, topReach}, topHeight, scale);
    };
    return {drawn(left, leftReach, false), drawn(right, rightReach, false).mirrored(true, false),
            drawn(left, leftReach, true).mirrored(false, true),
            drawn(right, rightReach, true).mirrored(true, true)};
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
