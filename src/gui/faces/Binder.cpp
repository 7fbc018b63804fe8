// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "faces/Binder.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QDialogButtonBox>
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

bool IsMereHolder(const QString &name)
{
    return name.isEmpty() || name.startsWith(u"qt_") || name.startsWith(u"layout");
}

} // namespace

Binder::Binder(Form &boundForm, QWidget &window, const FaceMakers &makers)
    : form(boundForm)
{
    Walk(window, makers);
    StartTimers(window);
    SetTabOrder();
}

void Binder::TakeOver(const Control &control) const
{
    if (Face *face = FaceOf(control))
        face->TakeOver();
    else if (TimerPulse *pulse = pulses.value(&control))
        pulse->TakeOver();
}

QStringList Binder::ControlsWithoutFace() const
{
    QStringList names;
    for (const Control *control : form.Controls()) {
        if (!FaceOf(*control) && !pulses.contains(control))
            names += control->Name();
    }
    return names;
}

void Binder::Walk(QWidget &parent, const FaceMakers &makers)
{
    const QList<QWidget *> children = parent.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget *child : children) {
        if (child->isWindow())
            continue;
        if (!IsMereHolder(child->objectName()))
            Bind(*child, makers);
        if (!IsComposite(*child))
            Walk(*child, makers);
    }
}

void Binder::Bind(QWidget &widget, const FaceMakers &makers)
{
    Control *control = form.Find(widget.objectName());
    Face *face = control && !faces.contains(control) ? makers.Make(*control, widget) : nullptr;
    if (face)
        faces.insert(control, face);
    else
        strangers += widget.objectName();
}

void Binder::StartTimers(QWidget &window)
{
    for (Control *control : form.Controls()) {
        if (auto *timer = dynamic_cast<Timer *>(control))
            pulses.insert(timer, new TimerPulse(*timer, &window));
    }
}

void Binder::SetTabOrder() const
{
    QWidget *before = nullptr;
    for (const Control *control : form.Controls()) {
        const Face *face = FaceOf(*control);
        if (!face || face->Widget().focusPolicy() == Qt::NoFocus)
            continue;
        if (before)
            QWidget::setTabOrder(before, &face->Widget());
        before = &face->Widget();
    }
}

} // namespace tressel
