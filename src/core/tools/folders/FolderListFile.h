// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/Failure.h"
#include "machine/NameText.h"
#include "tools/ToolContext.h"

#include <functional>

namespace tressel {

class FolderTree;
class LineReader;

/// The list's text file: one folder name a line, lines that start with ";" and empty ones passed over.
///
/// All four share a way with failures: a file that isn't there ends a routine without a word, a folder
/// that isn't there is told in a box by the loaders, and anything else ends it without a word too, save
/// for what no list can be here: a file of more than 64 MiB, a pipe, a device. What was read so far, the
/// status text and the pointer stay as they were at that moment.
class FolderListFile {
public:
    FolderListFile(const ToolContext &context, FolderTree &tree);

    /// Loads session.ListFile at start-up, unless it has more than 32000 bytes.
    void StartList();
    /// Loads session.ListFile, whatever its size.
    void LoadList();
    /// Loads the latest report, whose path the settings hold.
    void LoadReportList();
    /// Writes the list to session.ListFile, in place of what was there. A failure leaves the old file whole.
    void SaveList();

private:
    void BeginList();
    void ReadList();
    /// Takes a list in. One that is refused for a limit of our own is told in a box before the failure goes
    /// on.
    LineReader Taken(const QString &path, NameBytes nameBytes);
    /// `entryOf` makes the entry of a line.
    void ReadLines(LineReader &reader, const std::function<QString(const QString &)> &entryOf);
    void TellLoaded();
    void Loading(const std::function<void()> &steps);

    Form &form;
    WorkArea &area;
    FolderTree &tree;
    FileSystem &files;
    Events &events;
    Dialogs &dialogs;
    Settings &settings;
    Session &session;
};

} // namespace tressel
