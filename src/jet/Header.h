// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace tressel::jet {

/// As much of a file's beginning as its header takes.
inline constexpr std::size_t HeaderLength = 0x98;
using HeaderBytes = std::array<std::uint8_t, HeaderLength>;

/// What a file says of itself.
struct Header {
    bool isOldest = false; ///< the format whose texts are in a code page, with pages of 2 KiB
    std::uint16_t codePage = 0; ///< of the texts in a file of that format
};

/// Takes the header of a file apart, before anything else looks at the file. Refuses a file of an unknown
/// format, one that is encrypted and one with a password.
Header ReadHeader(HeaderBytes bytes);

} // namespace tressel::jet
