// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>

class QWidget;

namespace tressel {

/// The widgets of a window in the order in which they are read: each before what it holds, and what a
/// layout holds in the order in which it was put there. Without windows of their own and without the inner
/// parts of the toolkit's composite widgets.
QList<QWidget *> ReadingOrder(const QWidget &window);

/// Makes that order the order of the tab key.
void SetTabOrder(const QList<QWidget *> &order);

} // namespace tressel
