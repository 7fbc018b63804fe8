// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "JetTable.h"
#include "Wire.h"

#include <cstdint>

namespace tressel::jet {

/// A column as the answer to AskFields tells it.
struct FieldFacts {
    std::uint16_t type;
    std::uint32_t size;
};

FieldFacts FactsOf(const JetFile &file, const JetColumn &column);

/// A column's value in the table's present row, as a frame of its own.
Packer ValueOf(JetFile &file, const JetTable &table, std::size_t column);

} // namespace tressel::jet
