// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

namespace tressel {

/// The part of the screen that windows may use, of the screen that the main window is on: without panels
/// and docks. In twips, 15 to a device-independent pixel; the origin is that of all screens together.
class Screen {
public:
    virtual ~Screen() = default;
    virtual int Left() const = 0;
    virtual int Top() const = 0;
    virtual int Width() const = 0;
    virtual int Height() const = 0;
};

} // namespace tressel
