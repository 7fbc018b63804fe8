// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/Form.h"
#include "faces/Face.h"
#include "faces/FaceMakers.h"
#include "faces/TimerPulse.h"

#include <QHash>
#include <QPointer>
#include <QStringList>

namespace tressel {

/// Ties the widgets of a window to the controls of a form, by name: a widget whose objectName is a
/// control's name becomes that control's face.
///
/// Without a control are: widgets without a name, inner parts of Qt's own widgets, and mere holders of
/// other widgets, whose names begin with "layout".
class Binder {
public:
    /// Makes the faces and sets the tab order to the order in which the window is read. The form must
    /// outlive the window.
    Binder(Form &boundForm, QWidget &window, const FaceMakers &makers);

    /// Null for a control without a face.
    Face *FaceOf(const Control &control) const { return faces.value(&control); }

    /// Has the control's face, or a timer's pulse, take the control's state over.
    void TakeOver(const Control &control) const;

    /// Names of controls that no widget of the window shows, in the form's order. A timer needs none.
    QStringList ControlsWithoutFace() const;
    /// Names of widgets that show no control: no control has the name, or not of a kind that the widget
    /// can show, or another widget of that name shows it.
    const QStringList &WidgetsWithoutControl() const { return strangers; }

private:
    void Bind(QWidget &widget, const FaceMakers &makers);
    void StartTimers(QWidget &window);

    Form &form;
    QHash<const Control *, QPointer<Face>> faces;
    QHash<const Control *, QPointer<TimerPulse>> pulses;
    QStringList strangers;
};

} // namespace tressel
