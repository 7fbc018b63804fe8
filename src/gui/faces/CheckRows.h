// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/CheckListBox.h"
#include "controls/ItemModel.h"

namespace tressel {

/// The rows of a list with check marks. Marks are the control's own; a view that sets one has the control
/// told of it.
class CheckRows : public ItemModel {
public:
    using Toggle = std::function<void(int row)>;

    explicit CheckRows(Toggle userToggles);

    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;

    /// Takes the marks over once the rows are those of the list.
    void PublishMarks(const CheckListBox &list);

private:
    Toggle toggle;
    QList<bool> marks;
};

} // namespace tressel
