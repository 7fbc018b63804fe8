// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "widgets/OwnKinds.h"

#include "controls/SideBar.h"
#include "faces/FaceMakers.h"
#include "faces/SelfDrawnFace.h"
#include "widgets/SideBarWidget.h"

namespace tressel {

void AddOwnKinds(FaceMakers &makers)
{
    makers.Add<SideBar, SideBarWidget, SelfDrawnFace<SideBar, SideBarWidget, &SideBarWidget::Refresh>>();
}

} // namespace tressel
