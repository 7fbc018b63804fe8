// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

namespace tressel {

/// What the program is, who made it, and the agreement.
class AboutWindow : public QWidget {
public:
    AboutWindow();
};

} // namespace tressel
