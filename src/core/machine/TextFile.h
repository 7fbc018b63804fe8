// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/FileSystem.h"
#include "machine/NameText.h"
#include "machine/WholeFile.h"

#include <QString>

#include <memory>
#include <optional>

namespace tressel {

/// Turns the bytes of a text file into text: UTF-8, or Windows-1252 if they aren't that. A byte order
/// mark in front is dropped, and one of UTF-16 means UTF-16. Fails with 7 if there is no room for the text.
QString DecodeText(const QByteArray &bytes, NameBytes nameBytes = NameBytes::Escaped);

/// Text for a file: UTF-8 without a mark.
QByteArray EncodeText(const QString &text, NameBytes nameBytes = NameBytes::Escaped);

/// Reads a text file line by line. CR LF, LF and CR end a line; the last one needs no end.
class LineReader {
public:
    /// Takes the whole file in. Fails as ReadWhole does.
    LineReader(FileSystem &files, const QString &path, NameBytes nameBytes = NameBytes::Escaped,
               qint64 largest = largestList, OpenFor purpose = OpenFor::Reading);
    /// Reads a text that is in memory.
    explicit LineReader(QString text);

    /// The next line without its end, nothing after the last.
    std::optional<QString> Next();
    /// Lets the text go; there is no next line then.
    void Close();

private:
    QString text;
    qsizetype position = 0;
};

/// Writes a text file line by line, each ended by CR LF.
class LineWriter {
public:
    /// Makes or empties the file. Fails as FileSystem::Open does.
    LineWriter(FileSystem &files, const QString &path, OpenFor purpose = OpenFor::Writing,
               NameBytes nameBytes = NameBytes::Escaped);
    /// Closes, but can't report what fails.
    ~LineWriter();
    LineWriter(const LineWriter &) = delete;
    LineWriter &operator=(const LineWriter &) = delete;

    void WriteLine(const QString &line);
    /// Writes what is still held back and closes. Fails with 61 on a full disc.
    void Close();

private:
    void WriteHeldBack();

    std::unique_ptr<OpenFile> file; ///< none once it is closed
    NameBytes nameBytes;
    QByteArray heldBack;
};

} // namespace tressel
