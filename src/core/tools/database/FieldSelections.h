// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <array>

namespace tressel {

/// Which fields are checked, for each table: rows by the table's place in its list, columns by the field's.
class FieldSelections {
public:
    static constexpr int Rows = 6;
    static constexpr int Columns = 256;

    /// All cells true.
    FieldSelections() { cells.fill(true); }

    /// Both fail with 9 outside the grid.
    bool At(int row, int column) const { return cells[Place(row, column)]; }
    void Set(int row, int column, bool isChecked) { cells[Place(row, column)] = isChecked; }

    /// With Save: the grid as text, row by row, "1" for a true cell and "0" for a false one. Without: a cell
    /// is false where the text has "0"; all are true if the text hasn't one letter for each cell.
    void LoadSaveSelects(QString &Text, bool Save);

private:
    static std::size_t Place(int row, int column);

    std::array<bool, std::size_t{Rows} * Columns> cells{};
};

} // namespace tressel
