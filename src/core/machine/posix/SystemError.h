// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/Failure.h"

namespace tressel {

/// The number for an `errno` of the system's file calls. What is missing counts as a missing folder (76):
/// whoever knows that it is a file says so. What has no number of its own is refused access (75).
FailureNumber NumberOfError(int error);

} // namespace tressel
