// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "faces/KeyboardPlace.h"

namespace tressel {

void KeyboardPlace::GiveBack()
{
    const bool isLost = holder && !holder->isEnabled();
    if (!loser || holder != standIn)
        loser = isLost ? holder : nullptr;
    if (isLost)
        standIn = window.focusWidget();
    if (!loser || !loser->isEnabled())
        return;
    loser->setFocus(Qt::OtherFocusReason);
    loser.clear();
}

} // namespace tressel
