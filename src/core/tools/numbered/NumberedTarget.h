// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <optional>

namespace tressel {

class FileSystem;

/// What the folders of a numbered series are named from.
struct NumberedNaming {
    QString folder; ///< where the series stands
    QString base; ///< text of the main folder's name; "\" means a level
    QString sub; ///< the sub folder's name, empty for none; "\" means a level
    bool numbersSub = false; ///< the sub folder carries the number and not the main folder
    bool manualPadding = false; ///< the digits come from `digit`, else from `toLength`
    int digit = 0; ///< 0 to 3 for at least 1 to 4 digits
    qsizetype toLength = 0; ///< characters of the series' last number as it was typed
};

enum class NumberedRun { Make, Delete };

/// The path that a run goes for at one number; nothing if the padding has no picture, which makes the
/// number one without a folder.
std::optional<QString> NumberedTarget(const FileSystem &files, const NumberedNaming &naming, double number,
                                      NumberedRun run);

} // namespace tressel
