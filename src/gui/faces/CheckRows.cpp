// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "faces/CheckRows.h"

#include <utility>

namespace tressel {

CheckRows::CheckRows(Toggle userToggles)
    : toggle(std::move(userToggles))
{
}

Qt::ItemFlags CheckRows::flags(const QModelIndex &index) const
{
    return ItemModel::flags(index) | (index.isValid() ? Qt::ItemIsUserCheckable : Qt::NoItemFlags);
}

QVariant CheckRows::data(const QModelIndex &index, int role) const
{
    if (role == Qt::CheckStateRole && index.isValid())
        return marks.value(index.row()) ? Qt::Checked : Qt::Unchecked;
    return ItemModel::data(index, role);
}

bool CheckRows::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::CheckStateRole || !index.isValid())
        return false;
    if ((value.toInt() == Qt::Checked) != marks.value(index.row()))
        toggle(index.row());
    return true;
}

void CheckRows::PublishMarks(const CheckListBox &list)
{
    QList<bool> newMarks;
    for (int row = 0; row < list.ListCount(); ++row)
        newMarks += list.IsChecked(row);
    if (newMarks == marks)
        return;
    marks = newMarks;
    if (!marks.isEmpty())
        Q_EMIT dataChanged(index(0), index(rowCount() - 1), {Qt::CheckStateRole});
}

} // namespace tressel
