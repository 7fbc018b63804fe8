// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

#include <functional>
#include <optional>

namespace tressel {

/// Runs a check in a child process whose mounts nobody else sees and which go with it, and tells whether it
/// returned true; nothing if the system permits no such process. The check must not use GoogleTest, whose
/// results don't leave the child.
std::optional<bool> HoldsAmongOwnMounts(const std::function<bool()> &check);

/// In such a check: mounts a disc in memory of so many bytes on a folder. False if it can't be.
bool MountMemory(const QByteArray &folder, qint64 bytes);

} // namespace tressel
