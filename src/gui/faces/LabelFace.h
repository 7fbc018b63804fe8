// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/Label.h"
#include "faces/Face.h"
#include "faces/FaceLooks.h"

#include <QLabel>

namespace tressel {

/// A label shown by a QLabel, as plain text. A click on it is the control's click; where the label can
/// have the keyboard, so are Enter and the space bar.
class LabelFace : public Face {
public:
    LabelFace(Label &control, QLabel &widget, const FaceLooks &looks);

protected:
    void Show() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void ShowForeColor();

    Label &label;
    QLabel &view;
    FaceLooks looks;
    ColourNumber shownColour;
};

} // namespace tressel
