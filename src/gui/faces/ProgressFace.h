// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/ProgressBar.h"
#include "faces/Face.h"

#include <QProgressBar>

namespace tressel {

/// A progress bar shown by a QProgressBar, in whole numbers.
class ProgressFace : public Face {
public:
    ProgressFace(ProgressBar &control, QProgressBar &widget);

protected:
    void Show() override;

private:
    ProgressBar &progress;
    QProgressBar &view;
};

} // namespace tressel
