// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "controls/Form.h"

#include "controls/Control.h"

#include <algorithm>
#include <utility>

namespace tressel {

Form::Form(QString formName)
    : name(std::move(formName))
{
}

Form::~Form() = default;

void Form::SetCaption(const QString &text)
{
    if (caption == text)
        return;
    caption = text;
    NoteFormChanged();
}

void Form::Move(int newLeft, int newTop)
{
    if (left == newLeft && top == newTop)
        return;
    left = newLeft;
    top = newTop;
    NoteFormChanged();
}

void Form::SetSize(int newWidth, int newHeight)
{
    // A stored size may be any number, a window's is never less than nothing.
    newWidth = std::max(newWidth, 0);
    newHeight = std::max(newHeight, 0);
    if (width == newWidth && height == newHeight)
        return;
    width = newWidth;
    height = newHeight;
    NoteFormChanged();
    Resize.Raise();
}

void Form::SetLeastSize(int newWidth, int newHeight)
{
    leastWidth = newWidth;
    leastHeight = newHeight;
    NoteFormChanged();
}

void Form::SetState(WindowState newState)
{
    if (state == newState)
        return;
    state = newState;
    NoteFormChanged();
}

void Form::SetCloseBox(bool hasOne)
{
    closeBox = hasOne;
    NoteFormChanged();
}

void Form::Show()
{
    EnsureLoaded();
    visible = true;
    shown = true;
    NoteFormChanged();
    Activate.Raise();
}

void Form::Hide()
{
    if (!visible)
        return;
    visible = false;
    NoteFormChanged();
}

void Form::EnsureLoaded()
{
    if (loaded)
        return;
    loaded = true;
    Load.Raise();
}

void Form::Unload()
{
    if (!loaded)
        return;
    bool refused = false;
    QueryUnload.Raise(refused);
    if (!refused)
        Unloading.Raise(refused);
    if (refused)
        return;
    Hide();
    loaded = false;
    Unloaded.Raise();
}

void Form::Dispatch(const std::function<void()> &handler)
{
    // Counted by hand: an end of the process in a test unwinds through here as an exception of its own.
    struct Depth {
        explicit Depth(int &count)
            : count(count)
        {
            ++count;
        }
        ~Depth() { --count; }
        int &count;
    };
    {
        const Depth entered(depth);
        try {
            handler();
        } catch (const Failure &failure) {
            if (!fatal)
                throw;
            fatal(failure);
        }
    }
    if (depth == 0 && afterEvent)
        afterEvent();
}

void Form::SetChangeListener(std::function<void()> listener)
{
    changeListener = std::move(listener);
    listenerTold = false;
    if (formChanged || !changed.isEmpty())
        TellListener();
}

QList<Control *> Form::TakeChanged()
{
    listenerTold = false;
    QList<Control *> taken = std::exchange(changed, {});
    for (Control *control : taken)
        control->noted = false;
    return taken;
}

bool Form::TakeFormChanged()
{
    listenerTold = false;
    return std::exchange(formChanged, false);
}

bool Form::TakeShown()
{
    return std::exchange(shown, false);
}

Control *Form::TakeFocused()
{
    return std::exchange(focused, nullptr);
}

void Form::TakeGeometry(int newLeft, int newTop, int newWidth, int newHeight, WindowState newState)
{
    left = newLeft;
    top = newTop;
    state = newState;
    if (width == newWidth && height == newHeight)
        return;
    width = newWidth;
    height = newHeight;
    Dispatch([this] { Resize.Raise(); });
}

void Form::UserActivates()
{
    Dispatch([this] { Activate.Raise(); });
}

void Form::Register(Control &control)
{
    Q_ASSERT_X(!byName.contains(control.Name()), "Form::Register", qPrintable(control.Name()));
    controls.append(&control);
    byName.insert(control.Name(), &control);
}

void Form::Forget(Control &control)
{
    controls.removeOne(&control);
    changed.removeOne(&control);
    byName.remove(control.Name());
    if (focused == &control)
        focused = nullptr;
}

void Form::NoteChanged(Control &control)
{
    if (control.noted)
        return;
    control.noted = true;
    changed.append(&control);
    TellListener();
}

void Form::NoteFocused(Control &control)
{
    focused = &control;
    TellListener();
}

void Form::NoteFormChanged()
{
    formChanged = true;
    TellListener();
}

void Form::TellListener()
{
    if (listenerTold || !changeListener)
        return;
    listenerTold = true;
    changeListener();
}

} // namespace tressel
