// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/Control.h"

#include <QStringList>

namespace tressel {

/// What list boxes and combo boxes share: their entries, counted from 0, and the selected one.
class ItemList : public Control {
public:
    using Control::Control;

    int ListCount() const { return static_cast<int>(Items().size()); }
    virtual const QStringList &Items() const { return items; }
    /// Fails with 9 for an index outside the list.
    const QString &Item(int index) const;
    void AddItem(const QString &text);
    /// Selects nothing if the selected entry goes. Fails with 5 for an index outside the list.
    void RemoveItem(int index);
    /// Takes out all entries and selects nothing; raises nothing.
    void Clear();
    /// Other entries in place of all; raises nothing.
    void SetItems(const QStringList &texts);

    /// The selected entry, -1 if none is.
    int ListIndex() const { return listIndex; }
    /// Selects an entry, or none for -1, and raises Click. Fails with 380 outside the list.
    void SetListIndex(int index);

    Event<> Click;

    // For faces.
    /// The user chose an entry; choosing the same one again counts too.
    void UserSelects(int index);

protected:
    /// Selects an entry, or none for -1, and raises no Click.
    void Select(int index);
    /// Called when another entry was selected, before Click is raised.
    virtual void OnSelected() { }
    /// Called when the entry of that index was taken out.
    virtual void OnRemoved(int /*index*/) { }
    /// Called when all entries were taken out; others may have come in their place.
    virtual void OnCleared() { }

private:
    QStringList items;
    int listIndex = -1;
};

} // namespace tressel
