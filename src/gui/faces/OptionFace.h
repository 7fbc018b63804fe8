// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/OptionGroup.h"
#include "faces/Face.h"

#include <QButtonGroup>
#include <QRadioButton>

namespace tressel {

/// One entry of an option group shown by a QRadioButton. The faces of a group put their widgets into one
/// QButtonGroup, wherever they stand in the window.
class OptionFace : public Face {
public:
    OptionFace(OptionButton &control, QRadioButton &widget);

protected:
    void Show() override;

private:
    void ShowEntry();
    QButtonGroup &WidgetGroup() const;

    OptionButton &option;
    QRadioButton &view;
    QButtonGroup &group;
};

} // namespace tressel
