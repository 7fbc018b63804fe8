// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/Colours.h"

#include <QColor>
#include <QHash>
#include <QIcon>
#include <QPalette>

#include <functional>

namespace tressel {

/// Pictures of the nodes of trees, by the numbers that the nodes bear.
using NodeIcons = QHash<int, QIcon>;

/// What faces of stock kinds need to show pictures and colours.
struct FaceLooks {
    QIcon folder; ///< in front of each row of a folder list
    NodeIcons nodes; ///< of the nodes of trees
    /// Reads a control's colour number; an invalid colour for one that means none. Without it colours stay
    /// the palette's own.
    std::function<QColor(ColourNumber, const QPalette &)> colour;
};

} // namespace tressel
