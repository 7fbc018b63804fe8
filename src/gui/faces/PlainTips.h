// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPoint>
#include <QString>

class QAbstractItemView;
class QHelpEvent;
class QString;
class QWidget;

namespace tressel {

/// Shows a tool tip as it stands: a name may look like marked-up text.
void ShowPlainTip(const QPoint &globalPlace, const QString &text, QWidget &widget);

/// The tool tip of a caption that isn't seen whole: all of it, and below that what its tip says anyway.
QString WholeAndTip(const QString &caption, const QString &toolTip);

/// Where a row under the mouse is cut off at the view's edge, shows the whole of it. False if it isn't, or
/// there is none.
bool ShowCutRow(const QHelpEvent &event, QAbstractItemView &view);

} // namespace tressel
