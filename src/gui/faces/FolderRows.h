// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/ItemModel.h"

#include <QIcon>
#include <QStyledItemDelegate>

namespace tressel {

/// The rows of a folder list: texts with a folder in front, each at its depth.
class FolderRows : public ItemModel {
public:
    /// The role under which a row's depth is delivered: 0 for the root.
    static constexpr int DepthRole = Qt::UserRole;

    explicit FolderRows(const QIcon &icon);

    QVariant data(const QModelIndex &index, int role) const override;
    /// The depths of the rows that are published next, or of those on show.
    void SetDepths(const QList<int> &newDepths);
    /// The row of the present folder, which is marked.
    void SetPresent(int row);

private:
    QIcon icon;
    QList<int> depths;
    int present = -1;
};

/// Paints the rows of a folder list, indented by their depth.
class FolderRowPainter : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
};

} // namespace tressel
