// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointer>
#include <QWidget>

namespace tressel {

/// Where the keyboard is in a window whose controls come and go: a widget that lost it by being disabled gets
/// it back as soon as it is enabled again, unless the user has gone elsewhere meanwhile.
class KeyboardPlace {
public:
    explicit KeyboardPlace(QWidget &window)
        : window(window)
    {
    }

    /// To be called before widgets are enabled and disabled.
    void NoteHolder() { holder = window.focusWidget(); }
    /// To be called afterwards.
    void GiveBack();

private:
    QWidget &window;
    QPointer<QWidget> holder; ///< who had it before
    QPointer<QWidget> loser; ///< who is to have it again
    QPointer<QWidget> standIn; ///< who got it instead
};

} // namespace tressel
