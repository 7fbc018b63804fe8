// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "controls/ProgressBar.h"

#include <algorithm>

namespace tressel {

void ProgressBar::SetRange(double newMin, double newMax)
{
    min = newMin;
    max = std::max(newMin, newMax);
    value = std::clamp(value, min, max);
    NoteChanged();
}

void ProgressBar::SetValue(double newValue)
{
    value = std::clamp(newValue, min, max);
    NoteChanged();
}

} // namespace tressel
