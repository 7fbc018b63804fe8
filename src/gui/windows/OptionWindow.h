// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QScrollArea>

namespace tressel {

/// The options dialog: a list of pages, the page, and the buttons below. Enter is OK and Escape is Cancel
/// wherever the keyboard is. It is never smaller than what its captions need; on too small a screen the page
/// scrolls.
class OptionWindow : public QWidget {
public:
    OptionWindow();

protected:
    bool event(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void KeepRoom();
    /// What the pages need, whatever height there is.
    QSize RoomOfPages(const QSize &room);
    /// Has the pages that are out of sight tell what room their captions need now.
    void MeasureAnew();
    void PressOn(const QKeySequence &keys, const QString &button);

    QScrollArea *area; ///< holds the pages
    QSize measured; ///< what the pages would like to have when they were measured last
};

} // namespace tressel
