// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "faces/ProgressFace.h"

#include <cmath>
#include <limits>

namespace tressel {

namespace {

/// The toolkit's bar counts in whole numbers of 32 bits; a range beyond them is shown in so many parts.
constexpr int partsOfALongRange = 1'000'000;

bool FitsWhole(double value)
{
    return std::abs(value) <= std::numeric_limits<int>::max();
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
    const double least = progress.Min();
    const double most = progress.Max();
    if (FitsWhole(least) && FitsWhole(most)) {
        ShowWhole(qRound(least), qRound(most), qRound(progress.Value()));
    } else {
        const double part = (progress.Value() - least) / (most - least);
        ShowWhole(0, partsOfALongRange, qRound(part * partsOfALongRange));
    }
    // A bar at its beginning is an idle one.
    view.setTextVisible(progress.Value() > least);
}

void ProgressFace::ShowWhole(int least, int most, int value)
{
    // A range without an extent would make the toolkit's bar run to and fro for ever.
    view.setRange(least, most > least || most == std::numeric_limits<int>::max() ? most : least + 1);
    view.setValue(value);
}

} // namespace tressel
