// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "faces/ButtonFace.h"

namespace tressel {

ButtonFace::ButtonFace(IsButton &control, QAbstractButton &widget)
    : Face(control, widget)
    , button(control)
    , view(widget)
{
    connect(&view, &QAbstractButton::clicked, this, [this] { Hand([this] { button.UserClicks(); }); });
}

void ButtonFace::Show()
{
    if (view.text() != button.Caption())
        view.setText(button.Caption());
}

} // namespace tressel
