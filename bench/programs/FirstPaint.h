// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QObject>
#include <QTimer>

#include <unistd.h>

/// Ends the process, without any cleaning up, as soon as a first window is painted whole.
class EndWithFirstPaint : public QObject {
public:
    EndWithFirstPaint() { QCoreApplication::instance()->installEventFilter(this); }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        // All widgets of a window are painted before the event loop gets to the timer.
        if (event->type() == QEvent::Paint)
            QTimer::singleShot(0, [] { _exit(0); });
        return false;
    }
};
