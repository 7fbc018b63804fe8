// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "windows/PageArea.h"

#include <QEvent>
#include <QScrollBar>

namespace tressel {

PageArea::PageArea(QLayout *content)
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    auto *paper = new QWidget;
    paper->setLayout(content);
    setWidget(paper);
}

QSize PageArea::sizeHint() const
{
    // Texts that break into lines take more of them in a narrow page.
    const QLayout &content = *widget()->layout();
    const int height = content.hasHeightForWidth() && isVisible()
        ? content.totalMinimumHeightForWidth(width())
        : content.totalMinimumSize().height();
    return {content.totalMinimumSize().width(), height};
}

QSize PageArea::minimumSizeHint() const
{
    constexpr int fewLines = 64;
    return {widget()->layout()->totalMinimumSize().width() + verticalScrollBar()->sizeHint().width(),
            fewLines};
}

bool PageArea::eventFilter(QObject *watched, QEvent *event)
{
    // The height that is asked for follows the content's.
    if (watched == widget() && event->type() == QEvent::LayoutRequest)
        updateGeometry();
    return QScrollArea::eventFilter(watched, event);
}

} // namespace tressel
