// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "windows/Parts.h"

namespace tressel {

/// The part of the text page that loads and saves lists of names.
PageParts MakeTextListView();

} // namespace tressel
