// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <cstdint>
#include <optional>

namespace tressel {

/// A name without an extension of exactly three letters; any other stays as it is. Fails with 5 for a name of
/// fewer than four characters.
QString WithoutShortExtension(const QString &name);

/// The entry that a line of a list file stands for; nothing for an empty line or one that starts with ";".
/// Where extensions go it fails as WithoutShortExtension does.
std::optional<QString> EntryOfLine(const QString &line, bool removeExtension);

/// What a creation run makes of an entry, before it is mended. Where extensions go it loses its last four
/// characters, whatever they are, and one of fewer fails with 5.
QString CreatedName(const QString &entry, bool removeExtension);

/// The name that is made where the entry's own folder is there: that of the entry handled before, which
/// needn't be the same, and the number of the run.
QString SuffixedName(const QString &lastFixedName, std::int32_t runNumber);

} // namespace tressel
