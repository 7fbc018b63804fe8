// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

namespace tressel {

/// Twips are the unit of places and sizes in forms: 15 to a device-independent pixel.
constexpr int twipsPerPixel = 15;

constexpr int ToTwips(int pixels)
{
    return pixels * twipsPerPixel;
}

/// The least number of pixels that holds the twips.
constexpr int ToPixels(int twips)
{
    const int cut = twips / twipsPerPixel;
    return cut * twipsPerPixel < twips ? cut + 1 : cut;
}

} // namespace tressel
