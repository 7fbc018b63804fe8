// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/Control.h"

namespace tressel {

/// A bar that fills from Min to Max.
class ProgressBar : public Control {
public:
    using Control::Control;

    double Min() const { return min; }
    double Max() const { return max; }
    double Value() const { return value; }
    void SetRange(double newMin, double newMax);
    /// A value beyond the range is taken for its nearest end.
    void SetValue(double newValue);

private:
    double min = 0;
    double max = 100;
    double value = 0;
};

} // namespace tressel
