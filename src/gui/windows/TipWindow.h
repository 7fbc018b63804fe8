// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

namespace tressel {

/// The tip of the day: a picture, a heading, the tip, and what can be done with it.
class TipWindow : public QWidget {
public:
    TipWindow();
};

} // namespace tressel
