// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "JetTable.h"
#include "Wire.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tressel::jet {

/// An object that looks like a table.
struct CatalogEntry {
    std::u16string name;
    ObjectKind kind = ObjectKind::Table;
    std::uint32_t page = 0; ///< that describes it, of tables that lie in the file
};

/// The objects of a file that look like tables, in the order of the file's own list.
class Catalog {
public:
    /// Refuses a file whose list can't be opened.
    explicit Catalog(JetFile &file);

    /// Nothing behind the last.
    std::optional<CatalogEntry> Next();

private:
    std::size_t Column(std::u16string_view column) const;
    std::optional<ObjectKind> Kind() const;
    bool IsView(std::uint32_t kind) const;

    JetFile &file;
    JetTable table;
    std::size_t id;
    std::size_t name;
    std::size_t type;
    std::size_t flags;
};

/// The page of a table with rows of its own. Refuses a name that nothing has, a view and a linked table.
std::uint32_t PageOfTable(JetFile &file, std::u16string_view name);

} // namespace tressel::jet
