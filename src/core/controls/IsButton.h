// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/Control.h"

namespace tressel {

/// The hand-drawn button of the whole interface.
class IsButton : public Control {
public:
    IsButton(Form &form, const QString &name, QString caption = {});

    const QString &Caption() const { return caption; }
    void SetCaption(const QString &text);

    Event<> Click;

    // For faces.
    void UserClicks();

private:
    QString caption;
};

} // namespace tressel
