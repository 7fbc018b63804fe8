// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/ItemList.h"

namespace tressel {

/// The numbers of keys, as KeyDown tells them.
inline constexpr int keyF12 = 123;

/// A text with a list of choices below it.
class ComboBox : public ItemList {
public:
    enum class Kind {
        Editable, ///< the user may type any text
        List, ///< one of the entries, nothing else
    };

    ComboBox(Form &form, const QString &name, Kind kind = Kind::Editable);

    Kind BoxKind() const { return kind; }

    /// The text of the box. For a List that of the selected entry.
    const QString &Text() const { return text; }
    /// Raises Change when the text differs, and selects nothing. In a List it selects the entry of that
    /// text instead, as SetListIndex does, and fails with 380 without one.
    void SetText(const QString &newText);

    Event<> Change;
    /// A key was pressed in the box: its number. A handler that takes the key sets it to 0.
    Event<int &> KeyDown;

    // For faces.
    void UserEdits(const QString &newText);
    /// The user goes so many entries on from the one that the text stands for, back if below 0. A text that
    /// is none of the entries leads to the first one, a number that is none leads nowhere.
    void UserSteps(int count);
    /// Before the box itself makes something of the key. True if a handler took it.
    bool UserPressesKey(int key);

protected:
    void OnSelected() override;

private:
    Kind kind;
    QString text;
};

} // namespace tressel
