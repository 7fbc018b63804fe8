// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/TextFile.h"

#include "base/Failure.h"

#include <QStringDecoder>

#include <array>
#include <new>
#include <utility>

namespace tressel {

namespace {

constexpr QByteArrayView byteOrderMark = "\xEF\xBB\xBF";
constexpr qsizetype writeAtOnce = 1 << 16;

/// What the bytes 0x80 to 0x9F stand for in Windows-1252, by the Unicode Consortium's table CP1252.TXT;
/// the five bytes that it leaves undefined stand for the control characters of the same number.
constexpr std::array<char16_t, 32> windows1252{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, // 80
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F, // 88
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, // 90
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178, // 98
};

QString TextFromWindows1252(QByteArrayView bytes)
{
    QString text = QString::fromLatin1(bytes);
    for (QChar &character : text) {
        if (character.unicode() >= 0x80 && character.unicode() < 0x80 + windows1252.size())
            character = QChar(windows1252.at(character.unicode() - 0x80));
    }
    return text;
}

/// The text behind a byte order mark of UTF-16, nothing without one.
std::optional<QString> TextFromUtf16(QByteArrayView bytes)
{
    const bool isLittleEndian = bytes.startsWith("\xFF\xFE");
    if (!isLittleEndian && !bytes.startsWith("\xFE\xFF"))
        return {};
    QStringDecoder decode(isLittleEndian ? QStringDecoder::Utf16LE : QStringDecoder::Utf16BE);
    return decode(bytes);
}

} // namespace

QString DecodeText(const QByteArray &bytes, NameBytes nameBytes)
{
    try {
        if (std::optional<QString> text = TextFromUtf16(bytes))
            return *text;
        QByteArrayView rest = bytes;
        if (rest.startsWith(byteOrderMark))
            rest = rest.sliced(byteOrderMark.size());
        std::optional<QString> text = TextFromUtf8(rest, nameBytes);
        return text ? *text : TextFromWindows1252(rest);
    } catch (const std::bad_alloc &) {
        throw Failure(FailureNumber::OutOfMemory);
    }
}

QByteArray EncodeText(const QString &text, NameBytes nameBytes)
{
    QByteArray bytes(text.size() * 3, Qt::Uninitialized);
    bytes.truncate(WriteUtf8(text, nameBytes, bytes.data()) - bytes.constData());
    return bytes;
}

LineReader::LineReader(QString whole)
    : text(std::move(whole))
{
}

LineReader::LineReader(FileSystem &files, const QString &path, NameBytes nameBytes, qint64 largest,
                       OpenFor purpose)
    : text(DecodeText(ReadWhole(files, path, largest, purpose), nameBytes))
{
}

std::optional<QString> LineReader::Next()
{
    if (position >= text.size())
        return {};
    qsizetype end = position;
    while (end < text.size() && text.at(end) != u'\n' && text.at(end) != u'\r')
        ++end;
    const QString line = text.mid(position, end - position);
    const bool isCrLf = end + 1 < text.size() && text.at(end) == u'\r' && text.at(end + 1) == u'\n';
    position = end + (isCrLf ? 2 : 1);
    return line;
}

void LineReader::Close()
{
    text.clear();
    position = 0;
}

LineWriter::LineWriter(FileSystem &files, const QString &path, OpenFor purpose, NameBytes bytesOfNames)
    : file(files.Open(path, purpose))
    , nameBytes(bytesOfNames)
{
}

LineWriter::~LineWriter()
{
    try {
        Close();
    } catch (const Failure &) {
        // Nobody is left to be told.
    }
}

void LineWriter::WriteLine(const QString &line)
{
    heldBack += EncodeText(line, nameBytes);
    heldBack += "\r\n";
    if (heldBack.size() >= writeAtOnce)
        WriteHeldBack();
}

void LineWriter::Close()
{
    if (!file)
        return;
    // Closed whatever becomes of the last lines: a second Close must not write them again.
    const std::unique_ptr<OpenFile> closing = std::move(file);
    closing->Write(std::exchange(heldBack, {}));
    closing->Close();
}

void LineWriter::WriteHeldBack()
{
    file->Write(std::exchange(heldBack, {}));
}

} // namespace tressel
