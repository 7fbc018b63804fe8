// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "faces/PlainTips.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QTextDocument>
#include <QToolTip>

namespace tressel {

void ShowPlainTip(const QPoint &globalPlace, const QString &text, QWidget &widget)
{
    const bool looksMarkedUp = Qt::mightBeRichText(text);
    QToolTip::showText(
        globalPlace, looksMarkedUp ? QStringLiteral("<qt>%1</qt>").arg(text.toHtmlEscaped()) : text, &widget);
}

QString WholeAndTip(const QString &caption, const QString &toolTip)
{
    return toolTip.isEmpty() ? caption : caption + u'\n' + toolTip;
}

bool ShowCutRow(const QHelpEvent &event, QAbstractItemView &view)
{
    const QModelIndex index = view.indexAt(event.pos());
    if (!index.isValid() || view.sizeHintForIndex(index).width() <= view.visualRect(index).width())
        return false;
    ShowPlainTip(event.globalPos(), index.data().toString(), view);
    return true;
}

} // namespace tressel
