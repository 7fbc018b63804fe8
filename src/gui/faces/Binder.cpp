// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "faces/Binder.h"

#include "faces/ReadingOrder.h"

namespace tressel {

namespace {

bool IsMereHolder(const QString &name)
{
    return name.isEmpty() || name.startsWith(u"qt_") || name.startsWith(u"layout");
}

} // namespace

Binder::Binder(Form &boundForm, QWidget &window, const FaceMakers &makers)
    : form(boundForm)
{
    const QList<QWidget *> widgets = ReadingOrder(window);
    for (QWidget *widget : widgets) {
        if (!IsMereHolder(widget->objectName()))
            Bind(*widget, makers);
    }
    StartTimers(window);
    SetTabOrder(widgets);
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

} // namespace tressel
