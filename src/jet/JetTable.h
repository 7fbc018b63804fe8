// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "JetFile.h"

#include <array>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace tressel::jet {

struct JetColumn {
    std::u16string name = {};
    MdbColumn *layout = nullptr; ///< as the library reads it
    int scale = 0; ///< digits behind the point of a decimal number
    bool isCalculated = false; ///< its values lie in a form of their own
};

/// Names of tables and columns compare without regard to the case of plain letters.
bool AreSameNames(std::u16string_view one, std::u16string_view other);

/// One table: its columns, and its rows one after the other in the order of its pages.
class JetTable {
public:
    /// `page` is the one that describes the table. Refuses one that doesn't.
    JetTable(JetFile &file, std::uint32_t page);

    const std::vector<JetColumn> &Columns() const { return columns; }
    /// Nothing if there is no column of that name.
    std::optional<std::size_t> Find(std::u16string_view name) const;

    /// Goes to the next row. False behind the last.
    bool NextRow();
    /// Whether a column's value in this row is null. A yes/no column has its value here: null stands for no.
    bool IsNull(std::size_t column) const;
    /// The bytes of a column's value in this row, good until NextRow.
    Bytes Value(std::size_t column) const;

private:
    struct Free {
        void operator()(MdbTableDef *table) const { mdb_free_tabledef(table); }
    };

    void ReadNames();
    bool NextPage();
    bool HasMorePages() const;
    bool Locate(std::size_t number);
    bool Follow(Bytes pointer);
    void Crack(const RowPlace &place);

    JetFile &file;
    MdbCatalogEntry entry{};
    std::unique_ptr<MdbTableDef, Free> table;
    std::vector<JetColumn> columns;

    std::uint32_t page = 0; ///< of the rows, 0 before the first
    std::size_t rows = 0; ///< on that page
    std::size_t row = 0; ///< the next one to look at

    std::vector<std::uint8_t> movedPage; ///< holds the present row if it doesn't lie where its place is
    Bytes holder; ///< the page that holds the present row
    RowPlace present{};
    std::size_t presentColumns = 0; ///< that the row knows of: columns added later aren't in it
    std::array<MdbField, MDB_MAX_COLS> fields{};
};

} // namespace tressel::jet
