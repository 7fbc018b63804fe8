// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "support/JetWriter.h"

#include "support/JetValueBytes.h"

#include <algorithm>
#include <bit>
#include <optional>
#include <utility>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype pageLength = 4096;
constexpr std::uint32_t catalogPage = 2;
constexpr std::uint16_t deletedFlag = 0x8000;
constexpr std::uint16_t pointerFlag = 0x4000;
constexpr std::uint32_t ownerOfLongValues = 0x4C41564C; // "LVAL"
constexpr quint32 newMark = 0x659; // stands in every definition
constexpr qsizetype rowIndex = 12; // on a data page: the number of rows, then the place of each

/// RC4 with the key that all files share.
void Scramble(QByteArray &page, qsizetype from, qsizetype count)
{
    const QByteArray key("\xC7\xDA\x39\x6B", 4);
    QByteArray state(256, '\0');
    for (int index = 0; index < 256; ++index)
        state[index] = static_cast<char>(index);
    const auto at = [&state](int index) { return static_cast<unsigned char>(state.at(index)); };
    const auto swap = [&state](int one, int other) {
        const char kept = state.at(one);
        state[one] = state.at(other);
        state[other] = kept;
    };
    int other = 0;
    for (int index = 0; index < 256; ++index) {
        other = (other + at(index) + static_cast<unsigned char>(key.at(index % 4))) % 256;
        swap(index, other);
    }
    int first = 0;
    int second = 0;
    for (qsizetype place = from; place < from + count; ++place) {
        first = (first + 1) % 256;
        second = (second + at(first)) % 256;
        swap(first, second);
        page[place] = static_cast<char>(page.at(place) ^ state.at((at(first) + at(second)) % 256));
    }
}

QByteArray HeaderPage()
{
    QByteArray page(pageLength, '\0');
    page.replace(0, 20, QByteArray("\0\1\0\0Standard Jet DB\0", 20));
    Put(page, 0x14, 1, 4);
    Put(page, 0x3C, 1252, 2);
    // The day on which it was made hides the password: none is the day itself, over and over.
    const double day = 38077;
    Put(page, 0x72, std::bit_cast<quint64>(day), 8);
    for (qsizetype place = 0x42; place < 0x42 + 40; place += 4)
        Put(page, place, static_cast<quint64>(day), 4);
    Scramble(page, 0x18, 128);
    return page;
}

QByteArray DataPage(std::uint32_t owner)
{
    QByteArray page(pageLength, '\0');
    Put(page, 0, 0x0101, 2);
    Put(page, 2, pageLength - rowIndex - 2, 2);
    Put(page, 4, owner, 4);
    return page;
}

/// Puts a row at the end of a page's free space. Nothing if there is no room; else its number.
std::optional<int> PutRow(QByteArray &page, const QByteArray &row, std::uint16_t flags)
{
    const auto count = static_cast<int>(Get(page, rowIndex, 2));
    const auto free = static_cast<qsizetype>(Get(page, 2, 2));
    if (row.size() + 2 > free || count >= 255)
        return {};
    const qsizetype last =
        count == 0 ? pageLength : static_cast<qsizetype>(Get(page, rowIndex + count * 2, 2) & 0x1FFFU);
    const qsizetype place = last - row.size();
    page.replace(place, row.size(), row);
    Put(page, rowIndex, static_cast<quint64>(count) + 1, 2);
    Put(page, rowIndex + 2 + count * 2, static_cast<quint64>(place) | flags, 2);
    Put(page, 2, static_cast<quint64>(free - row.size() - 2), 2);
    return count;
}

bool IsVariable(const WrittenColumn &column)
{
    return column.type == fieldTypes::Text || column.type == fieldTypes::Memo
        || column.type == fieldTypes::Binary || column.type == fieldTypes::Ole;
}

qsizetype VariableCount(const WrittenTable &table)
{
    return std::ranges::count_if(table.columns, IsVariable);
}

/// How a column stands in the definition of its table.
QByteArray ColumnBytes(const WrittenTable &table, qsizetype index, qsizetype fixedOffset, qsizetype variable)
{
    const WrittenColumn &column = table.columns.at(index);
    QByteArray bytes(25, '\0');
    bytes[0] = static_cast<char>(KindOf(column.type));
    Put(bytes, 1, newMark, 4);
    Put(bytes, 5, static_cast<quint64>(index), 2);
    Put(bytes, 7, static_cast<quint64>(variable), 2);
    Put(bytes, 9, static_cast<quint64>(index + table.firstOrdinal), 2);
    if (column.type == fieldTypes::Numeric) {
        bytes[11] = 18;
        bytes[12] = static_cast<char>(column.scale);
    } else if (IsVariable(column)) {
        Put(bytes, 11, 0x0409, 2);
    }
    bytes[15] = IsVariable(column) ? 2 : 3;
    bytes[16] = table.isCompressed && IsVariable(column) ? 1 : 0;
    Put(bytes, 21, IsVariable(column) ? 0 : static_cast<quint64>(fixedOffset), 2);
    Put(bytes, 23, static_cast<quint64>(LengthOf(column)), 2);
    return bytes;
}

} // namespace

JetWriter::JetWriter()
{
    pages.append(HeaderPage());
    mapPage = NewPage();
    Page(mapPage) = DataPage(0);
    NewPage(); // describes the catalog
    catalog.name = u"MSysObjects"_s;
    catalog.flags = 0x80000000;
    catalog.columns = {{u"Id"_s, fieldTypes::Long},        {u"ParentId"_s, fieldTypes::Long},
                       {u"Name"_s, fieldTypes::Text, 255}, {u"Type"_s, fieldTypes::Integer},
                       {u"Flags"_s, fieldTypes::Long},     {u"LvProp"_s, fieldTypes::Ole}};
    AddObject(catalog.name, 1, catalog.flags);
}

void JetWriter::AddTable(const WrittenTable &table)
{
    const Layout layout{table, NewPage()};
    WriteTable(layout);
    AddObject(table.name, 1, table.flags);
    catalog.rows.last().values[0] = std::int64_t{layout.page};
}

void JetWriter::AddObject(const QString &name, std::int16_t type, std::uint32_t flags)
{
    // Ids of what has no pages only have to differ.
    const std::int64_t id = catalog.rows.isEmpty() ? catalogPage : -0x80000000LL + catalog.rows.size();
    catalog.rows.append({{id, std::int64_t{0x0F000001}, name, std::int64_t{type},
                          std::int64_t{static_cast<std::int32_t>(flags)}, std::monostate()}});
}

QByteArray JetWriter::Bytes()
{
    WriteTable({catalog, catalogPage});
    return pages.join();
}

std::uint32_t JetWriter::NewPage()
{
    pages.append(QByteArray(pageLength, '\0'));
    return static_cast<std::uint32_t>(pages.size() - 1);
}

void JetWriter::WriteTable(const Layout &layout)
{
    QList<std::uint32_t> owned;
    std::uint32_t page = 0;
    std::uint32_t otherPage = 0;
    for (const WrittenRow &row : layout.table.rows) {
        const QByteArray bytes = RowBytes(layout.table, row.values);
        if (row.fate == RowFate::Moved) {
            const quint32 target = AddRow(layout.page, otherPage, bytes, deletedFlag, owned);
            AddRow(layout.page, page, Number(target, 4), pointerFlag, owned);
        } else {
            AddRow(layout.page, page, bytes, row.fate == RowFate::Deleted ? deletedFlag | pointerFlag : 0,
                   owned);
        }
    }
    std::ranges::sort(owned);
    const quint32 usedMap = WriteMap(owned);
    WriteDefinition(layout, usedMap, WriteMap({}));
}

/// Puts a row on the page, or on a new one that the page's number then names.
quint32 JetWriter::AddRow(std::uint32_t owner, std::uint32_t &page, const QByteArray &row,
                          std::uint16_t flags, QList<std::uint32_t> &owned)
{
    while (true) {
        if (page != 0) {
            if (const auto number = PutRow(Page(page), row, flags))
                return page << 8U | static_cast<quint32>(*number);
        }
        page = NewPage();
        Page(page) = DataPage(owner);
        owned.append(page);
    }
}

/// A map of pages: a bit for each, in the map's own row if all lie near each other, else on pages of their
/// own.
quint32 JetWriter::WriteMap(const QList<std::uint32_t> &owned)
{
    constexpr std::uint32_t inRow = 64 * 8;
    constexpr std::uint32_t bitsAPage = (pageLength - 4) * 8;
    QByteArray map(69, '\0');
    const std::uint32_t first = owned.isEmpty() ? 0 : owned.first() / 8 * 8;
    const auto setBit = [](QByteArray &bytes, qsizetype from, std::uint32_t bit) {
        char &byte = bytes[from + bit / 8];
        byte = static_cast<char>(byte | 1 << bit % 8);
    };
    if (owned.isEmpty() || owned.last() < first + inRow) {
        Put(map, 1, first, 4);
        for (const std::uint32_t page : owned)
            setBit(map, 5, page - first);
    } else {
        map[0] = 1;
        for (const std::uint32_t page : owned) {
            const qsizetype entry = 1 + static_cast<qsizetype>(page / bitsAPage) * 4;
            if (Get(map, entry, 4) == 0) {
                const std::uint32_t bits = NewPage();
                Put(Page(bits), 0, 0x0105, 2);
                Put(map, entry, bits, 4);
            }
            setBit(Page(static_cast<std::uint32_t>(Get(map, entry, 4))), 4, page % bitsAPage);
        }
    }
    QList<std::uint32_t> none;
    return AddRow(0, mapPage, map, 0, none);
}

void JetWriter::WriteDefinition(const Layout &layout, quint32 usedMap, quint32 freeMap)
{
    const WrittenTable &table = layout.table;
    QByteArray bytes(63, '\0');
    Put(bytes, 0, 0x0102, 2);
    Put(bytes, 12, newMark, 4);
    const auto living =
        std::ranges::count_if(table.rows, [](const WrittenRow &row) { return row.fate != RowFate::Deleted; });
    Put(bytes, 16, static_cast<quint64>(living), 4);
    bytes[40] = table.flags & 0x80000000 ? 'S' : 'N';
    Put(bytes, 41, static_cast<quint64>(table.columns.size()), 2);
    Put(bytes, 43, static_cast<quint64>(VariableCount(table)), 2);
    Put(bytes, 45, static_cast<quint64>(table.columns.size()), 2);
    Put(bytes, 55, usedMap, 4);
    Put(bytes, 59, freeMap, 4);
    qsizetype fixedOffset = 0;
    qsizetype variable = 0;
    for (qsizetype index = 0; index < table.columns.size(); ++index) {
        bytes += ColumnBytes(table, index, fixedOffset, variable);
        if (IsVariable(table.columns.at(index)))
            ++variable;
        else
            fixedOffset += FixedLengthOf(table.columns.at(index));
    }
    for (const WrittenColumn &column : table.columns)
        bytes += Number(static_cast<quint64>(column.name.size()) * 2, 2) + Utf16(column.name);
    bytes += "\xFF\xFF";
    Put(bytes, 8, static_cast<quint64>(bytes.size() - 8), 4);

    // What is longer than a page goes on behind the head of another one.
    std::uint32_t page = layout.page;
    Page(page).replace(0, qMin(bytes.size(), pageLength), bytes.first(qMin(bytes.size(), pageLength)));
    for (qsizetype done = pageLength; done < bytes.size(); done += pageLength - 8) {
        const std::uint32_t next = NewPage();
        Put(Page(page), 4, next, 4);
        page = next;
        Put(Page(page), 0, 0x0102, 2);
        const QByteArray piece = bytes.sliced(done, qMin(bytes.size() - done, pageLength - 8));
        Page(page).replace(8, piece.size(), piece);
    }
}

QByteArray JetWriter::RowBytes(const WrittenTable &table, const QList<DatabaseValue> &values)
{
    QByteArray row = Number(static_cast<quint64>(table.columns.size()), 2);
    QByteArray present((table.columns.size() + 7) / 8, '\0');
    QList<QByteArray> variable;
    for (qsizetype index = 0; index < table.columns.size(); ++index) {
        const WrittenColumn &column = table.columns.at(index);
        const DatabaseValue &value = values.at(index);
        // A yes/no value is its own mark; of all else the mark tells that there is one.
        const auto *yes = std::get_if<bool>(&value);
        if (yes ? *yes : !std::holds_alternative<std::monostate>(value))
            present[index / 8] = static_cast<char>(present.at(index / 8) | 1 << index % 8);
        if (!IsVariable(column))
            row += FixedBytes(column, value);
        else
            variable.append(std::holds_alternative<std::monostate>(value) ? QByteArray()
                                : column.type == fieldTypes::Memo || column.type == fieldTypes::Ole
                                ? LongValue(VariableBytes(table.isCompressed, value))
                                : VariableBytes(table.isCompressed, value));
    }
    if (variable.isEmpty())
        return row + present;
    QByteArray places;
    for (const QByteArray &bytes : variable) {
        places.prepend(Number(static_cast<quint64>(row.size()), 2));
        row += bytes;
    }
    const QByteArray end = Number(static_cast<quint64>(row.size()), 2);
    return row + end + places + Number(static_cast<quint64>(variable.size()), 2) + present;
}

/// What a row has of a long value: all of it, or where it lies.
QByteArray JetWriter::LongValue(const QByteArray &bytes)
{
    constexpr qsizetype mostInRow = 64;
    constexpr qsizetype mostOnPage = pageLength - rowIndex - 4;
    constexpr quint32 inRow = 0x80000000;
    constexpr quint32 onePiece = 0x40000000;
    const auto length = static_cast<quint32>(bytes.size());
    if (bytes.size() <= mostInRow)
        return Number(length | inRow, 4) + QByteArray(8, '\0') + bytes;
    QList<std::uint32_t> none;
    if (bytes.size() <= mostOnPage) {
        const quint32 pointer = AddRow(ownerOfLongValues, longPage, bytes, 0, none);
        return Number(length | onePiece, 4) + Number(pointer, 4) + QByteArray(4, '\0');
    }
    // From the last piece to the first, since each one tells where the next is.
    constexpr qsizetype piece = mostOnPage - 4;
    quint32 next = 0;
    for (qsizetype place = (bytes.size() - 1) / piece * piece; place >= 0; place -= piece)
        next = AddRow(ownerOfLongValues, longPage, Number(next, 4) + bytes.mid(place, piece), 0, none);
    return Number(length, 4) + Number(next, 4) + QByteArray(4, '\0');
}

} // namespace tressel
