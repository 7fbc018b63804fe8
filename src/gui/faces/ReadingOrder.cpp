// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "faces/ReadingOrder.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QTextEdit>

namespace tressel {

namespace {

// Widgets that Qt puts together from others.
bool IsComposite(const QWidget &widget)
{
    return qobject_cast<const QComboBox *>(&widget) || qobject_cast<const QAbstractItemView *>(&widget)
        || qobject_cast<const QLineEdit *>(&widget) || qobject_cast<const QPlainTextEdit *>(&widget)
        || qobject_cast<const QTextEdit *>(&widget) || qobject_cast<const QAbstractSpinBox *>(&widget)
        || qobject_cast<const QTabBar *>(&widget) || qobject_cast<const QDialogButtonBox *>(&widget);
}

void AddWidgets(const QLayout &layout, QList<QWidget *> &widgets)
{
    for (int place = 0; place < layout.count(); ++place) {
        QLayoutItem *item = layout.itemAt(place);
        if (item->widget())
            widgets += item->widget();
        else if (item->layout())
            AddWidgets(*item->layout(), widgets);
    }
}

QList<QWidget *> Children(const QWidget &parent)
{
    QList<QWidget *> children;
    if (parent.layout())
        AddWidgets(*parent.layout(), children);
    for (QWidget *child : parent.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
        if (!children.contains(child))
            children += child;
    }
    return children;
}

void Collect(const QWidget &parent, QList<QWidget *> &order)
{
    for (QWidget *child : Children(parent)) {
        if (child->isWindow())
            continue;
        order += child;
        if (!IsComposite(*child))
            Collect(*child, order);
    }
}

} // namespace

QList<QWidget *> ReadingOrder(const QWidget &window)
{
    QList<QWidget *> order;
    Collect(window, order);
    return order;
}

void SetTabOrder(const QList<QWidget *> &order)
{
    QWidget *before = nullptr;
    for (QWidget *widget : order) {
        if (widget->focusPolicy() == Qt::NoFocus)
            continue;
        if (before)
            QWidget::setTabOrder(before, widget);
        before = widget;
    }
}

} // namespace tressel
