// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "windows/ElidedLabel.h"

#include "faces/PlainTips.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace tressel {

QString ElidedLabel::ShownText() const
{
    // A text may be of several lines, the band is of one.
    const QString line = text().simplified() == text() ? text() : QString(text()).replace(u'\n', u' ');
    return fontMetrics().elidedText(line, Qt::ElideRight, contentsRect().width());
}

QSize ElidedLabel::minimumSizeHint() const
{
    const int ellipsis = fontMetrics().horizontalAdvance(QChar(0x2026));
    return {std::min(ellipsis, sizeHint().width()), QLabel::minimumSizeHint().height()};
}

bool ElidedLabel::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip || ShownText() == text())
        return QLabel::event(event);
    ShowPlainTip(static_cast<QHelpEvent *>(event)->globalPos(), text(), *this);
    return true;
}

void ElidedLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    style()->drawItemText(&painter, contentsRect(), static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter),
                          palette(), isEnabled(), ShownText(), foregroundRole());
}

} // namespace tressel
