// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/QtScreen.h"

#include "base/Twips.h"

#include <QGuiApplication>
#include <QScreen>

namespace tressel {

int QtScreen::Width() const
{
    return ToTwips(Size().width());
}

int QtScreen::Height() const
{
    return ToTwips(Size().height());
}

QSize QtScreen::Size() const
{
    const QScreen *screen = mainWindow ? mainWindow->screen() : QGuiApplication::primaryScreen();
    return screen ? screen->size() : QSize();
}

} // namespace tressel
