// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/PictureBox.h"
#include "controls/SideBar.h"

#include <QWidget>

namespace tressel {

class SplitBar;

/// Two panes side by side with the split bar between them. The bar stands where its control does; the
/// panes follow when the side bar's control was given its width, which a drag does at its end.
class WorkPanes : public QWidget {
public:
    /// Takes the three widgets over. `strip` is the control of the split bar, `bar` the one that has the
    /// left pane's width; both must outlive the panes.
    WorkPanes(const PictureBox &strip, const SideBar &bar, QWidget *left, SplitBar *split, QWidget *right);

    /// Takes over where the controls stand.
    void TakeOver();
    /// Where the split bar is shown, in twips from the left edge.
    int ShownStripLeft() const { return shownStripLeft; }

    /// In pixels, from pane to pane. A bar that is wider lies below the right one.
    static constexpr int splitWidth = 8;

    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void Place();

    const PictureBox &strip;
    const SideBar &bar;
    QWidget &left;
    SplitBar &split;
    QWidget &right;
    int shownStripLeft = 0;
};

} // namespace tressel
