// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "faces/ProgressFace.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tressel {

namespace {

int Whole(double value)
{
    constexpr double smallest = std::numeric_limits<int>::min();
    constexpr double largest = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(std::round(value), smallest, largest));
}

} // namespace

ProgressFace::ProgressFace(ProgressBar &control, QProgressBar &widget)
    : Face(control, widget)
    , progress(control)
    , view(widget)
{
}

void ProgressFace::Show()
{
    const int least = Whole(progress.Min());
    const int most = Whole(progress.Max());
    // A range without an extent would make the toolkit's bar run to and fro for ever.
    view.setRange(least, most > least || most == std::numeric_limits<int>::max() ? most : least + 1);
    view.setValue(Whole(progress.Value()));
}

} // namespace tressel
