// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/IsButton.h"
#include "controls/Label.h"
#include "controls/ListBox.h"
#include "controls/PictureBox.h"
#include "controls/ProgressBar.h"
#include "controls/Timer.h"
#include "tools/ToolContext.h"
#include "tools/erase/FileErasure.h"

namespace tressel {

/// The lower part of the text page: a list of files that are overwritten and deleted.
class ErasePage {
public:
    explicit ErasePage(const ToolContext &context);

    ListBox lstErase;
    Label lblEraseMessage;
    IsButton btnGBErase;
    PictureBox PicProgress;
    ProgressBar ProgrBar;
    Label lblOverwrite;
    Timer Timer1; ///< keeps the page's state; the main window's layout follows it too

    FileErasure run;

private:
    void lstErase_Click();
    void lstErase_DoubleClick();
    void lstErase_Drop(const QStringList &paths);
    void Timer1_Tick();

    FileSystem &files;
};

} // namespace tressel
