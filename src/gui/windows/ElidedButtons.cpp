// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "windows/ElidedButtons.h"

#include "widgets/SideBarLook.h"

namespace tressel {

QColor BoxGround(const QPalette &palette)
{
    constexpr int middle = 128;
    constexpr double share = 0.26;
    const QColor band = palette.color(QPalette::Window);
    return band.lightness() >= middle ? palette.color(QPalette::Base)
                                      : Mixed(band, palette.color(QPalette::WindowText), share);
}

} // namespace tressel
