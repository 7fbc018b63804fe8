// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <cstdint>

namespace tressel {

/// What kind of thing a field holds, as `FieldClass` numbers it.
enum class FieldKind : std::int16_t { Other = 0, Number = 1, Currency = 2, Boolean = 3, Date = 4 };

struct FieldType {
    QString name;
    FieldKind kind = FieldKind::Other;
    std::int32_t forcedSize = 0; ///< 0: the field's own size stays
};

/// The name and kind that go with a provider's numeric type; "???" for one that isn't in the table.
FieldType FieldTypeOf(std::int16_t type);

} // namespace tressel
