// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/CheckListBox.h"
#include "controls/FolderList.h"
#include "controls/ItemModel.h"
#include "controls/ListBox.h"
#include "faces/Face.h"
#include "faces/FaceLooks.h"

#include <QIcon>
#include <QListView>

#include <memory>

namespace tressel {

/// What the faces of list boxes share: rows of one height in a QListView, the selected one, and the
/// user's choosing and opening of a row.
class RowsFace : public Face {
public:
    RowsFace(ItemList &control, QListView &widget, std::unique_ptr<ItemModel> rows);

protected:
    void Show() override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    bool FilterToolTip(const QHelpEvent &event) override;

    /// Shows that no row is selected.
    virtual void ShowNoSelection();
    /// The user opened a row: a double click or Enter.
    virtual void OpenRow(int row) = 0;
    /// Called when other rows were shown in place of all, once the selection stands.
    virtual void AfterReset(int scrolledTo);

    QListView &View() const { return view; }
    ItemModel &Rows() const { return *model; }

private:
    void ShowSelection();
    void ChooseRow(int row);

    ItemList &list;
    QListView &view;
    std::unique_ptr<ItemModel> model;
    bool wasReset = false;
    int chosen = -1; ///< the row that was handed on since the mouse button went down
};

/// A list box, or a file list.
class ListFace : public RowsFace {
public:
    ListFace(ListBox &control, QListView &widget,
             std::unique_ptr<ItemModel> rows = std::make_unique<ItemModel>());

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void OpenRow(int row) override;

private:
    ListBox &list;
    const QWidget *ground; ///< what the rows are painted on; it still has events when the view has gone
    int pointedAt = -1;
};

/// A list box with a check mark in each row.
class CheckListFace : public ListFace {
public:
    CheckListFace(CheckListBox &control, QListView &widget, const FaceLooks &looks);

protected:
    void Show() override;

private:
    void ShowBackColor();

    CheckListBox &list;
    FaceLooks looks;
    std::optional<ColourNumber> shownColour;
};

/// A folder list: its rows are indented by their depth and bear a folder. The present folder is marked,
/// and in view with its sub folders until the user scrolls away; the keyboard starts there.
class FolderFace : public RowsFace {
public:
    FolderFace(FolderList &control, QListView &widget, const QIcon &icon);

protected:
    void Show() override;
    void OpenRow(int row) override;
    void AfterReset(int scrolledTo) override;
    void ShowNoSelection() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void ShowPresent();

    FolderList &list;
    QStringList shownItems;
    bool isFollowed = true; ///< the view stands where the present folder is
};

} // namespace tressel
