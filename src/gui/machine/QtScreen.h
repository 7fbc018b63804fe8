// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/Screen.h"

#include <QPointer>
#include <QWidget>

namespace tressel {

/// The screen of the main window; the desktop's first screen as long as there is no such window.
class QtScreen : public Screen {
public:
    int Width() const override;
    int Height() const override;

    void SetMainWindow(QWidget *window) { mainWindow = window; }

private:
    QSize Size() const;

    QPointer<QWidget> mainWindow;
};

} // namespace tressel
