// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/CheckBox.h"
#include "faces/Face.h"

#include <QCheckBox>

namespace tressel {

/// A check box shown by a QCheckBox.
class CheckBoxFace : public Face {
public:
    CheckBoxFace(CheckBox &control, QCheckBox &widget);

protected:
    void Show() override;

private:
    CheckBox &box;
    QCheckBox &view;
};

} // namespace tressel
