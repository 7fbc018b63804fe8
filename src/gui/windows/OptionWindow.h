// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

namespace tressel {

/// The options dialog: a list of pages, the page, and the buttons below. Enter is OK and Escape is Cancel
/// wherever nothing else takes the key.
class OptionWindow : public QWidget {
public:
    OptionWindow();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void Press(const QString &button) const;
};

} // namespace tressel
