// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

#include <optional>

namespace tressel {

class Clock;
class FileSystem;
class Program;

/// What "create" was asked for. Exactly one of the three sources of names is given.
struct CreateRequest {
    QString destination; ///< absolute
    bool removeExtension = false;
    bool quiet = false;
    std::optional<QString> listFile; ///< a text file with one name a line
    std::optional<QString> namesOf; ///< a folder whose file names are taken
    QStringList names;
};

/// Makes the folders as the window does: it fills the form's controls and presses its buttons.
/// The result is the exit status.
int RunCreate(const CreateRequest &request, FileSystem &disc, Clock &clock, Program &program);

} // namespace tressel
