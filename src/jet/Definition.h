// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "JetFile.h"

#include <cstdint>
#include <vector>

namespace tressel::jet {

/// The bytes that describe a table, which may go on over several pages.
class Definition {
public:
    /// Starts at `place` of that page, which may lie on a later one.
    Definition(JetFile &file, std::uint32_t page, std::size_t place);

    /// The next bytes. Refuses a description that isn't so long.
    std::vector<std::uint8_t> Take(std::size_t count);

private:
    void TurnPage();

    JetFile &file;
    std::vector<std::uint8_t> bytes; ///< of the present page
    std::size_t place;
    int turned = 0;
};

} // namespace tressel::jet
