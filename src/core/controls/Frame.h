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

private:
    QString caption;
};

} // namespace tressel
