// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/BusyCursor.h"

#include <QCursor>
#include <QGuiApplication>

namespace tressel {

BusyCursor::~BusyCursor()
{
    SetBusy(false);
}

void BusyCursor::SetBusy(bool isBusy)
{
    busy = isBusy;
    Show();
}

void BusyCursor::Show()
{
    const bool wanted = busy && rests == 0;
    if (wanted == shown)
        return;
    shown = wanted;
    if (shown)
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QGuiApplication::restoreOverrideCursor();
}

BusyCursor::AtRest::AtRest(BusyCursor &ofCursor)
    : cursor(ofCursor)
{
    ++cursor.rests;
    cursor.Show();
}

BusyCursor::AtRest::~AtRest()
{
    --cursor.rests;
    cursor.Show();
}

} // namespace tressel
