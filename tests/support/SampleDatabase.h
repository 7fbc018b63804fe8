// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

#include <cstdint>

namespace tressel {

/// The database that lies in the program folder, byte for byte: some small tables with names that are worth
/// making folders of, so that a newcomer has something to load.
QByteArray SampleDatabase();

/// A database with one table of so many rows, to measure with.
QByteArray LongDatabase(std::int64_t rows);

} // namespace tressel
