// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

namespace tressel {

/// The database that lies in the program folder, byte for byte: some small tables with names that are worth
/// making folders of, so that a newcomer has something to load.
QByteArray SampleDatabase();

} // namespace tressel
