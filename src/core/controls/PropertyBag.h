// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/FontFace.h"
#include "controls/Picture.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>
#include <utility>
#include <variant>

namespace tressel {

/// What a control's design is stored in: values by name, in the order in which they were written.
/// A value that equals its default isn't stored, and a value that isn't stored reads as the default that
/// the reader names.
class PropertyBag {
public:
    /// Nothing, text, a 32-bit number, a truth, a colour's number, a font or a picture.
    using Stored = std::variant<std::monostate, QString, std::int32_t, bool, quint32, FontFace, Picture>;

    /// Stores the value unless it equals `writeDefault`.
    void Write(const QString &name, const Stored &value, const Stored &writeDefault);

    /// The same for a value that may be missing, by default.
    template <typename Kind> void WriteOptional(const QString &name, const std::optional<Kind> &value)
    {
        Write(name, value ? Stored(*value) : Stored(), Stored());
    }

    /// Fails with 13 for a stored value of another kind.
    template <typename Kind> Kind Read(const QString &name, const Kind &readDefault) const
    {
        const Stored *stored = Find(name);
        if (!stored)
            return readDefault;
        if (!std::holds_alternative<Kind>(*stored))
            FailWithKind();
        return std::get<Kind>(*stored);
    }

    /// The same for a value that may be missing.
    template <typename Kind> std::optional<Kind> ReadOptional(const QString &name) const
    {
        return Find(name) ? std::optional<Kind>(Read<Kind>(name, Kind{})) : std::nullopt;
    }

    bool Holds(const QString &name) const { return Find(name) != nullptr; }
    /// The names of what is stored, in the order of storing.
    QStringList Names() const;

private:
    const Stored *Find(const QString &name) const;
    [[noreturn]] static void FailWithKind();

    QList<std::pair<QString, Stored>> entries;
};

} // namespace tressel
