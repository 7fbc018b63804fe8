// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

namespace tressel {

/// The options dialog: a list of pages, the page, and the buttons below. Enter is OK and Escape is Cancel
/// wherever the keyboard is. It is never smaller than what its captions need, as far as the screen goes.
class OptionWindow : public QWidget {
public:
    OptionWindow();

protected:
    bool event(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void KeepRoom();
    /// Has the pages that are out of sight tell what room their captions need now.
    void MeasureAnew();
    void PressOn(const QKeySequence &keys, const QString &button);

    QSize measured; ///< what it would like to have when it was measured last
};

} // namespace tressel
