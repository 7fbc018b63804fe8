// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// Shows an empty window of the main window's size and ends with its first paint.

#include "FirstPaint.h"

#include <QApplication>
#include <QWidget>

int main(int count, char **arguments)
{
    QApplication toolkit(count, arguments);
    EndWithFirstPaint end;
    QWidget window;
    window.resize(800, 600);
    window.show();
    return QApplication::exec();
}
