// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <optional>

namespace tressel {

class Clock;
class FileSystem;
class Program;

enum class SeriesAct { Make, Delete };

/// What "series" was asked for.
struct SeriesRequest {
    SeriesAct act = SeriesAct::Make;
    QString folder; ///< where the series stands, absolute
    QString base;
    QString sub; ///< empty for no sub folders
    bool numbersSub = false; ///< the sub folder carries the number
    // Whole numbers from 0 on as they were typed, the first not above the last.
    QString from;
    QString to;
    std::optional<int> digits; ///< 1 to 4; without it as many as `to` has characters, which are 1 to 4 then
    bool quiet = false;
};

/// Makes or deletes the series as the window does: it fills the form's controls and presses its buttons.
/// The result is the exit status.
int RunSeries(const SeriesRequest &request, FileSystem &disc, Clock &clock, Program &program);

} // namespace tressel
