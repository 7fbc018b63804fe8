// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/database/FieldTypes.h"

#include <algorithm>
#include <array>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

struct Row {
    std::int16_t type;
    const char16_t *name;
    FieldKind kind;
    std::int32_t forcedSize = 0;
};

constexpr std::array<Row, 23> rows{{
    {1, u"Y/N", FieldKind::Boolean},       {2, u"Int", FieldKind::Number},
    {3, u"IntLong", FieldKind::Number},    {4, u"Single", FieldKind::Number},
    {5, u"Double", FieldKind::Number},     {6, u"Currency", FieldKind::Currency},
    {7, u"DateTime", FieldKind::Date},     {8, u"Unicode", FieldKind::Other},
    {9, u"IDesp", FieldKind::Number},      {10, u"ErrCode", FieldKind::Number},
    {11, u"Boolean", FieldKind::Boolean},  {12, u"Variant", FieldKind::Other},
    {16, u"IntSmall", FieldKind::Number},  {17, u"IntSmall", FieldKind::Number},
    {20, u"IntLong", FieldKind::Number},   {129, u"Text", FieldKind::Other},
    {133, u"DateTime", FieldKind::Date},   {134, u"Time", FieldKind::Date},
    {135, u"DateStamp", FieldKind::Date},  {200, u"Text", FieldKind::Other},
    {201, u"Memo", FieldKind::Other, 256}, {202, u"Text", FieldKind::Other},
    {203, u"Memo", FieldKind::Other, 256},
}};

} // namespace

FieldType FieldTypeOf(std::int16_t type)
{
    const auto found = std::ranges::find(rows, type, &Row::type);
    if (found == rows.end())
        return {u"???"_s};
    return {QString::fromUtf16(found->name), found->kind, found->forcedSize};
}

} // namespace tressel
