// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/Control.h"

namespace tressel {

/// A text that the user edits.
class TextBox : public Control {
public:
    TextBox(Form &form, const QString &name, QString text = {});

    const QString &Text() const { return text; }
    /// Raises Change when the text differs.
    void SetText(const QString &newText);

    /// A locked box can be read and copied from, not edited.
    bool IsLocked() const { return locked; }
    void SetLocked(bool isLocked);

    /// What an empty box shows to say what belongs in it.
    const QString &Hint() const { return hint; }
    void SetHint(const QString &newHint);

    /// Selects the whole text, so that typing replaces it.
    void SelectAll();

    Event<> Change;
    Event<> GotFocus;
    Event<> LostFocus;

    // For faces.
    /// The whole text after an edit.
    void UserEdits(const QString &newText);
    void UserEnters();
    void UserLeaves();
    /// True once if the whole text was to be selected since the last call.
    bool TakeSelectAll();

private:
    QString text;
    QString hint;
    bool locked = false;
    bool selectAll = false;
};

} // namespace tressel
