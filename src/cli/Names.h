// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace tressel {

class Console;

/// The lines of a list file that the command line names, "-" for standard input; with --null what stands
/// between NUL characters, byte for byte. Waits for a pipe. Fails as FileSystem::Open does, and with 6 for a
/// list of more than 64 MiB.
QStringList ReadListLines(Console &console, const QString &file);

/// Why no file system has a name like this one, which holds no separator; nothing if there may be one.
std::optional<QString> WhyNoName(const QString &name);

} // namespace tressel
