// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "widgets/SideBarFace.h"

namespace tressel {

SideBarFace::SideBarFace(SideBar &control, SideBarWidget &widget)
    : Face(control, widget)
    , view(widget)
{
    view.SetControl(&control);
}

void SideBarFace::Show()
{
    view.Refresh();
}

} // namespace tressel
