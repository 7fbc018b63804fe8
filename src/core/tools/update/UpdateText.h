// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace tressel {

// What a server says of the newest version: a text whose last four characters are the build's number and
// whose last six are the version as users see it. What stands before is nobody's concern, and a line break at
// the end belongs to the text like any other character.

/// Whether the text tells of a newer build than `revision`. The two are compared as text, character by
/// character without regard to case; build numbers have four digits. An empty text never does.
bool TellsNewerVersion(const QString &text, int revision);

/// What the notice says of the version that the text tells of.
QString NewVersionNotice(const QString &text);

} // namespace tressel
