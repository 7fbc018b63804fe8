// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/Screen.h"

namespace tressel {

/// A screen of 1024 by 768 pixels, until it is set.
class MemoryScreen : public Screen {
public:
    int Width() const override { return width; }
    int Height() const override { return height; }
    /// In twips.
    void SetSize(int newWidth, int newHeight)
    {
        width = newWidth;
        height = newHeight;
    }

private:
    int width = 1024 * 15;
    int height = 768 * 15;
};

} // namespace tressel
