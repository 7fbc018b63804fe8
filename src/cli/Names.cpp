// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "Names.h"

#include "Console.h"
#include "machine/Paths.h"
#include "machine/TextFile.h"

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 longestList = 64LL << 20;
constexpr qint64 readAtOnce = 1 << 20;
constexpr qsizetype longestName = 255;

QByteArray ReadWhole(Console &console, const std::function<QByteArray(qint64)> &read)
{
    QByteArray bytes;
    for (QByteArray piece = read(readAtOnce); !piece.isEmpty(); piece = read(readAtOnce)) {
        bytes += piece;
        if (bytes.size() > longestList)
            throw Failure(FailureNumber::Overflow,
                          u"It is longer than 64 MiB, the most that a list can be"_s);
        console.BetweenSteps();
    }
    return bytes;
}

QByteArray ReadListFile(Console &console, const QString &file)
{
    if (file == u"-"_s)
        return ReadWhole(console, [&](qint64 most) { return console.streams.In().Read(most); });
    // The last name stays: the links to a process's own streams lead nowhere by name.
    const QString path = console.Path(file, Links::Keep);
    const auto status = console.machine.files.Status(path, Links::Follow);
    if (status && status->kind == EntryKind::Other) {
        const auto pipe = console.streams.OpenPipe(path);
        return ReadWhole(console, [&](qint64 most) { return pipe->Read(most); });
    }
    const auto open = console.machine.files.Open(path, OpenFor::Reading);
    return ReadWhole(console, [&](qint64 most) { return open->Read(most); });
}

} // namespace

QStringList ReadListLines(Console &console, const QString &file)
{
    const QByteArray bytes = ReadListFile(console, file);
    QStringList lines;
    if (console.EndsInNul()) {
        for (const QByteArray &name : bytes.split('\0'))
            lines += *TextFromUtf8(name, NameBytes::Raw);
        // What stands behind the last NUL is a name only if it isn't empty.
        if (lines.last().isEmpty())
            lines.removeLast();
        return lines;
    }
    LineReader reader(DecodeText(bytes));
    while (const auto line = reader.Next())
        lines += *line;
    return lines;
}

std::optional<QString> WhyNoName(const QString &name)
{
    if (name.contains(QChar(u'\0')))
        return u"No name can hold a NUL character"_s;
    // No character has more than three bytes.
    if (name.size() * 3 > longestName && EncodeText(name, NameBytes::Raw).size() > longestName)
        return u"It is longer than 255 bytes, the most that a name can be"_s;
    return {};
}

} // namespace tressel
