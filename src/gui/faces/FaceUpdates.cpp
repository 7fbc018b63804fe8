// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "faces/FaceUpdates.h"

#include "faces/WindowFace.h"

#include <QTimer>

namespace tressel {

void FaceUpdates::Schedule()
{
    if (scheduled)
        return;
    scheduled = true;
    QTimer::singleShot(0, this, [this] {
        if (scheduled)
            Flush();
    });
}

void FaceUpdates::Flush()
{
    scheduled = false;
    ++count;
    const QList<WindowFace *> present = windows;
    for (WindowFace *window : present) {
        if (windows.contains(window))
            window->Refresh();
    }
}

} // namespace tressel
