// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// Shows the main window and has its splitter page work: tressel-window-split split|join FILE
// A split gives parts of 100 MiB. Prints the seconds on the clock and those of the processor from the press
// of the button to the last paint.

#include "MeasuredWindow.h"

using namespace tressel;
using namespace Qt::StringLiterals;

int main(int count, char **arguments)
{
    if (count != 3)
        return 2;
    const bool joins = QString::fromLocal8Bit(arguments[1]) == u"join"_s;
    MeasuredWindow window(arguments);
    window.Put(keys::SplitSize, u"102400"_s);
    window.Put(keys::OpenExplorer, u"0"_s);
    window.Put(keys::DeleteParts, u"0"_s);
    window.Start();
    SplitterPage &page = window.Form().splitter;
    page.cboFileName.UserEdits(QString::fromLocal8Bit(arguments[2]));
    window.ShowAll();
    window.Measure([&] { (joins ? page.btnGBJoinFile : page.btnGBSplitFile).UserClicks(); });
    return page.lblFileCount.Caption().contains(u"Finished"_s) ? 0 : 1;
}
