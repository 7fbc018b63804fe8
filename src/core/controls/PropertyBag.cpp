// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "controls/PropertyBag.h"

#include "base/Failure.h"

#include <algorithm>

namespace tressel {

void PropertyBag::Write(const QString &name, const Stored &value, const Stored &writeDefault)
{
    entries.removeIf([&](const auto &entry) { return entry.first == name; });
    if (value != writeDefault)
        entries.append({name, value});
}

QStringList PropertyBag::Names() const
{
    QStringList names;
    for (const auto &entry : entries)
        names.append(entry.first);
    return names;
}

const PropertyBag::Stored *PropertyBag::Find(const QString &name) const
{
    const auto found = std::find_if(entries.cbegin(), entries.cend(),
                                    [&](const auto &entry) { return entry.first == name; });
    return found == entries.cend() ? nullptr : &found->second;
}

void PropertyBag::FailWithKind()
{
    throw Failure(FailureNumber::TypeMismatch);
}

} // namespace tressel
