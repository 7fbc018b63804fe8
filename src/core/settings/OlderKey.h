// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/SettingsHive.h"

#include <QString>

namespace tressel {

// The store of the older product: text below one fixed key.

/// The stored text, cut at its first NUL; a number as a decimal. A null string if there is none, if it
/// is of another kind, or if it takes more than 1024 bytes in the 8-bit code page.
QString LegacyGetValue(SettingsHive &hive, const QString &name);

/// Stores text; an empty one as one blank. False if nothing can be written.
bool LegacySetValue(SettingsHive &hive, const QString &name, const QString &value);

/// The stored text. If that is null or empty, stores the default and gives it.
QString LegacyGetOrSet(SettingsHive &hive, const QString &name, const QString &defaultValue);

} // namespace tressel
