// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Wire.h"

namespace tressel::jet {

/// Why a question can't be answered: the one thing that is thrown in tressel-jet.
struct Refusal {
    FailureCode code;
};

} // namespace tressel::jet
