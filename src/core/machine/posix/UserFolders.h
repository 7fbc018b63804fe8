// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

namespace tressel {

/// The user's home folder, without a separator at its end: $HOME, or what the system's list of users says.
/// Empty if neither knows one.
QByteArray HomeFolder();

/// Where programs keep settings of the user: $XDG_CONFIG_HOME if it is a whole path, else .config in the home
/// folder. Empty if there is neither.
QByteArray UserConfigFolder();

/// Where programs keep data of the user: $XDG_DATA_HOME if it is a whole path, else .local/share in the
/// home folder, as the XDG base directories have it.
QByteArray UserDataFolder();

/// Makes a folder and those above it, for the user alone. What can't be made shows when something is written
/// there.
void MakeUserFolder(const QByteArray &folder);

} // namespace tressel
