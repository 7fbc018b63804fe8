// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/Failure.h"
#include "controls/Event.h"

#include <QHash>
#include <QList>
#include <QString>

#include <functional>

namespace tressel {

class Control;

enum class WindowState { Normal, Minimised, Maximised };

/// A window without a face: the register of its controls, its own properties, and the one road by
/// which a user's act reaches a handler.
///
/// Controls and the form only note that they changed. Whoever draws the window asks for what changed
/// when it has time (TakeChanged), so that a run may change a control a thousand times between two looks.
class Form {
public:
    explicit Form(QString name);
    Form(const Form &) = delete;
    Form &operator=(const Form &) = delete;
    virtual ~Form();

    const QString &Name() const { return name; }

    /// The control of that name, null if there is none. An entry of an array is named "optSplit(0)".
    Control *Find(const QString &controlName) const { return byName.value(controlName); }
    /// All controls in the order in which they were made, which is the tab order.
    const QList<Control *> &Controls() const { return controls; }

    const QString &Caption() const { return caption; }
    void SetCaption(const QString &text);

    /// Place and size in twips, 15 to a device-independent pixel.
    int Left() const { return left; }
    int Top() const { return top; }
    int Width() const { return width; }
    int Height() const { return height; }
    void Move(int newLeft, int newTop);
    /// Raises Resize if the size differs. What is below 0 counts as 0.
    void SetSize(int newWidth, int newHeight);

    /// The user can't make the window smaller, in twips. At 0 the window's own content says what is least.
    int LeastWidth() const { return leastWidth; }
    int LeastHeight() const { return leastHeight; }
    void SetLeastSize(int newWidth, int newHeight);

    WindowState State() const { return state; }
    void SetState(WindowState newState);

    /// Whether the title bar offers to close the window. On unless a form takes it away.
    bool HasCloseBox() const { return closeBox; }
    void SetCloseBox(bool hasOne);

    bool IsVisible() const { return visible; }
    /// Shows the form, or brings it to the front; raises Load first if it wasn't loaded.
    void Show();
    void Hide();

    bool IsLoaded() const { return loaded; }
    /// Raises Load the first time, so that the form's controls are as its handlers leave them.
    void EnsureLoaded();
    /// Raises QueryUnload and Unload, hides the form and makes it not loaded, unless a handler refused
    /// (by setting `refused`). Nothing happens on a form that isn't loaded.
    void Unload();

    Event<> Load;
    Event<bool &> QueryUnload; ///< set the argument to refuse
    Event<bool &> Unloading; ///< set the argument to refuse
    Event<> Unloaded; ///< the form has gone from the screen
    Event<> Resize;
    Event<> Activate;

    /// Runs what a user's act caused. A failure that leaves it goes to the fatal handler.
    void Dispatch(const std::function<void()> &handler);
    /// Who takes a failure that no handler caught. Without one the failure goes on to Dispatch's caller.
    void SetFatalHandler(std::function<void(const Failure &)> handler) { fatal = std::move(handler); }
    /// Called after each event that came in through Dispatch from the outside (not for nested ones).
    void SetAfterEvent(std::function<void()> procedure) { afterEvent = std::move(procedure); }

    // For faces.

    /// Called when something changes after a time of rest, and not again before TakeChanged.
    void SetChangeListener(std::function<void()> listener);
    /// The controls that changed since the last call, each once.
    QList<Control *> TakeChanged();
    /// True once if a property of the form itself changed since the last call.
    bool TakeFormChanged();
    /// True once if the form was told to show itself since the last call, also if it was on show already.
    bool TakeShown();
    /// The control that was given the keyboard since the last call, null if none was.
    Control *TakeFocused();
    /// The user's or the desktop's doing: takes place, size and state over without noting a change,
    /// and raises Resize if the size differs.
    void TakeGeometry(int newLeft, int newTop, int newWidth, int newHeight, WindowState newState);
    /// The form became the active one, from another form or from another program's window: raises Activate.
    void UserActivates();

private:
    friend class Control;
    void Register(Control &control);
    void Forget(Control &control);
    void NoteChanged(Control &control);
    void NoteFocused(Control &control);
    void NoteFormChanged();
    void TellListener();

    QString name;
    QString caption;
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    int leastWidth = 0;
    int leastHeight = 0;
    WindowState state = WindowState::Normal;
    bool closeBox = true;
    bool visible = false;
    bool loaded = false;
    bool formChanged = true;
    bool shown = false;
    Control *focused = nullptr;
    bool listenerTold = false;
    int depth = 0;
    QList<Control *> controls;
    QHash<QString, Control *> byName;
    QList<Control *> changed;
    std::function<void()> changeListener;
    std::function<void(const Failure &)> fatal;
    std::function<void()> afterEvent;
};

} // namespace tressel
