// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/Dialogs.h"

namespace tressel {

/// A question for a database file that opens in a folder. A file that isn't there may be named too.
FileDialogRequest DatabaseFileRequest(const QString &title, const QString &folder);

} // namespace tressel
