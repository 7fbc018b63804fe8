// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

namespace tressel {

/// The options dialog: a list of pages, the page, and the buttons below. Enter is OK and Escape is Cancel
/// wherever the keyboard is.
class OptionWindow : public QWidget {
public:
    OptionWindow();

private:
    void PressOn(const QKeySequence &keys, const QString &button);
};

} // namespace tressel
