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

    Event<> Change;
    Event<> Click;

    // For faces.
    void UserClicks();

private:
    QString caption;
};

} // namespace tressel
