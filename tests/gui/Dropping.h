// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

namespace tressel {

/// Which steps are taken as a copy of dragging something that the other program would rather move.
inline QList<QEvent::Type> DragAndDrop(QWidget &onto, QMimeData &dragged)
{
    QList<QEvent::Type> taken;
    constexpr Qt::DropActions actions = Qt::CopyAction | Qt::MoveAction;
    const QPoint middle = onto.rect().center();
    QDragEnterEvent enter(middle, actions, &dragged, Qt::LeftButton, Qt::ShiftModifier);
    QCoreApplication::sendEvent(&onto, &enter);
    if (enter.isAccepted() && enter.dropAction() == Qt::CopyAction)
        taken += QEvent::DragEnter;
    QDropEvent drop(middle, actions, &dragged, Qt::LeftButton, Qt::ShiftModifier);
    QCoreApplication::sendEvent(&onto, &drop);
    if (drop.isAccepted() && drop.dropAction() == Qt::CopyAction)
        taken += QEvent::Drop;
    return taken;
}

/// Drops what stands at the paths. False if the widget doesn't take it.
[[nodiscard]] inline bool DropPaths(QWidget &onto, const QStringList &paths)
{
    QList<QUrl> addresses;
    for (const QString &path : paths)
        addresses += QUrl::fromLocalFile(path);
    QMimeData dragged;
    dragged.setUrls(addresses);
    return DragAndDrop(onto, dragged).size() == 2;
}

[[nodiscard]] inline bool DropPath(QWidget &onto, const QString &path)
{
    return DropPaths(onto, {path});
}

} // namespace tressel
