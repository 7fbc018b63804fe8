// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

namespace tressel {

/// Makes side bars known to assistive technology: a page tab list whose first children are the shown
/// entries as page tabs, each with name, state and the press action, followed by the pages. Further
/// calls do nothing.
void InstallSideBarAccessible();

} // namespace tressel
