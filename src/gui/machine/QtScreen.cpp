// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/QtScreen.h"

#include "base/Twips.h"

#include <QGuiApplication>
#include <QScreen>

namespace tressel {

int QtScreen::Left() const
{
    return ToTwips(Place().left());
}

int QtScreen::Top() const
{
    return ToTwips(Place().top());
}

int QtScreen::Width() const
{
    return ToTwips(Place().width());
}

int QtScreen::Height() const
{
    return ToTwips(Place().height());
}

QRect QtScreen::Place() const
{
    const QScreen *screen = mainWindow ? mainWindow->screen() : QGuiApplication::primaryScreen();
    return screen ? screen->availableGeometry() : QRect();
}

} // namespace tressel
