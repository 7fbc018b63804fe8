// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/FileSystem.h"

#include <QString>

#include <memory>
#include <optional>

namespace tressel {

/// How the bytes of names that aren't UTF-8 stand in a text file. In memory such a byte is the lone
/// surrogate U+DC80 + (byte - 0x80).
enum class NameBytes {
    /// Lists, which may come from anywhere: such a byte is written as its surrogate's own three bytes
    /// (ED B2 80 to ED B3 BF), so that one odd name doesn't change how the rest of the file is read;
    /// a file that is not UTF-8 but for those is read as Windows-1252.
    Escaped,
    /// Files that the program itself wrote for others to read: such a byte stands as it is, and whatever
    /// isn't UTF-8 is read back as such bytes.
    Raw,
};

/// Turns the bytes of a text file into text. A byte order mark in front is dropped.
QString DecodeText(const QByteArray &bytes, NameBytes nameBytes = NameBytes::Escaped);

/// Text for a file: UTF-8 without a mark.
QByteArray EncodeText(const QString &text, NameBytes nameBytes = NameBytes::Escaped);

/// Reads a text file line by line. CR LF, LF and CR end a line; the last one needs no end.
class LineReader {
public:
    /// Fails as FileSystem::Open does.
    LineReader(FileSystem &files, const QString &path, NameBytes nameBytes = NameBytes::Escaped);

    /// The next line without its end, nothing after the last.
    std::optional<QString> Next();
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
    ~LineWriter();

    void WriteLine(const QString &line);
    /// Writes what is still held back and closes. Fails with 61 on a full disc.
    void Close();

private:
    void WriteHeldBack();

    std::unique_ptr<OpenFile> file;
    NameBytes nameBytes;
    QByteArray heldBack;
};

} // namespace tressel
