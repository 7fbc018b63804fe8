// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLayout>
#include <QScrollArea>

namespace tressel {

/// The part of a page that can be scrolled. It asks for the height at which nothing needs to be, and can
/// do with a few lines.
class PageArea : public QScrollArea {
public:
    explicit PageArea(QLayout *content);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};

} // namespace tressel
