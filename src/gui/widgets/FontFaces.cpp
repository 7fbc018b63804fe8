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
    return {font.family(),   QFontInfo(font).pointSizeF(), font.bold(), font.italic(), font.underline(),
            font.strikeOut()};
}

} // namespace tressel
