// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/Form.h"
#include "controls/Frame.h"
#include "controls/SideBar.h"
#include "widgets/SideBarWidget.h"

#include <QLineEdit>

#include <deque>

namespace tressel {

/// A side bar with the seven entries and a page each, control and widget tied together.
class SideBarStage {
public:
    SideBarStage();

    /// Takes all entries out and adds them anew, as the program does when it loads them.
    void LoadItems(int openNumber);

    /// The palette that a first start shows.
    static SideBarColours FirstPalette();
    /// A plain drawing to stand for the icon of that number.
    static QIcon Icon(int number, const PictureColours &colours);
    static QPalette DarkDesktop();

    Form form{QStringLiteral("frmMain")};
    SideBar bar{form, QStringLiteral("EyeDropper1")};
    std::deque<Frame> frames;
    SideBarWidget widget;
    QList<QWidget *> pages;
    QList<QLineEdit *> fields; ///< the one text box of each page
    QList<int> opened; ///< what ItemSelected told
};

} // namespace tressel
