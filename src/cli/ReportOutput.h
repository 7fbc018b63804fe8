// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/FileSystem.h"

#include <QByteArray>
#include <QString>

#include <memory>

namespace tressel {

class Console;

/// Where the lines of a report go: to standard output, or to a file that is put in place when all of it is
/// there. Lines end as other programs expect it of each: LF on standard output, CR LF in a file as the
/// window's reports have it, NUL in both with --null.
class ReportOutput {
public:
    /// To standard output.
    explicit ReportOutput(Console &console);
    /// To a file. Fails as FileSystem::Replace does.
    ReportOutput(Console &console, const QString &file, IfThere ifThere);
    ~ReportOutput();

    /// A name as it may stand in a line.
    QString Shown(const QString &name) const;
    /// A line without its end, which may come in two pieces. A file fails as ReplacingFile::Write does.
    void WriteLine(const QString &line, const QString &rest = {});
    /// Writes the rest, and puts the file in place. Without it the file is left as it was.
    void Commit();

private:
    void Pass();

    Console &console;
    std::unique_ptr<ReplacingFile> file; ///< none for standard output
    QByteArray end;
    QByteArray held; ///< room for lines, of which so many bytes are taken
    qsizetype taken = 0;
};

} // namespace tressel
