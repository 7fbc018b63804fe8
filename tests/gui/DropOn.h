// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QTest>
#include <QUrl>
#include <QWidget>

namespace tressel {

/// Drops files of the desktop on the middle of a widget that must take them.
inline void DropOn(QWidget &widget, const QStringList &paths)
{
    QList<QUrl> addresses;
    for (const QString &path : paths)
        addresses += QUrl::fromLocalFile(path);
    QMimeData data;
    data.setUrls(addresses);
    const QPoint middle = widget.rect().center();
    QDragEnterEvent enter(middle, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(middle, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &drop);
}

} // namespace tressel
