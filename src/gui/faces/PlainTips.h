// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPoint>
#include <QString>

class QAbstractItemView;
class QHelpEvent;
class QWidget;

namespace tressel {

/// Shows a tool tip as it stands: a name may look like marked-up text.
void ShowPlainTip(const QPoint &globalPlace, const QString &text, QWidget &widget);

/// Where a row under the mouse is cut off at the view's edge, shows the whole of it. False if it isn't, or
/// there is none.
bool ShowCutRow(const QHelpEvent &event, QAbstractItemView &view);

} // namespace tressel
