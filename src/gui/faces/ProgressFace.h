// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/ProgressBar.h"
#include "faces/Face.h"

#include <QProgressBar>

namespace tressel {

/// A progress bar shown by a QProgressBar, in whole numbers. It reads nothing while it is idle.
class ProgressFace : public Face {
public:
    ProgressFace(ProgressBar &control, QProgressBar &widget);

protected:
    void Show() override;

private:
    void ShowWhole(int least, int most, int value);

    ProgressBar &progress;
    QProgressBar &view;
};

} // namespace tressel
