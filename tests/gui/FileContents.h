// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

namespace tressel {

/// Makes or replaces a file. False if it couldn't be written.
[[nodiscard]] inline bool WriteFile(const QString &path, const QByteArray &contents)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size() && file.flush();
}

/// "(can't be read)" for a file that can't.
inline QByteArray ContentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(can't be read)");
}

} // namespace tressel
