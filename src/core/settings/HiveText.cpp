// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "settings/HiveText.h"

#include <QList>
#include <QStringDecoder>
#include <QStringView>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype UnicodeDigits = 4;
constexpr qsizetype NumberDigits = 8;

/// True for a half of a surrogate pair without its other half, which UTF-8 can't hold.
bool IsLoneSurrogate(QStringView text, qsizetype at)
{
    if (text[at].isHighSurrogate())
        return at + 1 == text.size() || !text[at + 1].isLowSurrogate();
    return text[at].isLowSurrogate() && (at == 0 || !text[at - 1].isHighSurrogate());
}

/// True for what an editor shows as a line's end or doesn't show at all, and for lone surrogates.
bool NeedsNumber(QStringView text, qsizetype at)
{
    const char16_t character = text[at].unicode();
    return character < u' ' || (character >= 0x7f && character < 0xa0) || character == 0x2028
        || character == 0x2029 || character == 0xfeff || IsLoneSurrogate(text, at);
}

QString Quoted(QStringView text)
{
    QString quoted = u"\""_s;
    for (qsizetype at = 0; at < text.size(); ++at) {
        const QChar character = text[at];
        if (character == u'"' || character == u'\\')
            quoted += u"\\"_s + character;
        else if (character == u'\n')
            quoted += u"\\n"_s;
        else if (character == u'\r')
            quoted += u"\\r"_s;
        else if (character == u'\t')
            quoted += u"\\t"_s;
        else if (NeedsNumber(text, at))
            quoted += u"\\u%1"_s.arg(character.unicode(), UnicodeDigits, 16, QChar(u'0'));
        else
            quoted += character;
    }
    return quoted + u'"';
}

QString KeyLine(const QString &key)
{
    bool isPlain = !key.startsWith(u'"');
    for (qsizetype at = 0; at < key.size(); ++at)
        isPlain = isPlain && !NeedsNumber(key, at);
    return u"["_s + (isPlain ? key : Quoted(key)) + u"]"_s;
}

QString ValueText(const HiveValue &value)
{
    if (const auto *text = std::get_if<QString>(&value))
        return Quoted(*text);
    if (const auto *number = std::get_if<std::uint32_t>(&value))
        return u"dword:%1"_s.arg(*number, NumberDigits, 16, QChar(u'0'));
    const auto &other = std::get<OtherKindValue>(value);
    return u"hex(%1):"_s.arg(other.kind, 0, 16) + QString::fromLatin1(other.bytes.toHex(','));
}

/// Reads one line from its front to its end; each step takes what it finds or says that it isn't there.
class LineParser {
public:
    explicit LineParser(QStringView line)
        : rest(line)
    {
    }

    bool IsAtEnd() const { return rest.isEmpty(); }

    bool Take(QStringView expected)
    {
        if (!rest.startsWith(expected))
            return false;
        rest = rest.mid(expected.size());
        return true;
    }

    std::optional<std::uint32_t> TakeHex(qsizetype digits)
    {
        if (rest.size() < digits)
            return {};
        for (const QChar digit : rest.left(digits)) {
            if (!IsHexDigit(digit))
                return {};
        }
        const std::uint32_t number = rest.left(digits).toUInt(nullptr, 16);
        rest = rest.mid(digits);
        return number;
    }

    std::optional<QString> TakeQuoted()
    {
        if (!Take(u"\""))
            return {};
        QString text = u""_s;
        while (!rest.isEmpty()) {
            const QChar character = rest.front();
            rest = rest.mid(1);
            if (character == u'"')
                return text;
            const std::optional<QChar> meant = character == u'\\' ? TakeEscaped() : character;
            if (!meant)
                return {};
            text += *meant;
        }
        return {};
    }

    std::optional<HiveValue> TakeValue()
    {
        if (rest.startsWith(u'"'))
            return TakeQuoted();
        if (Take(u"dword:"))
            return TakeHex(NumberDigits);
        if (Take(u"hex("))
            return TakeOtherKind();
        return {};
    }

private:
    static bool IsHexDigit(QChar digit)
    {
        return (digit >= u'0' && digit <= u'9') || (digit >= u'a' && digit <= u'f')
            || (digit >= u'A' && digit <= u'F');
    }

    std::optional<QChar> TakeEscaped()
    {
        if (rest.isEmpty())
            return {};
        const QChar letter = rest.front();
        rest = rest.mid(1);
        switch (letter.unicode()) {
        case u'"':
        case u'\\':
            return letter;
        case u'n':
            return QChar(u'\n');
        case u'r':
            return QChar(u'\r');
        case u't':
            return QChar(u'\t');
        case u'u':
            break;
        default:
            return {};
        }
        const std::optional<std::uint32_t> code = TakeHex(UnicodeDigits);
        return code ? std::optional(QChar(static_cast<char16_t>(*code))) : std::nullopt;
    }

    std::optional<HiveValue> TakeOtherKind()
    {
        const qsizetype digits = rest.indexOf(u')');
        if (digits < 1 || digits > NumberDigits)
            return {};
        const std::optional<std::uint32_t> kind = TakeHex(digits);
        if (!kind || !Take(u"):"))
            return {};
        OtherKindValue value{*kind, {}};
        while (!IsAtEnd()) {
            if (!value.bytes.isEmpty() && !Take(u","))
                return {};
            const std::optional<std::uint32_t> byte = TakeHex(2);
            if (!byte)
                return {};
            value.bytes += static_cast<char>(*byte);
        }
        return value;
    }

    QStringView rest;
};

/// The path in a key line, nothing if the line is damaged.
std::optional<QString> KeyOf(QStringView line)
{
    if (line.size() < 3 || !line.endsWith(u']'))
        return {};
    const QStringView path = line.mid(1, line.size() - 2);
    if (!path.startsWith(u'"'))
        return path.toString();
    LineParser parser(path);
    const std::optional<QString> key = parser.TakeQuoted();
    return parser.IsAtEnd() ? key : std::nullopt;
}

/// Takes the lines of a file one after the other.
class HiveReader {
public:
    void Take(QStringView line)
    {
        if (line.trimmed().isEmpty() || line.startsWith(u';') || line.startsWith(u'#'))
            return;
        if (line.startsWith(u'[')) {
            key = KeyOf(line);
            if (key)
                reading.tree.MakeKey(*key);
            else
                reading.isDamaged = true;
        } else if (!TakeValueLine(line)) {
            reading.isDamaged = true;
        }
    }

    HiveReading reading;

private:
    bool TakeValueLine(QStringView line)
    {
        LineParser parser(line);
        const std::optional<QString> name = parser.TakeQuoted();
        if (!key || !name || !parser.Take(u"="))
            return false;
        const std::optional<HiveValue> value = parser.TakeValue();
        if (!value || !parser.IsAtEnd())
            return false;
        reading.tree.Write(*key, *name, *value);
        return true;
    }

    std::optional<QString> key;
};

} // namespace

QByteArray HiveToText(const HiveTree &tree)
{
    QString text = u"; Settings of Tressel. Written anew whenever a setting changes.\n"_s;
    for (const auto &[key, values] : tree.AllKeys()) {
        text += u"\n"_s + KeyLine(key) + u"\n"_s;
        for (const auto &[name, value] : values)
            text += Quoted(name) + u"="_s + ValueText(value) + u"\n"_s;
    }
    return text.toUtf8();
}

HiveReading HiveFromText(const QByteArray &bytes)
{
    HiveReader reader;
    for (QByteArray line : bytes.split('\n')) {
        if (line.endsWith('\r'))
            line.chop(1);
        QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
        const QString text = decoder(line);
        if (decoder.hasError())
            reader.reading.isDamaged = true;
        else
            reader.Take(text);
    }
    return std::move(reader.reading);
}

} // namespace tressel
