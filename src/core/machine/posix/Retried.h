// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cerrno>

namespace tressel {

/// What a call of the system gives, called again for as long as a signal comes between. Not for close, which
/// has closed all the same.
template <typename Call> auto Retried(Call &&call)
{
    auto result = call();
    while (result < 0 && errno == EINTR)
        result = call();
    return result;
}

} // namespace tressel
