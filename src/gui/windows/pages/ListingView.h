// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "windows/Parts.h"

namespace tressel {

/// The part of the text page that lists a folder into a report.
PageParts MakeListingView();

} // namespace tressel
