// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/database/FieldSelections.h"

#include "base/Failure.h"

namespace tressel {

void FieldSelections::LoadSaveSelects(QString &Text, bool Save)
{
    const auto length = static_cast<qsizetype>(cells.size());
    if (Save) {
        Text.clear();
        for (const bool cell : cells)
            Text += cell ? u'1' : u'0';
        return;
    }
    const bool isWhole = Text.size() == length;
    for (qsizetype place = 0; place < length; ++place)
        cells[static_cast<std::size_t>(place)] = !isWhole || Text.at(place) != u'0';
}

std::size_t FieldSelections::Place(int row, int column)
{
    if (row < 0 || row >= Rows || column < 0 || column >= Columns)
        throw Failure(FailureNumber::SubscriptOutOfRange);
    return static_cast<std::size_t>(row) * Columns + static_cast<std::size_t>(column);
}

} // namespace tressel
