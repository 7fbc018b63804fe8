// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "faces/DroppedPaths.h"

#include "machine/NameText.h"

#include <QMimeData>

namespace tressel {

QStringList DroppedPaths(const QMimeData &dragged)
{
    // The list's own bytes: a QUrl knows no names that aren't UTF-8.
    QStringList paths;
    for (const QByteArray &line : dragged.data(QStringLiteral("text/uri-list")).split('\n')) {
        QByteArray address = line.trimmed();
        if (!address.toLower().startsWith("file:"))
            continue;
        address.remove(0, 5);
        if (address.startsWith("//")) {
            const qsizetype pathStart = address.indexOf('/', 2);
            const QByteArray host = address.mid(2, pathStart - 2).toLower();
            if (pathStart < 0 || (!host.isEmpty() && host != "localhost"))
                continue;
            address.remove(0, pathStart);
        }
        const QByteArray path = QByteArray::fromPercentEncoding(address);
        if (path.startsWith('/') && !path.contains('\0'))
            paths += TextFromUtf8(path, NameBytes::Raw).value_or(QString());
    }
    return paths;
}

} // namespace tressel
