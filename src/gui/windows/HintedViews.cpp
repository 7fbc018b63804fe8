// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "windows/HintedViews.h"

#include <QPainter>

namespace tressel {

namespace {

constexpr int margin = 8;

void PaintWords(const QAbstractItemView &view, const QString &words)
{
    // Not the palette's own colour for such words: dark desktops leave it dark.
    constexpr double faint = 0.5;
    QColor colour = view.palette().color(QPalette::Text);
    colour.setAlphaF(faint);
    QPainter painter(view.viewport());
    painter.setPen(colour);
    painter.drawText(view.viewport()->rect().adjusted(margin, margin, -margin, -margin),
                     static_cast<int>(Qt::AlignCenter) | Qt::TextWordWrap, words);
}

} // namespace

void HintedList::paintEvent(QPaintEvent *event)
{
    QListView::paintEvent(event);
    if (!model() || model()->rowCount() > 0)
        return;
    PaintWords(*this, words);
    if (!hasFocus())
        return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::Highlight));
    painter.drawRect(viewport()->rect().adjusted(0, 0, -1, -1));
}

void HintedTree::paintEvent(QPaintEvent *event)
{
    QTreeView::paintEvent(event);
    if (model() && model()->rowCount(model()->index(0, 0)) == 0)
        PaintWords(*this, words);
}

} // namespace tressel
