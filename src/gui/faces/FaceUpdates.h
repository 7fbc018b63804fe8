// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QObject>

namespace tressel {

class WindowFace;

/// Decides when faces take changes over: by time, not by change. A window that hears of a change has it
/// taken over when the event loop has nothing else to do, or when a long run lets events run.
class FaceUpdates : public QObject {
public:
    /// Has the windows refreshed once, at the next time of rest.
    void Schedule();
    /// Refreshes all windows now. May be called from a handler that a refresh caused.
    void Flush();
    /// How often Flush has run.
    int Count() const { return count; }

private:
    friend class WindowFace;

    QList<WindowFace *> windows;
    WindowFace *lastActive = nullptr;
    bool scheduled = false;
    int count = 0;
};

} // namespace tressel
