// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "JetTable.h"

#include "Definition.h"
#include "Refusal.h"

#include <algorithm>

namespace tressel::jet {

namespace {

constexpr int mostHops = 16; // of a row that was moved again and again
constexpr std::size_t longestName = 1024; // in bytes, several times what a file may have
// In the newer formats' description of a column.
constexpr std::size_t scalePlace = 12;
constexpr std::size_t calculatedPlace = 16;
constexpr std::uint8_t calculatedFlags = 0xC0;
constexpr std::size_t ownerPlace = 4; // on a data page: the page of the table that it belongs to

char16_t Folded(char16_t letter)
{
    return letter >= u'A' && letter <= u'Z' ? static_cast<char16_t>(letter + (u'a' - u'A')) : letter;
}

MdbColumn *ColumnOf(const MdbTableDef &table, std::size_t index)
{
    return static_cast<MdbColumn *>(g_ptr_array_index(table.columns, index));
}

} // namespace

bool AreSameNames(std::u16string_view one, std::u16string_view other)
{
    return std::ranges::equal(one, other, {}, Folded, Folded);
}

JetTable::JetTable(JetFile &databaseFile, std::uint32_t definition)
    : file(databaseFile)
{
    entry.mdb = &file.Handle();
    entry.object_type = MDB_TABLE;
    entry.table_pg = definition;
    table.reset(mdb_read_table(&entry));
    // Without a usage map the library would run through a null pointer.
    if (!table || table->usage_map == nullptr || table->num_cols > MDB_MAX_COLS)
        throw Refusal{FailureCode::Damaged};
    if (mdb_read_columns(table.get()) == nullptr || table->columns->len != table->num_cols)
        throw Refusal{FailureCode::Damaged};
    for (std::size_t index = 0; index < table->num_cols; ++index)
        columns.push_back({.layout = ColumnOf(*table, index)});
    ReadNames();
}

/// The library cuts names at 256 bytes and makes question marks of letters outside the first plane, so they
/// are read once more.
void JetTable::ReadNames()
{
    const MdbFormatConstants &format = *file.Handle().fmt;
    const std::size_t indexes = static_cast<std::size_t>(table->num_real_idxs) * format.tab_ridx_entry_size;
    Definition definition(file, static_cast<std::uint32_t>(entry.table_pg),
                          format.tab_cols_start_offset + indexes);
    std::vector<std::vector<std::uint8_t>> descriptions;
    for (std::size_t index = 0; index < columns.size(); ++index)
        descriptions.push_back(definition.Take(format.tab_col_entry_size));
    for (const std::vector<std::uint8_t> &description : descriptions) {
        const std::vector<std::uint8_t> length = definition.Take(file.IsOldest() ? 1 : 2);
        const std::size_t count = file.IsOldest() ? length[0] : Number16(length, 0);
        if (count == 0 || count > longestName)
            throw Refusal{FailureCode::Damaged};
        const std::u16string name = file.Text(definition.Take(count));
        const auto named = std::ranges::find_if(columns, [&](const JetColumn &column) {
            return column.name.empty() && column.layout->col_num == description[format.col_num_offset];
        });
        if (name.empty() || named == columns.end())
            throw Refusal{FailureCode::Damaged};
        named->name = name;
        // The oldest format has neither.
        if (!file.IsOldest()) {
            named->scale = description[scalePlace];
            named->isCalculated = (description[calculatedPlace] & calculatedFlags) != 0;
        }
    }
}

std::optional<std::size_t> JetTable::Find(std::u16string_view name) const
{
    const auto found = std::ranges::find_if(
        columns, [&](const JetColumn &column) { return AreSameNames(column.name, name); });
    if (found == columns.end())
        return {};
    return static_cast<std::size_t>(found - columns.begin());
}

bool JetTable::NextRow()
{
    while (true) {
        if (row >= rows) {
            if (!NextPage())
                return false;
        } else if (Locate(row++)) {
            return true;
        }
    }
}

bool JetTable::NextPage()
{
    const int next = mdb_read_next_dpg(table.get());
    // What isn't in the file any more reads as zeros.
    if (!file.HasPage(table->cur_phys_pg) || (next <= 0 && HasMorePages()))
        throw Refusal{FailureCode::Damaged};
    if (next <= 0)
        return false;
    // The map has each page once, in their order; whatever comes back would never end.
    if (static_cast<std::uint32_t>(next) <= page)
        throw Refusal{FailureCode::Damaged};
    page = static_cast<std::uint32_t>(next);
    rows = file.RowCount(file.Page());
    row = 0;
    return true;
}

/// Whether there are pages behind the one that the library stopped at: to it, one that can't be read is as
/// good as none.
bool JetTable::HasMorePages() const
{
    const std::uint32_t at = table->cur_phys_pg;
    const int listed =
        mdb_map_find_next(&file.Handle(), table->usage_map, static_cast<unsigned>(table->map_sz), at);
    if (listed >= 0)
        return listed > 0 && static_cast<std::uint32_t>(listed) != at;
    // A map that it doesn't know: it went through all pages of the file, and has counted the one it tried.
    return at > 0 && file.HasPage(at - 1);
}

bool JetTable::Locate(std::size_t number)
{
    const Bytes bytes = file.Page();
    const RowPlace place = file.PlaceOf(bytes, number);
    if (place.isDeleted)
        return false;
    if (place.isPointer)
        return Follow(Part(bytes, place.start, place.length));
    holder = bytes;
    Crack(place);
    return true;
}

/// A row that grew out of its page left a pointer behind. Where it lies now it counts as deleted, so that
/// nobody meets it twice.
bool JetTable::Follow(Bytes pointer)
{
    for (int hop = 0; hop < mostHops; ++hop) {
        const std::uint32_t target = Number32(pointer, 0);
        const Bytes bytes = file.OtherPage(target >> 8U);
        const RowPlace place = file.PlaceOf(bytes, target & 0xFFU);
        if (Number32(bytes, ownerPlace) != entry.table_pg)
            throw Refusal{FailureCode::Damaged};
        if (!place.isPointer) {
            movedPage.assign(bytes.begin(), bytes.end());
            holder = movedPage;
            mdb_swap_pgbuf(&file.Handle());
            Crack(place);
            mdb_swap_pgbuf(&file.Handle());
            return true;
        }
        pointer = Part(bytes, place.start, place.length);
    }
    throw Refusal{FailureCode::Damaged};
}

/// Has the library find the fields in a row of the page that it has before it.
void JetTable::Crack(const RowPlace &place)
{
    const std::size_t countLength = file.IsOldest() ? 1 : 2;
    const Bytes bytes = Part(holder, place.start, place.length);
    // The shortest row: the count, a map of one byte and, in a table with columns of changing length, what
    // the library looks for behind it.
    const std::size_t variable = table->num_var_cols > 0 ? countLength + 1 : 0;
    if (bytes.size() < countLength + 1 + variable)
        throw Refusal{FailureCode::Damaged};
    presentColumns = file.IsOldest() ? bytes[0] : Number16(bytes, 0);
    present = place;
    if (mdb_crack_row(table.get(), static_cast<int>(place.start), place.length, fields.data()) < 0)
        throw Refusal{FailureCode::Damaged};
}

bool JetTable::IsNull(std::size_t column) const
{
    // By the number that its bit in the row has, which counts deleted columns too.
    const auto number = static_cast<std::size_t>(columns[column].layout->col_num);
    return number >= presentColumns || fields[column].is_null != 0;
}

Bytes JetTable::Value(std::size_t column) const
{
    const MdbField &field = fields[column];
    if (field.start < 0 || field.siz < 0)
        throw Refusal{FailureCode::Damaged};
    const auto start = static_cast<std::size_t>(field.start);
    const auto length = static_cast<std::size_t>(field.siz);
    if (start < present.start || start + length > present.start + present.length)
        throw Refusal{FailureCode::Damaged};
    return Part(holder, start, length);
}

} // namespace tressel::jet
