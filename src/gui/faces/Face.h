// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/Control.h"

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QWidget>

#include <utility>

class QHelpEvent;

namespace tressel {

/// What ties one control to the widget that shows it. It holds no rule: it shows the control's state and
/// hands the user's acts to it. It belongs to its widget and goes with it.
///
/// A face takes changes over when it is asked to (TakeOver), which is when there is time. What it does to
/// the widget meanwhile doesn't come back to the control as a user's act.
class Face : public QObject {
public:
    Face(Control &control, QWidget &widget);

    Control &Shown() const { return control; }
    QWidget &Widget() const { return widget; }

    /// Shows the control's present state.
    void TakeOver();
    /// Gives the widget the keyboard.
    void TakeFocus();

protected:
    /// Shows what only this kind of control has.
    virtual void Show() = 0;
    virtual void ShowVisible(bool visible);

    /// Runs a user's act on the control, unless the face itself caused it by showing. The widget may have
    /// run ahead of what the control made of the act, so the control's state is shown anew soon after.
    template <typename Act> void Hand(Act &&act)
    {
        if (showing)
            return;
        const QPointer<Face> self(this);
        std::forward<Act>(act)();
        if (self)
            QMetaObject::invokeMethod(
                this, [this] { TakeOver(); }, Qt::QueuedConnection);
    }

    /// Watches a part of the widget that gets its mouse, keyboard or drop events in the widget's place.
    void Watch(QWidget &part);

    bool eventFilter(QObject *watched, QEvent *event) override;
    /// The mouse rests on the widget. True if a tool tip came up.
    virtual bool FilterToolTip(const QHelpEvent &event);

private:
    bool FilterDrop(QEvent *event);
    Control &control;
    QWidget &widget;
    const QString windowsTip; ///< what the window says where the form says nothing
    QList<QPointer<QWidget>> parts;
    bool showing = false;
};

} // namespace tressel
