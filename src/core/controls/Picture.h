// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

#include <utility>

namespace tressel {

/// A picture as controls hold it: the name of one, or its own bytes. It is decoded by whoever draws it.
struct Picture {
    /// A file or resource. A name without a "/" is one of the program's own icons.
    QString name;
    /// An encoded picture of any kind the desktop reads. Used where `name` is empty.
    QByteArray bytes;

    Picture() = default;
    explicit Picture(QString pictureName)
        : name(std::move(pictureName))
    {
    }
    explicit Picture(QByteArray encoded)
        : bytes(std::move(encoded))
    {
    }

    bool IsNone() const { return name.isEmpty() && bytes.isEmpty(); }
    bool operator==(const Picture &) const = default;
};

} // namespace tressel
