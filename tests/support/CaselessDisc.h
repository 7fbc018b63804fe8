// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

#include <functional>
#include <optional>

namespace tressel {

/// Kinds of discs on which "a" and "A" are one name. Hardly a system can mount all of them.
enum class CaselessDisc {
    InMemory, ///< a tmpfs that folds case, of Linux 6.13 or later
    Fat, ///< a file system FAT of the kernel's, in a file
    FatInUserSpace, ///< one of the program fusefat's, which takes each spelling for a file of its own
};

/// As HoldsAmongOwnMounts, with such a disc, which is empty, mounted on the folder.
/// Nothing if this system can't mount it.
std::optional<bool> HoldsWithoutCase(CaselessDisc kind, const QByteArray &folder,
                                     const std::function<bool()> &check);

} // namespace tressel
