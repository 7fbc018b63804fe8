// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "support/JetValueBytes.h"

#include <algorithm>
#include <array>
#include <bit>
#include <utility>

namespace tressel {

namespace {

struct Kind {
    std::int16_t type;
    int inFile;
    int length; ///< in each row; 0: as the column tells
};

constexpr std::array<Kind, 14> kinds{{
    {fieldTypes::YesNo, 1, 1},
    {fieldTypes::Byte, 2, 1},
    {fieldTypes::Integer, 3, 2},
    {fieldTypes::Long, 4, 4},
    {fieldTypes::Money, 5, 8},
    {fieldTypes::Single, 6, 4},
    {fieldTypes::Double, 7, 8},
    {fieldTypes::Date, 8, 8},
    {fieldTypes::Binary, 9, 0},
    {fieldTypes::Text, 10, 0},
    {fieldTypes::Ole, 11, 0},
    {fieldTypes::Memo, 12, 0},
    {fieldTypes::Guid, 15, 16},
    {fieldTypes::Numeric, 16, 17},
}};

const Kind &Find(std::int16_t type)
{
    return *std::ranges::find(kinds, type, &Kind::type);
}

/// A sign, and the number in four parts of which the highest comes first.
QByteArray DecimalBytes(const DecimalValue &value)
{
    std::array<quint32, 4> parts{};
    for (const char digit : value.digits) {
        quint64 carry = static_cast<quint64>(digit - '0');
        for (std::size_t index = parts.size(); index-- > 0;) {
            carry += quint64{parts[index]} * 10;
            parts[index] = static_cast<quint32>(carry);
            carry >>= 32U;
        }
    }
    QByteArray bytes(1, value.negative ? '\x80' : '\0');
    for (const quint32 part : parts)
        bytes += Number(part, 4);
    return bytes;
}

/// Whether each letter fits in one byte that isn't zero.
bool CanBeCompressed(const QString &text)
{
    return std::ranges::all_of(text,
                               [](QChar letter) { return letter.unicode() > 0 && letter.unicode() < 0x100; });
}

} // namespace

void Put(QByteArray &bytes, qsizetype place, quint64 number, int count)
{
    for (int index = 0; index < count; ++index, number >>= 8U)
        bytes[place + index] = static_cast<char>(number & 0xFFU);
}

quint64 Get(const QByteArray &bytes, qsizetype place, int count)
{
    quint64 number = 0;
    while (count-- > 0)
        number = number << 8U | static_cast<unsigned char>(bytes.at(place + count));
    return number;
}

QByteArray Number(quint64 number, int count)
{
    QByteArray bytes(count, '\0');
    Put(bytes, 0, number, count);
    return bytes;
}

QByteArray Utf16(const QString &text)
{
    QByteArray bytes;
    for (const QChar letter : text)
        bytes += Number(letter.unicode(), 2);
    return bytes;
}

int KindOf(std::int16_t type)
{
    return Find(type).inFile;
}

int LengthOf(const WrittenColumn &column)
{
    if (column.type == fieldTypes::Text)
        return column.size * 2;
    if (column.type == fieldTypes::Binary)
        return column.size;
    return Find(column.type).length;
}

int FixedLengthOf(const WrittenColumn &column)
{
    return column.type == fieldTypes::YesNo ? 0 : Find(column.type).length;
}

QByteArray FixedBytes(const WrittenColumn &column, const DatabaseValue &value)
{
    const int length = FixedLengthOf(column);
    if (const auto *whole = std::get_if<std::int64_t>(&value))
        return Number(static_cast<quint64>(*whole), length);
    if (const auto *money = std::get_if<MoneyValue>(&value))
        return Number(static_cast<quint64>(money->tenThousandths), length);
    if (const auto *single = std::get_if<float>(&value))
        return Number(std::bit_cast<quint32>(*single), length);
    if (const auto *real = std::get_if<double>(&value))
        return Number(std::bit_cast<quint64>(*real), length);
    if (const auto *date = std::get_if<DateValue>(&value))
        return Number(std::bit_cast<quint64>(date->days), length);
    if (const auto *guid = std::get_if<GuidValue>(&value))
        return guid->bytes;
    if (const auto *decimal = std::get_if<DecimalValue>(&value))
        return DecimalBytes(*decimal);
    return QByteArray(length, '\0');
}

QByteArray VariableBytes(bool isCompressed, const DatabaseValue &value)
{
    const auto *text = std::get_if<QString>(&value);
    if (!text)
        return QByteArray("\1\2\3\4", 4);
    if (isCompressed && text->size() > 2 && CanBeCompressed(*text))
        return "\xFF\xFE" + text->toLatin1();
    return Utf16(*text);
}

} // namespace tressel
