// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

namespace tressel::jet {

/// Puts limits on memory, processor time and files, and has the process end with the one that started it.
void SetLimits();

/// From here on the system takes no call from this process that opens, starts or connects to anything; one
/// that it makes all the same ends it. Where the system can't do that, nothing happens.
void ForbidSystemCalls();

} // namespace tressel::jet
