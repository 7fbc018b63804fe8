// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "Definition.h"

#include "Refusal.h"

#include <algorithm>

namespace tressel::jet {

namespace {

constexpr int mostPages = 256; // a table of 255 fields with long names takes some forty of the shorter ones
constexpr std::size_t headLength = 8; // before the bytes on each page
constexpr std::size_t nextPlace = 4;

} // namespace

Definition::Definition(JetFile &databaseFile, std::uint32_t page, std::size_t start)
    : file(databaseFile)
    , place(start)
{
    const Bytes first = file.OtherPage(page);
    bytes.assign(first.begin(), first.end());
    while (place >= bytes.size()) {
        const std::size_t beyond = place - bytes.size();
        TurnPage();
        place += beyond;
    }
}

std::vector<std::uint8_t> Definition::Take(std::size_t count)
{
    std::vector<std::uint8_t> taken;
    while (taken.size() < count) {
        if (place >= bytes.size())
            TurnPage();
        const Bytes piece = Part(bytes, place, std::min(count - taken.size(), bytes.size() - place));
        taken.insert(taken.end(), piece.begin(), piece.end());
        place += piece.size();
    }
    return taken;
}

void Definition::TurnPage()
{
    if (++turned > mostPages)
        throw Refusal{FailureCode::Damaged};
    const Bytes next = file.OtherPage(Number32(bytes, nextPlace));
    bytes.assign(next.begin(), next.end());
    place = headLength;
}

} // namespace tressel::jet
