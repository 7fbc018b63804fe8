// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "controls/TreeModel.h"

#include <algorithm>

namespace tressel {

QModelIndex TreeModel::index(int row, int column, const QModelIndex &parent) const
{
    const QList<int> &siblings = parent.isValid() ? children.at(NodeOf(parent)) : roots;
    if (row < 0 || row >= siblings.size() || column != 0)
        return {};
    return createIndex(row, column, static_cast<quintptr>(siblings.at(row)));
}

QModelIndex TreeModel::parent(const QModelIndex &child) const
{
    return child.isValid() ? IndexOf(nodes.at(NodeOf(child)).parent) : QModelIndex();
}

int TreeModel::rowCount(const QModelIndex &parent) const
{
    return static_cast<int>(parent.isValid() ? children.at(NodeOf(parent)).size() : roots.size());
}

int TreeModel::columnCount(const QModelIndex &) const
{
    return 1;
}

QVariant TreeModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const TreeNode &node = nodes.at(NodeOf(index));
    if (role == Qt::DisplayRole)
        return node.text;
    if (role == ImageRole)
        return node.image;
    return {};
}

void TreeModel::Publish(const QList<TreeNode> &newNodes)
{
    if (nodes.isSharedWith(newNodes))
        return;
    const qsizetype known = nodes.size();
    bool onlyAdded = newNodes.size() >= known && std::equal(nodes.cbegin(), nodes.cend(), newNodes.cbegin());
    for (qsizetype node = known; onlyAdded && node < newNodes.size(); ++node)
        onlyAdded = newNodes.at(node).parent == newNodes.at(known).parent && newNodes.at(node).parent < known;

    if (!onlyAdded) {
        beginResetModel();
        children.clear();
        roots.clear();
        rows.clear();
        nodes.clear();
        for (const TreeNode &node : newNodes)
            TakeNode(node);
        nodes = newNodes;
        endResetModel();
    } else if (newNodes.size() > known) {
        const QModelIndex parentIndex = IndexOf(newNodes.at(known).parent);
        const int first = rowCount(parentIndex);
        beginInsertRows(parentIndex, first, first + static_cast<int>(newNodes.size() - known) - 1);
        for (qsizetype node = known; node < newNodes.size(); ++node)
            TakeNode(newNodes.at(node));
        nodes = newNodes;
        endInsertRows();
    }
}

int TreeModel::NodeOf(const QModelIndex &index) const
{
    return index.isValid() ? static_cast<int>(index.internalId()) : -1;
}

QModelIndex TreeModel::IndexOf(int node) const
{
    if (node < 0 || node >= rows.size())
        return {};
    return createIndex(rows.at(node), 0, static_cast<quintptr>(node));
}

void TreeModel::TakeNode(const TreeNode &node)
{
    QList<int> &siblings = node.parent < 0 ? roots : children[node.parent];
    rows.append(static_cast<int>(siblings.size()));
    siblings.append(static_cast<int>(children.size()));
    children.append(QList<int>());
}

} // namespace tressel
