// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

namespace tressel {

/// A widget that decides by itself which of the pages it holds is on show. The faces of the pages leave
/// that to it.
class PageHost {
public:
    virtual ~PageHost() = default;
};

} // namespace tressel
