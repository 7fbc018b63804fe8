// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "JetFile.h"
#include "Wire.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace tressel::jet {

/// An object that looks like a table.
struct CatalogEntry {
    std::u16string name;
    ObjectKind kind = ObjectKind::Table;
    std::uint32_t page = 0; ///< that describes it, of tables that lie in the file
};

/// Goes through the objects of a file that look like tables, in the order of the file's own list.
void ForEachObject(JetFile &file, const std::function<void(const CatalogEntry &)> &take);

/// The page of a table with rows of its own. Refuses a name that nothing has, a view and a linked table.
std::uint32_t PageOfTable(JetFile &file, std::u16string_view name);

} // namespace tressel::jet
