// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/Colours.h"
#include "controls/ListBox.h"

#include <optional>

namespace tressel {

/// A list box whose entries carry check marks. A new entry has none.
class CheckListBox : public ListBox {
public:
    using ListBox::ListBox;

    /// Fails with 9 for an index outside the list.
    bool IsChecked(int index) const;
    /// Raises ItemCheck if the mark differs. Fails with 9 for an index outside the list.
    void SetChecked(int index, bool isChecked);

    /// The ground that the entries stand on; the toolkit's own as long as it wasn't written.
    const std::optional<ColourNumber> &BackColor() const { return backColor; }
    void SetBackColor(ColourNumber colour);

    Event<int> ItemCheck; ///< the mark of the entry of that index changed

    // For faces.
    void UserToggles(int index);

private:
    void OnRemoved(int index) override;
    void OnCleared() override;

    std::optional<ColourNumber> backColor;
    QList<bool> marks; ///< entries beyond its end have no mark
};

} // namespace tressel
