// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "widgets/FontFaces.h"

#include <QFontInfo>

namespace tressel {

QFont ToFont(const FontFace &face)
{
    QFont font(face.family);
    font.setPointSizeF(face.points);
    font.setBold(face.bold);
    font.setItalic(face.italic);
    font.setUnderline(face.underline);
    font.setStrikeOut(face.strikeout);
    return font;
}

FontFace ToFontFace(const QFont &font)
{
    // A font set in pixels has no size of its own in points.
    const double points = font.pointSizeF() > 0 ? font.pointSizeF() : QFontInfo(font).pointSizeF();
    return {font.family(), points, font.bold(), font.italic(), font.underline(), font.strikeOut()};
}

} // namespace tressel
