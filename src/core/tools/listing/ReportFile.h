// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/TextFile.h"

#include <QStringList>

#include <memory>

namespace tressel {

class Clock;

/// The text file that a listing goes to: where it is, which number it has, and how it is opened.
class ReportFile {
public:
    ReportFile(FileSystem &files, const Clock &clock);

    QString ReportFolder;
    double ReportNumber = 0; ///< 0 until a first report was looked for, which prints as "00"

    /// The path that the file is opened by: the folder, a separator, "List-", the number, a blank, today's
    /// date and ".txt". A folder that ends in the separator gives two of them.
    QString Path() const;
    /// The same with one separator, for people to read.
    QString ShownPath() const;

    /// Takes drive C: for the folder if the source is the root of a volume whose label starts with "CD".
    /// Then the number: 1 if the present number's file isn't there, else the next one, whose file is made.
    /// Any other failure leaves it at that.
    void NextReportFile(const QString &source, const QStringList &header);
    /// Makes the file, or empties it. Fails with 70 where it may not be written, and for a link of its name,
    /// which leads to a file that isn't ours to empty.
    std::unique_ptr<LineWriter> Create() const;
    /// Opens the file to write on at its end. Fails with 53 if it isn't there.
    std::unique_ptr<LineWriter> OpenToAppend() const;

private:
    QString Name() const;

    FileSystem &files;
    const Clock &clock;
};

} // namespace tressel
