// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// Shows the main window, drops a file on its list of files to erase and presses Erase:
// tressel-window-erase FILE
// Prints the seconds on the clock and those of the processor from the press to the last paint.

#include "MeasuredWindow.h"

using namespace tressel;
using namespace Qt::StringLiterals;

int main(int count, char **arguments)
{
    if (count != 2)
        return 2;
    MeasuredWindow window(arguments);
    window.Put(keys::IndxBar, u"2"_s);
    window.Start();
    ErasePage &page = window.Form().erase;
    page.lstErase.UserDrops({QString::fromLocal8Bit(arguments[1])});
    page.Timer1.Elapse();
    window.ShowAll();
    window.Measure([&] { page.btnGBErase.UserClicks(); });
    return 0;
}
