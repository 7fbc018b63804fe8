// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Wire.h"

namespace tressel::jet {

/// Why a question can't be answered: the one thing that is thrown in tressel-jet.
struct Refusal {
    FailureCode code;
    std::uint16_t field = 0; ///< the missing one's place among those asked for
};

} // namespace tressel::jet
