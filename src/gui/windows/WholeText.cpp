// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "windows/WholeText.h"

#include <QPainter>
#include <QTextLayout>

#include <cmath>

namespace tressel {

namespace {

constexpr int leastWidth = 40;

/// Lays the text out in lines of this width and returns the height of all.
qreal LayOut(QTextLayout &layout, int width)
{
    QTextOption option(Qt::AlignLeft | Qt::AlignTop);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    qreal height = 0;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        line.setPosition({0, height});
        height += line.height();
    }
    layout.endLayout();
    return height;
}

/// Where a line of the layout ends by itself.
QString WithSeparators(QString text)
{
    return text.replace(u'\n', QChar::LineSeparator);
}

} // namespace

WholeText::WholeText()
{
    setWordWrap(true);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
}

int WholeText::heightForWidth(int width) const
{
    QTextLayout layout(WithSeparators(text()), font(), this);
    return static_cast<int>(std::ceil(LayOut(layout, width)));
}

QSize WholeText::minimumSizeHint() const
{
    return {leastWidth, fontMetrics().height()};
}

void WholeText::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QTextLayout layout(WithSeparators(text()), font(), this);
    LayOut(layout, width());
    painter.setPen(palette().color(foregroundRole()));
    layout.draw(&painter, {});
}

} // namespace tressel
