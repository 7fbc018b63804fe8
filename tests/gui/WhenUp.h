// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QApplication>
#include <QFileDialog>
#include <QTest>
#include <QTimer>

namespace tressel {

/// Does something with the next modal dialog of this kind once it is up; a failed check ends the dialog.
template <typename Dialog, typename Act> void WhenUp(Act act)
{
    QTimer::singleShot(0, qApp, [act] {
        auto *dialog = qobject_cast<Dialog *>(QApplication::activeModalWidget());
        if (!dialog || !dialog->isVisible()) {
            WhenUp<Dialog>(act);
            return;
        }
        act(*dialog);
        if (QTest::currentTestFailed())
            dialog->reject();
    });
}

/// Presses the dialog's button when it is ready for it.
inline void Accept(QFileDialog &dialog)
{
    QMetaObject::invokeMethod(&dialog, "accept", Qt::QueuedConnection);
}

} // namespace tressel
