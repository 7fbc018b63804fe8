// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>

namespace tressel {

/// Colours as dialogs take and give them, 0x00BBGGRR, and as the toolkit has them.
inline QColor ToColour(quint32 number)
{
    return QColor(static_cast<int>(number & 0xFF), static_cast<int>(number >> 8 & 0xFF),
                  static_cast<int>(number >> 16 & 0xFF));
}

inline quint32 ToNumber(const QColor &colour)
{
    const QColor plain = colour.toRgb();
    return static_cast<quint32>(plain.red()) | static_cast<quint32>(plain.green()) << 8
        | static_cast<quint32>(plain.blue()) << 16;
}

} // namespace tressel
