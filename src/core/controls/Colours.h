// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

namespace tressel {

/// A colour as controls hold it: 0x00BBGGRR, or 0x80000000 plus the number of a system colour, which
/// follows the desktop's palette.
using ColourNumber = quint32;

/// The system colours that the hand-drawn controls use, by number.
enum class SystemColour : quint32 {
    Window = 5,
    Highlight = 13,
    ButtonFace = 15,
    ButtonShadow = 16,
    GrayText = 17,
    ButtonText = 18,
    ToolTipFace = 23,
    ToolTipText = 24,
};

constexpr ColourNumber systemColourMark = 0x80000000U;

constexpr ColourNumber NumberOf(SystemColour colour)
{
    return systemColourMark | static_cast<quint32>(colour);
}

/// True for a number that names a system colour, whether or not there is one of that number.
constexpr bool IsSystemColour(ColourNumber number)
{
    return (number & 0xFF000000U) == systemColourMark;
}

} // namespace tressel
