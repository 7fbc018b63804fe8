// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "widgets/OwnKinds.h"

#include "controls/CtlProgress.h"
#include "controls/IsButton.h"
#include "controls/SideBar.h"
#include "faces/FaceMakers.h"
#include "faces/SelfDrawnFace.h"
#include "widgets/CtlProgressWidget.h"
#include "widgets/IsButtonWidget.h"
#include "widgets/SideBarWidget.h"

namespace tressel {

void AddOwnKinds(FaceMakers &makers)
{
    makers
        .Add<IsButton, IsButtonWidget, SelfDrawnFace<IsButton, IsButtonWidget, &IsButtonWidget::TakeOver>>();
    makers.Add<CtlProgress, CtlProgressWidget,
               SelfDrawnFace<CtlProgress, CtlProgressWidget, &CtlProgressWidget::TakeOver>>();
    makers.Add<SideBar, SideBarWidget, SelfDrawnFace<SideBar, SideBarWidget, &SideBarWidget::Refresh>>();
}

} // namespace tressel
