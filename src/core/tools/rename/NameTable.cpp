// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/rename/NameTable.h"

#include <QHashFunctions>

#include <algorithm>
#include <bit>

namespace tressel {

namespace {

/// Never 0.
quint32 MarkOf(QStringView name)
{
    const size_t hash = qHash(name);
    return static_cast<quint32>(hash ^ (hash >> 32)) | 1U << 31;
}

} // namespace

NameTable::NameTable(qsizetype names)
    : marks(std::bit_ceil(static_cast<size_t>(std::max<qsizetype>(names, 1)) * 2))
    , numbers(marks.size())
{
    all.reserve(static_cast<size_t>(names));
}

qsizetype NameTable::PutOrFind(QStringView name, qsizetype number)
{
    const quint32 mark = MarkOf(name);
    const size_t place = PlaceOf(name, mark);
    if (marks[place] == 0) {
        marks[place] = mark;
        numbers[place] = static_cast<quint32>(all.size());
        all.push_back({name, number});
    }
    return all[numbers[place]].number;
}

qsizetype NameTable::Find(QStringView name) const
{
    const size_t place = PlaceOf(name, MarkOf(name));
    return marks[place] == 0 ? -1 : all[numbers[place]].number;
}

size_t NameTable::PlaceOf(QStringView name, quint32 mark) const
{
    const size_t last = marks.size() - 1;
    size_t place = mark & last;
    for (; marks[place] != 0; place = (place + 1) & last) {
        if (marks[place] == mark && all[numbers[place]].name == name)
            break;
    }
    return place;
}

} // namespace tressel
