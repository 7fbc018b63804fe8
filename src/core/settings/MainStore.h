// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/Numbers.h"
#include "machine/SettingsHive.h"

#include <QString>

#include <cstdint>

namespace tressel {

/// How a write to the store ended.
enum class StoreStatus : std::int32_t {
    Done = 0,
    AccessDenied = 5,
};

/// The stored value, whatever kind the default is of: text without the blanks at its end and cut at its
/// first NUL, or a number. The default if there is no such value or it is of another kind.
Value GetKeyValue(SettingsHive &hive, SettingsHive::Root root, const QString &subkey, const QString &name,
                  const Value &defaultValue);

/// Stores text, the empty one included. A null string is stored as the empty one.
StoreStatus SetKeyString(SettingsHive &hive, SettingsHive::Root root, const QString &subkey,
                         const QString &name, const QString &value);

/// Stores a number in 32 bits.
StoreStatus SetKeyDword(SettingsHive &hive, SettingsHive::Root root, const QString &subkey,
                        const QString &name, std::int32_t value);

/// The stored text, cut at its first NUL, blanks kept. Empty if there is none or it is of another kind.
QString GetKeyString(SettingsHive &hive, SettingsHive::Root root, const QString &subkey, const QString &name);

} // namespace tressel
