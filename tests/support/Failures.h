// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/Failure.h"

#include <functional>
#include <optional>
#include <ostream>

namespace tressel {

/// A failure's number as GoogleTest prints it.
inline void PrintTo(FailureNumber number, std::ostream *out)
{
    *out << "failure " << static_cast<int>(number);
}

/// The number of the failure that the step throws, nothing if it throws none.
std::optional<FailureNumber> NumberThrownBy(const std::function<void()> &step);

/// The number of a failure that was reported, nothing for none.
std::optional<FailureNumber> NumberOf(const std::optional<Failure> &failure);

} // namespace tressel
