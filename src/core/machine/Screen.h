// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

namespace tressel {

/// The screen that the main window is on, in twips: 15 to a device-independent pixel.
class Screen {
public:
    virtual ~Screen() = default;
    virtual int Width() const = 0;
    virtual int Height() const = 0;
};

} // namespace tressel
