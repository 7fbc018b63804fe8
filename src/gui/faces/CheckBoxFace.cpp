// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "faces/CheckBoxFace.h"

#include "faces/Captions.h"

namespace tressel {

CheckBoxFace::CheckBoxFace(CheckBox &control, QCheckBox &widget)
    : Face(control, widget)
    , box(control)
    , view(widget)
{
    connect(&view, &QCheckBox::stateChanged, this, [this] {
        if (box.IsChecked() != (view.checkState() == Qt::Checked))
            Hand([this] { box.UserToggles(); });
    });
}

void CheckBoxFace::Show()
{
    if (const QString text = WithLineBreaks(box.Caption()); view.text() != text)
        view.setText(text);
    // Only a greyed box has the third state, so that a click never leads to it.
    view.setTristate(box.Value() == 2);
    view.setCheckState(box.Value() == 2      ? Qt::PartiallyChecked
                           : box.IsChecked() ? Qt::Checked
                                             : Qt::Unchecked);
}

} // namespace tressel
