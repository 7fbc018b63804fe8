// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/Screen.h"

#include <QPointer>
#include <QWidget>

namespace tressel {

/// The available part of the main window's screen; that of the desktop's first screen as long as there is
/// no such window.
class QtScreen : public Screen {
public:
    int Left() const override;
    int Top() const override;
    int Width() const override;
    int Height() const override;

    void SetMainWindow(QWidget *window) { mainWindow = window; }

private:
    QRect Place() const;

    QPointer<QWidget> mainWindow;
};

} // namespace tressel
