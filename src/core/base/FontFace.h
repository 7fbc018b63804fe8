// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace tressel {

/// A font as controls and settings hold it.
struct FontFace {
    QString family;
    double points = 10;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikeout = false;

    bool operator==(const FontFace &) const = default;
};

} // namespace tressel
