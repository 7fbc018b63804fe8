// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/Control.h"

namespace tressel {

/// A holder of other controls: a titled frame, a page or a band of the window.
class Frame : public Control {
public:
    Frame(Form &form, const QString &name, QString caption = {});

    const QString &Caption() const { return caption; }
    void SetCaption(const QString &text);

    /// The colour number of its ground: 0x00BBGGRR, or a system colour's number with the high bit set.
    quint32 BackColor() const { return backColor; }
    void SetBackColor(quint32 colour);

private:
    QString caption;
    quint32 backColor = 0x8000000F; // button face
};

} // namespace tressel
