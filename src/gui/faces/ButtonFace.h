// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/IsButton.h"
#include "faces/Face.h"

#include <QAbstractButton>

namespace tressel {

/// A button shown by a button of the toolkit.
class ButtonFace : public Face {
public:
    ButtonFace(IsButton &control, QAbstractButton &widget);

protected:
    void Show() override;

private:
    IsButton &button;
    QAbstractButton &view;
};

} // namespace tressel
