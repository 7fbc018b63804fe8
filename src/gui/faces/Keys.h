// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QKeyEvent>

namespace tressel {

/// Whether the event is a press of that key, without a modifier but the keypad's own.
inline bool IsKey(const QEvent &event, Qt::Key key)
{
    if (event.type() != QEvent::KeyPress)
        return false;
    const auto &press = static_cast<const QKeyEvent &>(event);
    return press.key() == key && (press.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

/// Whether the event is a press of Enter or Return.
inline bool IsEnter(const QEvent &event)
{
    return IsKey(event, Qt::Key_Enter) || IsKey(event, Qt::Key_Return);
}

} // namespace tressel
