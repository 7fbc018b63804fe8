// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractListModel>
#include <QStringList>

namespace tressel {

/// The rows of a list as a view sees them: a copy that is brought up to date only when asked, so that
/// a run may add thousands of rows one by one and the view gets them as one block.
class ItemModel : public QAbstractListModel {
public:
    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

    /// Makes the rows those of `items`. Rows that were only added at the end are inserted as one block;
    /// any other difference resets the model.
    void Publish(const QStringList &items);

private:
    QStringList rows;
};

} // namespace tressel
