// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

namespace tressel {

// SHA-256 checksums of files in the text form that sha256sum writes and reads: one line a file, a name
// without its folder. Digests are raw bytes, 32 of them.

/// The name of the file that holds the checksums of a file and of its parts.
QString ChecksumsName(const QString &name);
/// The line of one file, with its end. A name that holds a line break is written as sha256sum has it.
QByteArray ChecksumLine(const QString &name, const QByteArray &digest);
/// The digests by their names. A line of another form is passed over.
QHash<QString, QByteArray> ChecksumsOf(const QByteArray &text);

} // namespace tressel
