// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "windows/ElidedLabel.h"

#include "faces/Captions.h"
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
    ShowPlainTip(static_cast<QHelpEvent *>(event)->globalPos(),
                 WholeAndTip(buddy() ? WithoutMnemonic(text()) : text(), toolTip()), *this);
    return true;
}

void ElidedLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    style()->drawItemText(&painter, contentsRect(), static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter),
                          palette(), isEnabled(), ShownText(), foregroundRole());
}

void ElidedLabel::PaintWhole(QPaintEvent *event)
{
    QLabel::paintEvent(event);
}

int CaptionLabel::Flags() const
{
    return static_cast<int>(alignment()) | (buddy() ? Qt::TextShowMnemonic : 0);
}

QString CaptionLabel::ShownText() const
{
    return ElidedLines(fontMetrics(), text(), contentsRect().width(), Flags());
}

QSize CaptionLabel::minimumSizeHint() const
{
    constexpr int widestThatStays = 40;
    return sizeHint().boundedTo(QSize(widestThatStays, QWIDGETSIZE_MAX));
}

void CaptionLabel::paintEvent(QPaintEvent *event)
{
    const QString shown = ShownText();
    if (shown == text()) {
        PaintWhole(event);
        return;
    }
    QPainter painter(this);
    style()->drawItemText(&painter, contentsRect(), Flags(), palette(), isEnabled(), shown, foregroundRole());
}

} // namespace tressel
