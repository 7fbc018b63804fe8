// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "Catalog.h"

#include "Refusal.h"

#include <optional>

namespace tressel::jet {

namespace {

/// Describes the table of all objects, in every file.
constexpr std::uint32_t catalogPage = 2;
constexpr std::uint32_t pageMask = 0x00FFFFFF;

// The kinds of objects, as the catalog's column "Type" has them.
constexpr std::uint16_t localTable = 1;
constexpr std::uint16_t tableOfServer = 4;
constexpr std::uint16_t query = 5;
constexpr std::uint16_t tableOfOtherFile = 6;

// Bits of the column "Flags".
constexpr std::uint32_t systemFlags = 0x80000002;
constexpr std::uint32_t queryKindMask = 0xF0;
constexpr std::uint32_t selectQuery = 0x00;
constexpr std::uint32_t unionQuery = 0x80;

} // namespace

Catalog::Catalog(JetFile &databaseFile)
    : file(databaseFile)
    , table(databaseFile, catalogPage)
    , id(Column(u"Id"))
    , name(Column(u"Name"))
    , type(Column(u"Type"))
    , flags(Column(u"Flags"))
{
}

std::optional<CatalogEntry> Catalog::Next()
{
    while (table.NextRow()) {
        if (table.IsNull(id) || table.IsNull(name) || table.IsNull(type))
            continue;
        if (const std::optional<ObjectKind> kind = Kind())
            return CatalogEntry{file.Text(table.Value(name)), *kind, Number32(table.Value(id), 0) & pageMask};
    }
    return {};
}

std::size_t Catalog::Column(std::u16string_view column) const
{
    const auto found = table.Find(column);
    if (!found)
        throw Refusal{FailureCode::Damaged};
    return *found;
}

/// Nothing for an object that is no table and doesn't look like one.
std::optional<ObjectKind> Catalog::Kind() const
{
    const std::uint32_t bits = table.IsNull(flags) ? 0 : Number32(table.Value(flags), 0);
    switch (Number16(table.Value(type), 0)) {
    case localTable:
        return bits & systemFlags ? ObjectKind::SystemTable : ObjectKind::Table;
    case tableOfServer:
    case tableOfOtherFile:
        return ObjectKind::LinkedTable;
    case query:
        return IsView(bits & queryKindMask) ? std::optional(ObjectKind::View) : std::nullopt;
    default:
        return {};
    }
}

/// Queries that do something are no views, and neither are the nameless ones behind forms and reports, whose
/// names begin with "~".
bool Catalog::IsView(std::uint32_t kind) const
{
    return (kind == selectQuery || kind == unionQuery) && !file.Text(table.Value(name)).starts_with(u'~');
}

std::uint32_t PageOfTable(JetFile &file, std::u16string_view name)
{
    Catalog catalog(file);
    std::optional<CatalogEntry> found = catalog.Next();
    while (found && !AreSameNames(found->name, name))
        found = catalog.Next();
    if (!found)
        throw Refusal{FailureCode::NoSuchTable};
    if (found->kind == ObjectKind::View)
        throw Refusal{FailureCode::IsView};
    if (found->kind == ObjectKind::LinkedTable)
        throw Refusal{FailureCode::IsLinked};
    return found->page;
}

} // namespace tressel::jet
