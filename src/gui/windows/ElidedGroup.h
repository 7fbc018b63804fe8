// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QGroupBox>

namespace tressel {

/// A titled frame. Where its title doesn't fit it ends in an ellipsis, and the whole is the tool tip.
class ElidedGroup : public QGroupBox {
public:
    /// What is shown of the title.
    QString ShownTitle() const;

    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};

} // namespace tressel
