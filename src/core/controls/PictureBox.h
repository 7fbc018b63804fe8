// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/Frame.h"

namespace tressel {

/// A holder that answers to the mouse: a split bar, its grip, a notice to click on.
class PictureBox : public Frame {
public:
    PictureBox(Form &form, const QString &name);

    static constexpr int leftButton = 1;

    /// Whether the pointer becomes a hand over it.
    bool HasHandPointer() const { return handPointer; }
    void SetHandPointer(bool hasOne);

    /// The buttons held (leftButton or a sum with others; 0 for none) and the mouse's place in the box,
    /// in twips from its left edge.
    Event<int, int> MouseMove;
    Event<> MouseDown; ///< the left button went down
    Event<> MouseUp;
    Event<> Click;

    // For faces.
    void UserMovesMouse(int buttons, int x);
    void UserPressesMouse();
    void UserReleasesMouse();
    void UserClicks();

private:
    bool handPointer = false;
};

} // namespace tressel
