// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/Control.h"

namespace tressel {

/// What all controls with a caption share, whatever else they are: so that a language can be put onto them
/// without asking for their kinds.
class Captioned : public Control {
public:
    using Control::Control;

    virtual const QString &Caption() const = 0;
    virtual void SetCaption(const QString &text) = 0;
};

} // namespace tressel
