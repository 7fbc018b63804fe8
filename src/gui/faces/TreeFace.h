// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/TreeModel.h"
#include "controls/TreeView.h"
#include "faces/Face.h"
#include "faces/FaceLooks.h"

#include <QTreeView>

namespace tressel {

/// A tree shown by a QTreeView without a header, its rows of one height. A click on a node, or Enter, is
/// the control's click; opening and closing a node is the user's own affair, which the control notes.
class TreeFace : public Face {
public:
    TreeFace(TreeView &control, QTreeView &widget, const NodeIcons &icons);

protected:
    void Show() override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    bool FilterToolTip(const QHelpEvent &event) override;

private:
    void ShowExpanded(const QModelIndex &parent);
    void NoteCurrent(const QModelIndex &index);
    void NoteExpanded(const QModelIndex &index, bool isExpanded);

    TreeView &tree;
    QTreeView &view;
    TreeModel model;
};

} // namespace tressel
