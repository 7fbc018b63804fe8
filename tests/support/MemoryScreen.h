// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/Screen.h"

namespace tressel {

/// A screen of 1024 by 768 pixels, until it is set.
class MemoryScreen : public Screen {
public:
    int Left() const override { return left; }
    int Top() const override { return top; }
    int Width() const override { return width; }
    int Height() const override { return height; }
    /// In twips, as the size.
    void SetOrigin(int newLeft, int newTop)
    {
        left = newLeft;
        top = newTop;
    }
    void SetSize(int newWidth, int newHeight)
    {
        width = newWidth;
        height = newHeight;
    }

private:
    int left = 0;
    int top = 0;
    int width = 1024 * 15;
    int height = 768 * 15;
};

} // namespace tressel
