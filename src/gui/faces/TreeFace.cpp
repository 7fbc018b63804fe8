// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "faces/TreeFace.h"

#include "faces/Keys.h"
#include "faces/PlainTips.h"

#include <QStyledItemDelegate>

namespace tressel {

namespace {

class NodePainter : public QStyledItemDelegate {
public:
    NodePainter(const NodeIcons &nodeIcons, QObject *parent)
        : QStyledItemDelegate(parent)
        , icons(nodeIcons)
    {
    }

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->icon = icons.value(index.data(TreeModel::ImageRole).toInt());
        if (!option->icon.isNull())
            option->features |= QStyleOptionViewItem::HasDecoration;
    }

private:
    NodeIcons icons;
};

} // namespace

TreeFace::TreeFace(TreeView &control, QTreeView &widget, const NodeIcons &icons)
    : Face(control, widget)
    , tree(control)
    , view(widget)
{
    view.setModel(&model);
    view.setItemDelegate(new NodePainter(icons, this));
    view.setUniformRowHeights(true);
    view.setHeaderHidden(true);
    view.setEditTriggers(QAbstractItemView::NoEditTriggers);
    Watch(*view.viewport());

    connect(&view, &QTreeView::clicked, this, [this](const QModelIndex &index) {
        const int node = model.NodeOf(index);
        // In the middle of a rebuild the view may show nodes that are gone.
        if (node < tree.Nodes().size() && tree.Nodes().at(node).text == index.data().toString())
            Hand([&] { tree.UserClicks(node); });
    });
    connect(view.selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex &index) { NoteCurrent(index); });
    connect(&view, &QTreeView::expanded, this,
            [this](const QModelIndex &index) { NoteExpanded(index, true); });
    connect(&view, &QTreeView::collapsed, this,
            [this](const QModelIndex &index) { NoteExpanded(index, false); });
}

void TreeFace::Show()
{
    model.Publish(tree.Nodes());
    ShowExpanded({});
    const QModelIndex selected = model.IndexOf(tree.SelectedNode());
    if (selected.isValid() && view.currentIndex() != selected)
        view.setCurrentIndex(selected);
}

void TreeFace::ShowExpanded(const QModelIndex &parent)
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        if (model.rowCount(index) == 0)
            continue;
        const bool isExpanded = tree.IsExpanded(model.NodeOf(index));
        if (view.isExpanded(index) != isExpanded)
            view.setExpanded(index, isExpanded);
        ShowExpanded(index);
    }
}

void TreeFace::NoteCurrent(const QModelIndex &index)
{
    const int node = model.NodeOf(index);
    if (node >= 0 && node < tree.Nodes().size())
        Hand([&] { tree.UserMovesTo(node); });
}

bool TreeFace::FilterToolTip(const QHelpEvent &event)
{
    return ShowCutRow(event, view) || Face::FilterToolTip(event);
}

void TreeFace::NoteExpanded(const QModelIndex &index, bool isExpanded)
{
    const int node = model.NodeOf(index);
    Hand([&] { tree.UserExpands(node, isExpanded); });
}

bool TreeFace::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == &view && IsEnter(*event) && view.currentIndex().isValid()) {
        const int node = model.NodeOf(view.currentIndex());
        Hand([&] { tree.UserClicks(node); });
        return true;
    }
    return Face::eventFilter(watched, event);
}

} // namespace tressel
