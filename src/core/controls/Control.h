// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/Event.h"
#include "controls/Form.h"

#include <QString>
#include <QStringList>

#include <functional>

namespace tressel {

/// What all controls share: a name, a place on a form, and the states that every kind has. A control
/// holds its state and raises its events; it draws nothing and knows no widget.
///
/// Two roads lead to a control. Handlers of the program write its properties (Set...), which raises the
/// events that the kind of control tells. A person's acts come from a face through the functions that
/// each kind lists under "For faces"; they do nothing on a control that is disabled, and what they
/// cause runs through Form::Dispatch.
class Control {
public:
    /// Registers with the form under the name, which is unique there.
    Control(Form &form, QString name);
    Control(const Control &) = delete;
    Control &operator=(const Control &) = delete;
    virtual ~Control();

    const QString &Name() const { return name; }
    Form &Owner() const { return form; }

    bool IsEnabled() const { return enabled; }
    virtual void SetEnabled(bool isEnabled);
    bool IsVisible() const { return visible; }
    void SetVisible(bool isVisible);
    virtual const QString &ToolTip() const { return toolTip; }
    virtual void SetToolTip(const QString &text);
    /// Gives it the keyboard, as soon as a face can take it.
    void SetFocus() { form.NoteFocused(*this); }

    /// Place and size in twips, for controls whose geometry rules speak of. Writing a size below 0 fails
    /// with 380 and changes nothing.
    int Left() const { return left; }
    int Top() const { return top; }
    int Width() const { return width; }
    int Height() const { return height; }
    void SetLeft(int twips);
    void SetTop(int twips);
    virtual void SetWidth(int twips);
    virtual void SetHeight(int twips);

    /// Whether files of the desktop may be dropped on it.
    bool TakesDrops() const { return takesDrops; }
    void SetTakesDrops(bool takes);
    /// Paths of dropped files and folders, in the order in which they came.
    Event<const QStringList &> Drop;

    // For faces.

    /// Does nothing if the control takes no drops.
    void UserDrops(const QStringList &paths);

protected:
    /// Notes that the face has something to take over.
    void NoteChanged() { form.NoteChanged(*this); }
    /// Runs a user's act, unless the control is disabled.
    void UserAct(const std::function<void()> &act);

private:
    friend class Form;

    Form &form;
    QString name;
    QString toolTip;
    bool enabled = true;
    bool visible = true;
    bool takesDrops = false;
    bool noted = false;
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
};

} // namespace tressel
