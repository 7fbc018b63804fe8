// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/Control.h"

namespace tressel {

/// A text that the user reads.
class Label : public Control {
public:
    Label(Form &form, const QString &name, QString caption = {});

    const QString &Caption() const { return caption; }
    /// Raises Change when the text differs.
    void SetCaption(const QString &text);

    /// The colour number of its text: 0x00BBGGRR, or a system colour's number with the high bit set.
    quint32 ForeColor() const { return foreColor; }
    void SetForeColor(quint32 colour);

    Event<> Change;
    Event<> Click;
    Event<> Resize; ///< the label grew or shrank with its text

    // For faces.
    void UserClicks();
    /// The width in twips that the text takes on the screen.
    void TakeWidth(int twips);

private:
    QString caption;
    quint32 foreColor = 0x80000012; // button text
};

} // namespace tressel
