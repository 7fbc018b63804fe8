// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "LongValue.h"

#include "Refusal.h"

#include <algorithm>

namespace tressel::jet {

namespace {

constexpr std::size_t stubLength = 12;
constexpr std::size_t pointerPlace = 4;
constexpr std::uint32_t inRow = 0x80000000;
constexpr std::uint32_t onePiece = 0x40000000;
constexpr std::uint32_t lengthMask = 0x3FFFFFFF;
constexpr std::size_t nextLength = 4; // before each piece of a chain: where the next one is

/// What a pointer to a row of some page points to.
Bytes Piece(JetFile &file, std::uint32_t pointer)
{
    const Bytes page = file.OtherPage(pointer >> 8U);
    const RowPlace place = file.PlaceOf(page, pointer & 0xFFU);
    return Part(page, place.start, place.length);
}

} // namespace

std::vector<std::uint8_t> ReadLongValue(JetFile &file, Bytes stub)
{
    const std::uint32_t head = Number32(stub, 0);
    const std::size_t length = head & lengthMask;
    // What is longer than the file, or than an answer may be, is none of its values.
    if (length > file.Length() || length > LongestFrame / 2)
        throw Refusal{FailureCode::Damaged};
    if (head & inRow) {
        const Bytes value = Part(stub, stubLength, length);
        return {value.begin(), value.end()};
    }
    std::uint32_t pointer = Number32(stub, pointerPlace);
    if (head & onePiece) {
        const Bytes value = Part(Piece(file, pointer), 0, length);
        return {value.begin(), value.end()};
    }
    std::vector<std::uint8_t> value;
    value.reserve(length);
    while (value.size() < length) {
        const Bytes piece = Piece(file, pointer);
        const Bytes content =
            Part(piece, nextLength, std::min(piece.size() - nextLength, length - value.size()));
        // A piece without content would let the chain go round for ever.
        if (piece.size() <= nextLength)
            throw Refusal{FailureCode::Damaged};
        pointer = Number32(piece, 0);
        value.insert(value.end(), content.begin(), content.end());
    }
    return value;
}

} // namespace tressel::jet
