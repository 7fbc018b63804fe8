// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/ComboBox.h"
#include "controls/ItemModel.h"
#include "faces/Face.h"

#include <QComboBox>

namespace tressel {

/// What shows the entries of a list in a QComboBox: a drive list, or a combo box of either kind.
class ChoiceFace : public Face {
public:
    ChoiceFace(ItemList &control, QComboBox &widget);

protected:
    void Show() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

    QComboBox &View() const { return view; }

private:
    ItemList &list;
    QComboBox &view;
    ItemModel model;
};

/// A combo box; the user may type into it if the control's kind allows.
class ComboFace : public ChoiceFace {
public:
    ComboFace(ComboBox &control, QComboBox &widget);

protected:
    void Show() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    ComboBox &box;
};

} // namespace tressel
