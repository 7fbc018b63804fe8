// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "faces/ListFace.h"

#include "faces/CheckRows.h"
#include "faces/FolderRows.h"
#include "faces/Keys.h"
#include "faces/PlainTips.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QScrollBar>

#include <utility>

namespace tressel {

RowsFace::RowsFace(ItemList &control, QListView &widget, std::unique_ptr<ItemModel> rows)
    : Face(control, widget)
    , list(control)
    , view(widget)
    , model(std::move(rows))
{
    view.setModel(model.get());
    // Thousands of rows are laid out at once only if none is measured.
    view.setUniformItemSizes(true);
    view.setEditTriggers(QAbstractItemView::NoEditTriggers);
    view.setSelectionMode(QAbstractItemView::SingleSelection);
    Watch(*view.viewport());

    connect(model.get(), &ItemModel::modelReset, this, [this] { wasReset = true; });
    connect(view.selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this](const QItemSelection &selected) {
                if (!selected.isEmpty())
                    ChooseRow(selected.indexes().constFirst().row());
            });
    connect(&view, &QListView::clicked, this, [this](const QModelIndex &index) {
        if (chosen != index.row())
            ChooseRow(index.row());
    });
    connect(&view, &QListView::doubleClicked, this, [this](const QModelIndex &index) {
        const int row = index.row();
        Hand([&] { OpenRow(row); });
    });
}

void RowsFace::Show()
{
    const int scrolledTo = view.verticalScrollBar()->value();
    model->Publish(list.Items());
    ShowSelection();
    if (std::exchange(wasReset, false))
        AfterReset(scrolledTo);
}

void RowsFace::AfterReset(int scrolledTo)
{
    if (scrolledTo == 0)
        return;
    view.doItemsLayout();
    view.verticalScrollBar()->setValue(scrolledTo);
}

void RowsFace::ShowSelection()
{
    QItemSelectionModel &selection = *view.selectionModel();
    const QModelIndex wanted = model->index(list.ListIndex());
    if (!wanted.isValid())
        ShowNoSelection();
    else if (!selection.isSelected(wanted) || selection.currentIndex() != wanted)
        selection.setCurrentIndex(wanted, QItemSelectionModel::ClearAndSelect);
}

void RowsFace::ShowNoSelection()
{
    view.clearSelection();
}

bool RowsFace::FilterToolTip(const QHelpEvent &event)
{
    return ShowCutRow(event, view) || Face::FilterToolTip(event);
}

void RowsFace::ChooseRow(int row)
{
    Hand([&] {
        chosen = row;
        list.UserSelects(row);
    });
}

bool RowsFace::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonPress)
        chosen = -1;
    if (watched == &view && IsEnter(*event) && view.currentIndex().isValid()) {
        const int row = view.currentIndex().row();
        Hand([&] { OpenRow(row); });
        return true;
    }
    return Face::eventFilter(watched, event);
}

ListFace::ListFace(ListBox &control, QListView &widget, std::unique_ptr<ItemModel> rows)
    : RowsFace(control, widget, std::move(rows))
    , list(control)
    , ground(widget.viewport())
{
    widget.viewport()->setMouseTracking(true);
}

bool ListFace::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == ground && event->type() == QEvent::MouseMove) {
        const int row = View().indexAt(static_cast<QMouseEvent *>(event)->position().toPoint()).row();
        if (std::exchange(pointedAt, row) != row)
            Hand([&] { list.UserPointsAt(row); });
    } else if (watched == ground && event->type() == QEvent::Leave) {
        pointedAt = -1;
    }
    return RowsFace::eventFilter(watched, event);
}

void ListFace::OpenRow(int row)
{
    list.UserActivates(row);
}

CheckListFace::CheckListFace(CheckListBox &control, QListView &widget, const FaceLooks &faceLooks)
    : ListFace(control, widget,
               std::make_unique<CheckRows>([this](int row) { Hand([&] { list.UserToggles(row); }); }))
    , list(control)
    , looks(faceLooks)
{
}

void CheckListFace::Show()
{
    ListFace::Show();
    static_cast<CheckRows &>(Rows()).PublishMarks(list);
    ShowBackColor();
}

void CheckListFace::ShowBackColor()
{
    if (shownColour == list.BackColor() || !looks.colour)
        return;
    shownColour = list.BackColor();
    QPalette palette = View().palette();
    const QColor ground = looks.colour(*shownColour, QGuiApplication::palette());
    palette.setColor(QPalette::Base, ground);
    // The ground may be light on a desktop that writes light on dark.
    palette.setColor(QPalette::Text, ground.lightness() > 127 ? Qt::black : Qt::white);
    View().setPalette(palette);
}

FolderFace::FolderFace(FolderList &control, QListView &widget, const QIcon &icon)
    : RowsFace(control, widget, std::make_unique<FolderRows>(icon))
    , list(control)
{
    widget.setItemDelegate(new FolderRowPainter(this));
    connect(widget.verticalScrollBar(), &QScrollBar::actionTriggered, this, [this] { isFollowed = false; });
}

void FolderFace::Show()
{
    QList<int> depths;
    for (int row = 0; row < list.ListCount(); ++row)
        depths += list.Depth(row);
    auto &rows = static_cast<FolderRows &>(Rows());
    rows.SetDepths(depths);
    const QStringList before = shownItems;
    shownItems = list.Items();
    isFollowed = isFollowed || shownItems != before;
    RowsFace::Show();
    rows.SetPresent(list.PresentRow());
    ShowPresent();
}

void FolderFace::OpenRow(int row)
{
    list.UserActivates(row);
}

void FolderFace::AfterReset(int)
{
    // The present folder decides, not where the list was scrolled to.
}

void FolderFace::ShowNoSelection()
{
    const QModelIndex present = Rows().index(list.PresentRow());
    if (View().selectionModel()->hasSelection())
        View().clearSelection();
    // The keyboard starts at the present folder.
    if (shownItems.isEmpty() || !isFollowed || View().currentIndex() == present)
        return;
    View().selectionModel()->setCurrentIndex(present, QItemSelectionModel::NoUpdate);
}

bool FolderFace::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::MouseButtonPress:
        // From here on the user decides what is in view.
        isFollowed = false;
        break;
    case QEvent::Resize:
    case QEvent::Show:
        QMetaObject::invokeMethod(
            this, [this] { ShowPresent(); }, Qt::QueuedConnection);
        break;
    default:
        break;
    }
    return RowsFace::eventFilter(watched, event);
}

void FolderFace::ShowPresent()
{
    if (!isFollowed || shownItems.isEmpty() || !View().isVisible())
        return;
    View().doItemsLayout();
    // As many of its sub folders as there is room for, and the folder itself in any case.
    View().scrollTo(Rows().index(Rows().rowCount() - 1));
    View().scrollTo(Rows().index(list.PresentRow()));
}

} // namespace tressel
