// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "faces/PictureFace.h"

#include <QWidget>

class QMouseEvent;

namespace tressel {

class WorkPanes;

/// The grip in the middle of the split bar: two columns of dots.
class SplitGrip : public QWidget {
public:
    explicit SplitGrip(QWidget *parent = nullptr);

    QSize sizeHint() const override { return {7, 43}; }

protected:
    void paintEvent(QPaintEvent *event) override;
};

/// The bar between the panes of the main window. It can be dragged, or moved with the arrow keys.
class SplitBar : public QWidget {
public:
    explicit SplitBar(QWidget *parent = nullptr);

    /// The panes that it parts; null before it was given to them.
    WorkPanes *Panes() const;

protected:
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    SplitGrip *grip;
};

/// The split bar's face: its panes stand where the control does.
class SplitBarFace : public PictureFace {
public:
    SplitBarFace(PictureBox &control, SplitBar &widget, const FaceLooks &looks);

protected:
    void Show() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    PictureBox &box;
    SplitBar &bar;
};

/// The grip's face. Like the bar's, it tells where the mouse is over the control, which may have moved
/// on since the bar was shown last.
class SplitGripFace : public PictureFace {
public:
    SplitGripFace(PictureBox &control, SplitGrip &widget, const FaceLooks &looks);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool TakeMove(const QMouseEvent &move);

    PictureBox &box;
};

} // namespace tressel
