// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/SettingsHive.h"

#include <QString>

namespace tressel {

/// Text stored for an application under a section and a key; the default if there is none.
/// A "\" in one of the names is a character like any other.
QString GetApplicationSetting(SettingsHive &hive, const QString &application, const QString &section,
                              const QString &key, const QString &defaultValue = {});

/// Stores text for an application under a section and a key. Nothing tells if it couldn't be stored.
void SaveApplicationSetting(SettingsHive &hive, const QString &application, const QString &section,
                            const QString &key, const QString &value);

} // namespace tressel
