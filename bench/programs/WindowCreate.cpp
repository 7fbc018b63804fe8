// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// Shows the main window, loads a list file by the button for it and presses Create:
// tressel-window-create DESTINATION LIST
// Prints the seconds on the clock and those of the processor from the first press to the last paint.

#include "MeasuredWindow.h"

#include <QFileDialog>

using namespace tressel;
using namespace Qt::StringLiterals;

int main(int count, char **arguments)
{
    if (count != 3)
        return 2;
    MeasuredWindow window(arguments);
    window.Put(keys::FileExt, u"0"_s);
    window.Start();
    window.Measure([&] {
        AnswerNext<QFileDialog>([&](QFileDialog &dialog) {
            dialog.selectFile(QString::fromLocal8Bit(arguments[2]));
            QMetaObject::invokeMethod(&dialog, "accept", Qt::QueuedConnection);
        });
        window.Form().textLists.btnGBLoadFile.UserClicks();
        window.Form().area.txtStrtPath.SetText(QString::fromLocal8Bit(arguments[1]));
        window.Form().btnGBToolbarCreate.UserClicks();
    });
    return 0;
}
