// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <optional>
#include <variant>

namespace tressel {

/// A value of a kind that none of the stores writes: kept byte for byte.
struct OtherKindValue {
    std::uint32_t kind = 0; ///< 2 expandable text, 3 bytes, any other the platform's own
    QByteArray bytes;
    bool operator==(const OtherKindValue &) const = default;
};

/// What a name in the hive holds: text (kind 1), a 32-bit number (kind 4) or a value of another kind.
using HiveValue = std::variant<QString, std::uint32_t, OtherKindValue>;

/// A tree of keys, each with named, typed values: where all settings live. Key paths have "\" between
/// their levels; keys and names compare without regard to case. An empty value is a value.
class SettingsHive {
public:
    enum class Root {
        User, ///< the user's own settings
        Machine, ///< facts of the whole machine, which can't be written
    };

    virtual ~SettingsHive() = default;

    virtual std::optional<HiveValue> Read(Root root, const QString &key, const QString &name) = 0;
    /// Makes the key if it isn't there. False if nothing can be written.
    virtual bool Write(Root root, const QString &key, const QString &name, const HiveValue &value) = 0;
    /// Writes down what is still held in memory; called when an event ends and before the process does.
    virtual void Flush() = 0;
};

} // namespace tressel
