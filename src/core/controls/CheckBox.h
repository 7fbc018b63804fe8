// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/Captioned.h"

namespace tressel {

/// A box with a tick. Its value is a number at the boundary: 0 unchecked, 1 checked, 2 greyed.
class CheckBox : public Captioned {
public:
    CheckBox(Form &form, const QString &name, QString caption = {});

    const QString &Caption() const override { return caption; }
    void SetCaption(const QString &text) override;

    int Value() const { return value; }
    bool IsChecked() const { return value == 1; }
    /// Raises Click when the value differs. Fails with 380 for a value other than 0, 1 and 2.
    void SetValue(int newValue);
    void SetChecked(bool checked) { SetValue(checked ? 1 : 0); }

    Event<> Click;

    // For faces.
    /// Checked becomes unchecked, and anything else checked.
    void UserToggles();

private:
    QString caption;
    int value = 0;
};

} // namespace tressel
