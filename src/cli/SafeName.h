// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace tressel {

/// A name or path as it may stand before a person's eyes. What a terminal would obey or turn round (control
/// characters, bidirectional and other invisible marks), and bytes that are no UTF-8, are written the way a
/// shell reads them back: 'a'$'\n''b'. A name without any of these stays as it is, unless it could be taken
/// for one that was written so.
QString SafeName(const QString &name);

/// The same for a text that isn't all names: control characters and marks become "?".
QString SafeText(const QString &text);

} // namespace tressel
