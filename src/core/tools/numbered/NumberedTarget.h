// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <cstdint>
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

/// The targets of a whole series, one number after the other. They are worked out as they are asked for, so
/// that a series may be as long as its numbers reach.
class NumberedSeries {
public:
    NumberedSeries(const FileSystem &files, NumberedNaming naming, std::int32_t first, std::int32_t last,
                   NumberedRun run);

    /// How many targets are still to come: none if the padding has no picture.
    qint64 Count() const;
    /// The next target, nothing after the last.
    std::optional<QString> Next();

private:
    const FileSystem &files;
    NumberedNaming naming;
    NumberedRun run;
    qint64 next;
    qint64 end; ///< the number behind the last
};

} // namespace tressel
