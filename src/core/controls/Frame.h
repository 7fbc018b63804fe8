// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/Captioned.h"
#include "controls/Colours.h"

namespace tressel {

/// A holder of other controls: a titled frame, a page or a band of the window.
class Frame : public Captioned {
public:
    Frame(Form &form, const QString &name, QString caption = {});

    const QString &Caption() const override { return caption; }
    void SetCaption(const QString &text) override;

    /// The colour of its ground.
    ColourNumber BackColor() const { return backColor; }
    void SetBackColor(ColourNumber colour);

private:
    QString caption;
    ColourNumber backColor = NumberOf(SystemColour::ButtonFace);
};

} // namespace tressel
