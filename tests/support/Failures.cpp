// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "support/Failures.h"

namespace tressel {

std::optional<FailureNumber> NumberThrownBy(const std::function<void()> &step)
{
    try {
        step();
    } catch (const Failure &failure) {
        return failure.number;
    }
    return {};
}

std::optional<FailureNumber> NumberOf(const std::optional<Failure> &failure)
{
    return failure ? std::optional(failure->number) : std::nullopt;
}

} // namespace tressel
