// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/Control.h"

#include <QList>
#include <QString>

namespace tressel {

/// One node of a tree. Nodes are counted from 0 in the order in which they were added.
struct TreeNode {
    QString text;
    QString key; ///< empty: the node has none
    int image = 0; ///< number in the tree's image list, 0 for none
    int parent = -1; ///< -1 for a root
    bool operator==(const TreeNode &) const = default;
};

/// A tree of texts.
class TreeView : public Control {
public:
    using Control::Control;

    const QList<TreeNode> &Nodes() const { return nodes; }
    /// Takes out all nodes.
    void Clear();
    /// Adds a root, collapsed. Fails with 35602 if the key is taken.
    int AddRoot(const QString &key, const QString &text, int image);
    /// Adds a last child below the node of that key. Fails with 35601 if there is no such node.
    int AddChild(const QString &parentKey, const QString &text, int image);

    /// The first node. Fails with 35600 if there is none.
    int Root() const;
    bool IsExpanded(int node) const { return expanded.contains(node); }
    void Expand(int node);
    void Collapse(int node);
    /// The node that the user clicked or went to last, -1 for none.
    int SelectedNode() const { return selected; }

    /// The user clicked a node.
    Event<int> NodeClick;

    // For faces.
    void UserClicks(int node);
    /// The user went to a node by keyboard or mouse: no event, and the face knows already.
    void UserMovesTo(int node);
    /// The user opened or closed a node: no event, and the face knows already.
    void UserExpands(int node, bool isExpanded);

private:
    int KeyIndex(const QString &key) const;

    QList<TreeNode> nodes;
    QList<int> expanded;
    int selected = -1;
};

} // namespace tressel
