// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

namespace tressel {

/// Makes buttons known to assistive technology: a button or check box, named by its caption, with its state
/// and the act of pressing it. Once for the process; further calls do nothing.
void InstallButtonAccess();

} // namespace tressel
