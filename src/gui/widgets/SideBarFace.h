// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/SideBar.h"
#include "faces/Face.h"
#include "widgets/SideBarWidget.h"

namespace tressel {

/// A side bar shown by its widget, which hands the user's acts over itself.
class SideBarFace : public Face {
public:
    SideBarFace(SideBar &control, SideBarWidget &widget);

protected:
    void Show() override;

private:
    SideBarWidget &view;
};

} // namespace tressel
