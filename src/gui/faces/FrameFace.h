// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/Frame.h"
#include "faces/Face.h"
#include "faces/FaceLooks.h"

namespace tressel {

/// A frame shown by any holder of widgets; the caption is seen where the holder is a QGroupBox. Where it
/// is a page of a QStackedWidget, showing it makes it the page on top.
class FrameFace : public Face {
public:
    FrameFace(Frame &control, QWidget &widget, const FaceLooks &looks);

protected:
    void Show() override;
    void ShowVisible(bool visible) override;

private:
    void ShowBackColor();

    Frame &frame;
    FaceLooks looks;
    ColourNumber shownColour;
};

} // namespace tressel
