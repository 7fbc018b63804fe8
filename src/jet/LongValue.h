// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "JetFile.h"

#include <cstdint>
#include <vector>

namespace tressel::jet {

/// The whole of a value that doesn't lie in its row, but on a page of its own or along a chain of them.
/// `stub` is what the row has of it.
std::vector<std::uint8_t> ReadLongValue(JetFile &file, Bytes stub);

} // namespace tressel::jet
