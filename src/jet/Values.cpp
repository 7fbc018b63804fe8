// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "Values.h"

#include "LongValue.h"
#include "Refusal.h"

#include <algorithm>
#include <array>
#include <string>

namespace tressel::jet {

namespace {

// Kinds of columns that are newer than the library.
constexpr int bigIntegerColumn = 0x13;

constexpr std::size_t guidLength = 16;
constexpr std::size_t decimalLength = 17; // a sign and four numbers of 32 bits, the highest first
constexpr std::uint8_t negativeSign = 0x80;

struct ColumnKind {
    int kind; ///< in the file
    std::uint16_t type; ///< in the answer
    std::uint32_t size; ///< 0: the one that the column tells
};

constexpr std::array<ColumnKind, 15> columnKinds{{
    {MDB_BOOL, 11, 2},
    {MDB_BYTE, 17, 1},
    {MDB_INT, 2, 2},
    {MDB_LONGINT, 3, 4},
    {MDB_MONEY, 6, 8},
    {MDB_FLOAT, 4, 4},
    {MDB_DOUBLE, 5, 8},
    {MDB_DATETIME, 7, 8},
    {MDB_BINARY, 204, 0},
    {MDB_TEXT, 202, 0},
    {MDB_OLE, 205, 0x3FFFFFFF},
    {MDB_MEMO, 203, 0x1FFFFFFF},
    {MDB_REPID, 72, 16},
    {MDB_NUMERIC, 131, 19},
    {bigIntegerColumn, 20, 8},
}};

Packer Value(ValueKind kind)
{
    Packer packer(FrameKind::Value);
    packer.Number8(static_cast<std::uint8_t>(kind));
    return packer;
}

Packer Integer(std::int64_t number)
{
    return std::move(Value(ValueKind::Integer).Number64(static_cast<std::uint64_t>(number)));
}

/// Divides a number of four parts by ten; the result is what was left over.
unsigned DivideByTen(std::array<std::uint32_t, 4> &parts)
{
    std::uint64_t left = 0;
    for (std::uint32_t &part : parts) {
        left = left << 32U | part;
        part = static_cast<std::uint32_t>(left / 10);
        left %= 10;
    }
    return static_cast<unsigned>(left);
}

Packer Decimal(Bytes bytes, int scale)
{
    const Bytes whole = Part(bytes, 0, decimalLength);
    std::array<std::uint32_t, 4> parts{};
    for (std::size_t index = 0; index < parts.size(); ++index)
        parts[index] = Number32(whole, 1 + index * 4);
    std::string digits;
    do
        digits.push_back(static_cast<char>('0' + DivideByTen(parts)));
    while (std::ranges::any_of(parts, [](std::uint32_t part) { return part != 0; }));
    std::ranges::reverse(digits);
    Packer packer = Value(ValueKind::Decimal);
    packer.Number8(whole[0] & negativeSign ? 1 : 0).Number8(static_cast<std::uint8_t>(scale)).Bytes(digits);
    return packer;
}

Packer Text(JetFile &file, Bytes bytes)
{
    return std::move(Value(ValueKind::Text).Text(file.Text(bytes)));
}

Packer Guid(Bytes bytes)
{
    const Bytes whole = Part(bytes, 0, guidLength);
    return std::move(
        Value(ValueKind::Guid).Bytes({reinterpret_cast<const char *>(whole.data()), whole.size()}));
}

Packer ValueFrom(JetFile &file, const JetColumn &column, Bytes bytes)
{
    switch (column.layout->col_type) {
    case MDB_BYTE:
        return Integer(Part(bytes, 0, 1)[0]);
    case MDB_INT:
        return Integer(static_cast<std::int16_t>(Number16(bytes, 0)));
    case MDB_LONGINT:
        return Integer(static_cast<std::int32_t>(Number32(bytes, 0)));
    case bigIntegerColumn:
        return Integer(static_cast<std::int64_t>(Number64(bytes, 0)));
    case MDB_MONEY:
        return std::move(Value(ValueKind::Money).Number64(Number64(bytes, 0)));
    case MDB_FLOAT:
        return std::move(Value(ValueKind::Single).Number32(Number32(bytes, 0)));
    case MDB_DOUBLE:
        return std::move(Value(ValueKind::Double).Number64(Number64(bytes, 0)));
    case MDB_DATETIME:
        return std::move(Value(ValueKind::Date).Number64(Number64(bytes, 0)));
    case MDB_TEXT:
        return Text(file, bytes);
    case MDB_MEMO:
        return Text(file, ReadLongValue(file, bytes));
    case MDB_REPID:
        return Guid(bytes);
    case MDB_NUMERIC:
        return Decimal(bytes, column.scale);
    default:
        return Value(ValueKind::Binary);
    }
}

} // namespace

FieldFacts FactsOf(const JetFile &file, const JetColumn &column)
{
    const auto found = std::ranges::find(columnKinds, column.layout->col_type, &ColumnKind::kind);
    if (found == columnKinds.end() || column.isCalculated)
        return {0, static_cast<std::uint32_t>(column.layout->col_size)};
    const auto told = static_cast<std::uint32_t>(column.layout->col_size);
    // Newer files have two bytes for each letter of a text.
    const bool isWide = found->kind == MDB_TEXT && !file.IsOldest();
    return {found->type, found->size != 0 ? found->size : isWide ? told / 2 : told};
}

Packer ValueOf(JetFile &file, const JetTable &table, std::size_t column)
{
    const JetColumn &described = table.Columns()[column];
    if (described.layout->col_type == MDB_BOOL)
        return std::move(Value(ValueKind::Boolean).Number8(table.IsNull(column) ? 0 : 1));
    if (table.IsNull(column))
        return Value(ValueKind::Null);
    if (described.isCalculated)
        return Value(ValueKind::Binary);
    return ValueFrom(file, described, table.Value(column));
}

} // namespace tressel::jet
