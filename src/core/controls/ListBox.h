// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/ItemList.h"

namespace tressel {

/// A list of texts, in the order in which they came, equal ones allowed.
class ListBox : public ItemList {
public:
    using ItemList::ItemList;

    /// The selected text, empty if none is.
    QString Text() const { return ListIndex() < 0 ? QString() : Item(ListIndex()); }

    Event<> DoubleClick;
    /// The pointer came over another row; -1: over none.
    Event<int> MouseMove;

    // For faces.
    /// The user opened an entry: a double click or Enter. It is the selected one already.
    void UserActivates(int index);
    void UserPointsAt(int row);
};

} // namespace tressel
