// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "controls/ItemModel.h"

#include <algorithm>

namespace tressel {

int ItemModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(rows.size());
}

QVariant ItemModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= rows.size() || (role != Qt::DisplayRole && role != Qt::EditRole))
        return {};
    return rows.at(index.row());
}

void ItemModel::Publish(const QStringList &items)
{
    if (rows.isSharedWith(items))
        return;
    const bool onlyAdded =
        items.size() >= rows.size() && std::equal(rows.cbegin(), rows.cend(), items.cbegin());
    if (!onlyAdded) {
        beginResetModel();
        rows = items;
        endResetModel();
    } else if (items.size() > rows.size()) {
        beginInsertRows({}, static_cast<int>(rows.size()), static_cast<int>(items.size()) - 1);
        rows = items;
        endInsertRows();
    }
}

} // namespace tressel
