// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "Checksums.h"

#include "machine/TextFile.h"

#include <QList>

#include <optional>
#include <utility>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype digestBytes = 32;
constexpr qsizetype digestDigits = 2 * digestBytes;

/// What can't stand in a line as it is, and what stands for it.
constexpr std::pair<char, char> escapes[]{{'\\', '\\'}, {'\n', 'n'}, {'\r', 'r'}};

QByteArray Escaped(const QByteArray &name)
{
    QByteArray escaped;
    for (const char byte : name) {
        char written = '\0';
        for (const auto &[meant, letter] : escapes) {
            if (byte == meant)
                written = letter;
        }
        if (written != '\0')
            escaped += '\\';
        escaped += written != '\0' ? written : byte;
    }
    return escaped;
}

QByteArray Unescaped(const QByteArray &written)
{
    QByteArray name;
    for (qsizetype index = 0; index < written.size(); ++index) {
        char byte = written.at(index);
        if (byte == '\\' && index + 1 < written.size()) {
            ++index;
            for (const auto &[meant, letter] : escapes) {
                if (written.at(index) == letter)
                    byte = meant;
            }
        }
        name += byte;
    }
    return name;
}

/// A name and its digest; nothing for a line that is no checksum's.
std::optional<std::pair<QString, QByteArray>> Entry(QByteArray line)
{
    const bool isEscaped = line.startsWith('\\');
    if (isEscaped)
        line.remove(0, 1);
    constexpr qsizetype nameAt = digestDigits + 2; // Behind a blank, and a blank or a star.
    const QByteArray digest = QByteArray::fromHex(line.left(digestDigits));
    if (digest.size() != digestBytes || line.size() <= nameAt || line.at(digestDigits) != ' ')
        return {};
    const QByteArray name = line.mid(nameAt);
    return std::pair(*TextFromUtf8(isEscaped ? Unescaped(name) : name, NameBytes::Raw), digest);
}

} // namespace

QString ChecksumsName(const QString &name)
{
    return name + u".sha256"_s;
}

QByteArray ChecksumLine(const QString &name, const QByteArray &digest)
{
    const QByteArray bytes = EncodeText(name, NameBytes::Raw);
    const QByteArray escaped = Escaped(bytes);
    return (escaped == bytes ? QByteArray() : QByteArray("\\")) + digest.toHex() + "  " + escaped + '\n';
}

QHash<QString, QByteArray> ChecksumsOf(const QByteArray &text)
{
    QHash<QString, QByteArray> digests;
    for (const QByteArray &line : text.split('\n')) {
        if (const auto entry = Entry(line))
            digests.insert(entry->first, entry->second);
    }
    return digests;
}

} // namespace tressel
