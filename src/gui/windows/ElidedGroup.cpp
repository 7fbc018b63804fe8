// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "windows/ElidedGroup.h"

#include "faces/Captions.h"
#include "faces/PlainTips.h"

#include <QHelpEvent>
#include <QLayout>
#include <QStyleOptionGroupBox>
#include <QStylePainter>

#include <algorithm>

namespace tressel {

QString ElidedGroup::ShownTitle() const
{
    constexpr int sides = 8; // A title keeps off the frame's corners.
    return ElidedLines(fontMetrics(), title(), width() - sides, Qt::TextShowMnemonic);
}

QSize ElidedGroup::minimumSizeHint() const
{
    constexpr int widestThatStays = 140;
    const QSize least = QGroupBox::minimumSizeHint();
    const int content = layout() ? layout()->totalMinimumSize().width() : 0;
    return {std::max(std::min(least.width(), widestThatStays), content), least.height()};
}

bool ElidedGroup::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip || ShownTitle() == title())
        return QGroupBox::event(event);
    ShowPlainTip(static_cast<QHelpEvent *>(event)->globalPos(),
                 WholeAndTip(WithoutMnemonic(title()), toolTip()), *this);
    return true;
}

void ElidedGroup::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    QStyleOptionGroupBox option;
    initStyleOption(&option);
    option.text = ShownTitle();
    painter.drawComplexControl(QStyle::CC_GroupBox, option);
}

} // namespace tressel
