// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/FileSystem.h"

#include <QStringList>

namespace tressel {

/// What the lines of a report look like.
struct ReportStyle {
    bool foldersOnly = false; ///< the folders' paths and nothing else
    bool namesSetIn = false; ///< file names stand three blanks to the right, as in a report that people read
};

/// The lines that a report begins with; none with folders alone, or where names aren't set in.
QStringList ReportHeader(const ReportStyle &style);

/// What a folder's block begins with.
struct BlockStart {
    QStringList lines;
    QString begun; ///< a line that the next one goes on with
};
BlockStart StartOfBlock(const QString &folder, const ReportStyle &style);
/// What stands ahead of the name in a file's line.
QString StartOfFileLine(const ReportStyle &style);
/// A file's line; none is written with folders alone.
QString FileLine(const QString &name, const ReportStyle &style);
/// The line that ends a block.
QString EndOfBlock();

/// The whole block of a folder with these entries, of which the folders have blocks of their own.
QStringList ReportBlock(const QString &folder, const QList<FolderEntry> &entries, const ReportStyle &style);

} // namespace tressel
