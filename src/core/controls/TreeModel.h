// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/TreeView.h"

#include <QAbstractItemModel>

namespace tressel {

/// The nodes of a tree as a view sees them: a copy that is brought up to date only when asked.
class TreeModel : public QAbstractItemModel {
public:
    /// The role under which a node's image number is delivered; Qt::DisplayRole has its text.
    static constexpr int ImageRole = Qt::UserRole;

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &child) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

    /// Makes the nodes those of the list. Children that were only added at the end of one parent are
    /// inserted as one block; any other difference resets the model.
    void Publish(const QList<TreeNode> &newNodes);

    /// The number of a node in TreeView::Nodes, -1 for no node; and the way back.
    int NodeOf(const QModelIndex &index) const;
    QModelIndex IndexOf(int node) const;

private:
    void TakeNode(const TreeNode &node);

    QList<TreeNode> nodes;
    QList<QList<int>> children; ///< of each node
    QList<int> roots;
    QList<int> rows; ///< of each node below its parent
};

} // namespace tressel
