// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "Header.h"

#include "Refusal.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <numeric>
#include <string_view>
#include <utility>

namespace tressel::jet {

namespace {

using namespace std::string_view_literals;

constexpr std::string_view olderMark = "\0\1\0\0Standard Jet DB\0"sv;
constexpr std::string_view newerMark = "\0\1\0\0Standard ACE DB\0"sv;
constexpr std::size_t versionPlace = 0x14;
constexpr std::uint8_t newestVersion = 6;

// From here to the end the header is scrambled, with the same key in every file.
constexpr std::size_t scrambledPlace = 0x18;
constexpr std::array<std::uint8_t, 4> scrambleKey{0xC7, 0xDA, 0x39, 0x6B};
constexpr std::size_t oldestScrambledLength = 126;

constexpr std::size_t codePagePlace = 0x3C;
constexpr std::size_t pageKeyPlace = 0x3E;
constexpr std::size_t passwordPlace = 0x42;
constexpr std::size_t oldestPasswordLength = 20;
constexpr std::size_t passwordLength = 40;
constexpr std::size_t creationDatePlace = 0x72;

/// RC4, which is its own inverse.
void Unscramble(std::uint8_t *bytes, std::size_t count)
{
    std::array<std::uint8_t, 256> state{};
    std::iota(state.begin(), state.end(), std::uint8_t{0});
    std::uint8_t other = 0;
    for (std::size_t index = 0; index < state.size(); ++index) {
        other = static_cast<std::uint8_t>(other + state[index] + scrambleKey[index % scrambleKey.size()]);
        std::swap(state[index], state[other]);
    }
    std::uint8_t first = 0;
    std::uint8_t second = 0;
    for (std::size_t place = 0; place < count; ++place) {
        second = static_cast<std::uint8_t>(second + state[++first]);
        std::swap(state[first], state[second]);
        bytes[place] ^= state[static_cast<std::uint8_t>(state[first] + state[second])];
    }
}

std::uint64_t NumberAt(const HeaderBytes &bytes, std::size_t place, std::size_t count)
{
    std::uint64_t number = 0;
    while (count-- > 0)
        number = number << 8U | bytes[place + count];
    return number;
}

/// Newer files hide the password behind the whole days of the time when they were made.
std::array<std::uint8_t, 4> PasswordMask(const HeaderBytes &bytes)
{
    const double days = std::bit_cast<double>(NumberAt(bytes, creationDatePlace, 8));
    std::array<std::uint8_t, 4> mask{};
    if (!(std::abs(days) < 1e9))
        return mask;
    const auto whole = static_cast<std::uint32_t>(static_cast<std::int32_t>(days));
    for (std::size_t index = 0; index < mask.size(); ++index)
        mask[index] = static_cast<std::uint8_t>(whole >> 8U * index);
    return mask;
}

bool HasPassword(const HeaderBytes &bytes, bool isOldest)
{
    const std::array<std::uint8_t, 4> mask = isOldest ? std::array<std::uint8_t, 4>{} : PasswordMask(bytes);
    const std::size_t length = isOldest ? oldestPasswordLength : passwordLength;
    for (std::size_t index = 0; index < length; ++index) {
        if ((bytes[passwordPlace + index] ^ mask[index % mask.size()]) != 0)
            return true;
    }
    return false;
}

bool StartsWith(const HeaderBytes &bytes, std::string_view mark)
{
    return std::equal(mark.begin(), mark.end(), bytes.begin(), [](char letter, std::uint8_t byte) {
        return static_cast<std::uint8_t>(letter) == byte;
    });
}

} // namespace

Header ReadHeader(HeaderBytes bytes)
{
    const std::uint8_t version = bytes[versionPlace];
    const bool isKnown =
        (StartsWith(bytes, olderMark) || StartsWith(bytes, newerMark)) && version <= newestVersion;
    if (!isKnown)
        throw Refusal{FailureCode::UnknownFormat};
    const bool isOldest = version == 0;
    Unscramble(bytes.data() + scrambledPlace,
               isOldest ? oldestScrambledLength : HeaderLength - scrambledPlace);
    if (NumberAt(bytes, pageKeyPlace, 4) != 0)
        throw Refusal{FailureCode::Encrypted};
    if (HasPassword(bytes, isOldest))
        throw Refusal{FailureCode::Password};
    return {isOldest, static_cast<std::uint16_t>(NumberAt(bytes, codePagePlace, 2))};
}

} // namespace tressel::jet
