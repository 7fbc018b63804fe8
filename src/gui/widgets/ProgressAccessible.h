// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

namespace tressel {

/// Makes progress bars known to assistive technology, with their value and bounds. Once for the process;
/// further calls do nothing.
void InstallProgressAccess();

} // namespace tressel
