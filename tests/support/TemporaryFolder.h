// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

namespace tressel {

/// A folder of the real disc that goes, with all that is in it, at the end of its life.
class TemporaryFolder {
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder &) = delete;
    TemporaryFolder &operator=(const TemporaryFolder &) = delete;

    /// Without a separator at its end.
    QString Path() const { return QString::fromUtf8(path); }
    /// The path of something in it, as the system's calls take it.
    QByteArray Native(const QByteArray &name) const { return path + '/' + name; }

private:
    QByteArray path;
};

} // namespace tressel
