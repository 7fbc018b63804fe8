// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

namespace tressel {

/// True if this process is root, whom no access is refused.
bool IsRoot();

/// Runs a check in a child process that has given up root and may do what anyone may, and tells whether it
/// returned true. The check must not use GoogleTest, whose results don't leave the child.
bool HoldsAsNobody(const std::function<bool()> &check);

} // namespace tressel
