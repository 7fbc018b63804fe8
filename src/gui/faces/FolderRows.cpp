// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "faces/FolderRows.h"

#include <QFont>

namespace tressel {

FolderRows::FolderRows(const QIcon &folderIcon)
    : icon(folderIcon)
{
}

QVariant FolderRows::data(const QModelIndex &index, int role) const
{
    if (role == Qt::DecorationRole && index.isValid())
        return icon;
    if (role == DepthRole && index.isValid())
        return depths.value(index.row());
    if (role == Qt::FontRole && index.isValid() && index.row() == present) {
        QFont bold;
        bold.setBold(true);
        return bold;
    }
    return ItemModel::data(index, role);
}

void FolderRows::SetDepths(const QList<int> &newDepths)
{
    depths = newDepths;
}

void FolderRows::SetPresent(int row)
{
    if (present == row)
        return;
    present = row;
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0), index(rowCount() - 1), {Qt::FontRole});
}

void FolderRowPainter::paint(QPainter *painter, const QStyleOptionViewItem &option,
                             const QModelIndex &index) const
{
    QStyleOptionViewItem indented(option);
    // Deep folders keep some room for their names.
    const int step = option.fontMetrics.averageCharWidth() * 2;
    const int indent = qMin(index.data(FolderRows::DepthRole).toInt() * step, option.rect.width() / 2);
    if (option.direction == Qt::RightToLeft)
        indented.rect.adjust(0, 0, -indent, 0);
    else
        indented.rect.adjust(indent, 0, 0, 0);
    QStyledItemDelegate::paint(painter, indented, index);
}

} // namespace tressel
