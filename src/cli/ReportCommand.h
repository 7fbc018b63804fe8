// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <optional>

namespace tressel {

class Clock;
class FileSystem;
class Program;

/// What "report" was asked for.
struct ReportRequest {
    QString folder; ///< absolute
    bool foldersOnly = false;
    bool namesOnly = false; ///< the lines as they go to the folder list, not those of a report
    std::optional<QString> output; ///< a file, absolute; else standard output
    bool quiet = false;
};

/// Lists the folder as the window does: it fills the form's controls and presses its buttons. Nothing
/// but the output is written. The result is the exit status.
int RunReport(const ReportRequest &request, FileSystem &disc, Clock &clock, Program &program);

} // namespace tressel
