// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// Shows the main window and has its rename page put the files of a folder into upper case:
// tressel-window-rename FOLDER
// Prints the seconds on the clock and those of the processor from the press to the last paint.

#include "MeasuredWindow.h"

using namespace tressel;
using namespace Qt::StringLiterals;

int main(int count, char **arguments)
{
    if (count != 2)
        return 2;
    MeasuredWindow window(arguments);
    window.Put(keys::IndxBar, u"7"_s);
    window.Start();
    RenamePage &page = window.Form().rename;
    page.txtCurrentPath.SetText(QString::fromLocal8Bit(arguments[1]));
    page.optCase.Select(RenamePage::Uppercase);
    window.ShowAll();
    window.Measure([&] { page.btnGBRename.UserClicks(); });
    return 0;
}
