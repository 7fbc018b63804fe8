// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

#include <cstdint>

namespace tressel {

class Dialogs;
class FileSystem;

/// What the caller of ShowOpenDialog fills in.
struct OpenFileRequest {
    QString Filter; ///< "Label|*.a;*.b|Label|*.c"
    QString StartFolder;
    std::int32_t Flags = 0; ///< Kept: replaced before the dialog sees them
};

/// What the user chose in an open dialog.
struct OpenFileResult {
    std::int32_t Count = 0; ///< 0 on a cancel
    QString Path; ///< folder of the selection, with the separator at its end
    bool Cancelled = false;
    QStringList names;

    /// A bare file name, counted from 1. Fails with 9 beyond Count.
    const QString &Files(std::int32_t number) const;
};

/// Asks for one or several files to open. The dialog stands over the middle of its owner, or of the screen.
/// Fails with 9 if more than 200 names were chosen.
OpenFileResult ShowOpenDialog(Dialogs &dialogs, const FileSystem &files, OpenFileRequest &request,
                              bool CentreOnOwner);

} // namespace tressel
