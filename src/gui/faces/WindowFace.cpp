// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "faces/WindowFace.h"

#include "base/Twips.h"
#include "faces/FaceUpdates.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QScopedValueRollback>
#include <QScreen>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace tressel {

namespace {

// An X server knows no larger window; a picture of a much larger one wouldn't fit the memory.
constexpr QSize largest(32767, 32767);

// Twips finer than a pixel stay as they are while the pixels are the same.
int Told(int twips, int pixels)
{
    return ToPixels(twips) == pixels ? twips : ToTwips(pixels);
}

/// Where a window goes whose stored place may be that of a screen which has gone: to the nearest place on the
/// nearest one, if too little of its upper edge to take hold of is on any.
QRect OnAScreen(const QRect &wanted)
{
    constexpr QSize handle(64, 24);
    const QRect edge(wanted.topLeft(), QSize(wanted.width(), handle.height()));
    const QList<QScreen *> screens = QGuiApplication::screens();
    QRect nearest;
    qint64 least = std::numeric_limits<qint64>::max();
    for (const QScreen *screen : screens) {
        const QRect room = screen->availableGeometry();
        const QSize seen = (edge & room).size();
        if (seen.width() >= std::min(handle.width(), wanted.width()) && seen.height() >= handle.height() / 2)
            return wanted;
        const QPoint way(std::clamp(edge.left(), room.left(), room.right()) - edge.left(),
                         std::clamp(edge.top(), room.top(), room.bottom()) - edge.top());
        if (const qint64 length = std::abs(qint64(way.x())) + std::abs(qint64(way.y())); length < least) {
            least = length;
            nearest = room;
        }
    }
    const QSize size = wanted.size().boundedTo(nearest.size());
    return {std::clamp(wanted.left(), nearest.left(), nearest.left() + nearest.width() - size.width()),
            std::clamp(wanted.top(), nearest.top(), nearest.top() + nearest.height() - size.height()),
            size.width(), size.height()};
}

} // namespace

WindowFace::WindowFace(Form &shownForm, QWidget &showingWindow, const FaceMakers &makers, FaceUpdates &when)
    : form(shownForm)
    , window(showingWindow)
    , updates(when)
    , binder(shownForm, showingWindow, makers)
{
    if (form.Width() == 0 && form.Height() == 0)
        form.SetSize(ToTwips(window.width()), ToTwips(window.height()));
    window.installEventFilter(this);
    updates.windows.append(this);
    form.SetChangeListener([this] { updates.Schedule(); });
    connect(qApp, &QGuiApplication::commitDataRequest, this, [this] {
        if (!form.HasCloseBox())
            UnloadForm();
    });
}

WindowFace::~WindowFace()
{
    form.SetChangeListener({});
    updates.windows.removeOne(this);
    if (updates.lastActive == this)
        updates.lastActive = nullptr;
}

void WindowFace::Refresh()
{
    keyboard.NoteHolder();
    const QList<Control *> changed = form.TakeChanged();
    for (const Control *control : changed)
        binder.TakeOver(*control);
    if (form.TakeFormChanged())
        ShowForm();
    if (const Control *focused = form.TakeFocused()) {
        if (Face *face = binder.FaceOf(*focused))
            face->TakeFocus();
    }
    keyboard.GiveBack();
}

void WindowFace::ShowForm()
{
    {
        const QScopedValueRollback guard(showing, true);
        ShowProperties();
    }
    // The desktop may have made something else of it.
    TellGeometry();
}

void WindowFace::ShowProperties()
{
    // Qt puts a mark of its own in place of "[*]" in a title.
    const QString title = QString(form.Caption()).replace(u"[*]"_s, u"[*][*]"_s);
    if (window.windowTitle() != title)
        window.setWindowTitle(title);
    ShowCloseBox();
    ShowLeastSize();
    const bool wasShown = form.TakeShown();
    if (!form.IsVisible()) {
        window.hide();
        return;
    }
    ShowGeometry();
    ShowState();
    if (wasShown)
        BringToFront();
}

void WindowFace::ShowCloseBox()
{
    if (shownCloseBox == form.HasCloseBox())
        return;
    shownCloseBox = form.HasCloseBox();
    const bool wasVisible = window.isVisible();
    Qt::WindowFlags flags = window.windowFlags() | Qt::CustomizeWindowHint | Qt::WindowTitleHint
        | Qt::WindowSystemMenuHint | Qt::WindowMinMaxButtonsHint;
    window.setWindowFlags(flags.setFlag(Qt::WindowCloseButtonHint, shownCloseBox));
    // A window on show is hidden by new flags.
    if (wasVisible)
        window.show();
}

void WindowFace::ShowLeastSize()
{
    const QSize least(ToPixels(form.LeastWidth()), ToPixels(form.LeastHeight()));
    if (!least.isNull() && window.minimumSize() != least)
        window.setMinimumSize(least);
}

void WindowFace::ShowGeometry()
{
    if (form.State() != WindowState::Normal
        || (window.windowState() & (Qt::WindowMaximized | Qt::WindowMinimized | Qt::WindowFullScreen)))
        return;
    const QSize size = QSize(ToPixels(form.Width()), ToPixels(form.Height())).boundedTo(largest);
    if (window.size() != size)
        window.resize(size);
    if (form.Left() == shownLeft && form.Top() == shownTop)
        return;
    shownLeft = form.Left();
    shownTop = form.Top();
    const QRect wanted(QPoint(ToPixels(shownLeft), ToPixels(shownTop)), size);
    const QRect place = OnAScreen(wanted);
    window.move(place.topLeft());
    if (place == wanted)
        return;
    window.resize(place.size());
    shownLeft = ToTwips(window.x());
    shownTop = ToTwips(window.y());
    form.TakeGeometry(shownLeft, shownTop, ToTwips(window.width()), ToTwips(window.height()), form.State());
}

void WindowFace::ShowState()
{
    // The form knows no full screen and holds it for maximised.
    if (form.State() == WindowState::Maximised && window.isFullScreen())
        return;
    const Qt::WindowStates others = window.windowState() & ~(Qt::WindowMaximized | Qt::WindowMinimized);
    const Qt::WindowStates wanted = form.State() == WindowState::Maximised ? Qt::WindowMaximized
        : form.State() == WindowState::Minimised                           ? Qt::WindowMinimized
                                                                           : Qt::WindowNoState;
    if (window.windowState() != (others | wanted))
        window.setWindowState(others | wanted);
}

void WindowFace::BringToFront()
{
    // The form has raised Activate already; what the desktop says of it later is no news.
    activationTold = !window.isActiveWindow();
    if (window.isVisible())
        window.raise();
    else
        window.show();
    window.activateWindow();
}

bool WindowFace::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Close:
        UnloadForm();
        // Other windows may come up as this one goes; they must be there before the last one is gone.
        updates.Flush();
        event->setAccepted(!form.IsVisible());
        return true;
    case QEvent::Show:
        TellSize();
        break;
    case QEvent::Resize:
    case QEvent::Move:
    case QEvent::WindowStateChange:
        TellGeometry();
        break;
    case QEvent::WindowActivate:
        TellActivation();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void WindowFace::TellSize()
{
    // The least size of a window may be more than its form asked for while it was hidden.
    form.TakeGeometry(form.Left(), form.Top(), Told(form.Width(), window.width()),
                      Told(form.Height(), window.height()), form.State());
}

void WindowFace::TellGeometry()
{
    // Half of what is being shown: a size that is new at a place that isn't.
    if (showing || !window.isVisible())
        return;
    const Qt::WindowStates states = window.windowState();
    const WindowState state = states & Qt::WindowMinimized      ? WindowState::Minimised
        : states & (Qt::WindowMaximized | Qt::WindowFullScreen) ? WindowState::Maximised
                                                                : WindowState::Normal;
    const int left = Told(form.Left(), window.x());
    const int top = Told(form.Top(), window.y());
    shownLeft = left;
    shownTop = top;
    form.TakeGeometry(left, top, Told(form.Width(), window.width()), Told(form.Height(), window.height()),
                      state);
}

void WindowFace::TellActivation()
{
    const bool isFirst = !updates.lastActive;
    updates.lastActive = this;
    // Back from another window, be it this program's or another one's.
    if (!std::exchange(activationTold, false) && !isFirst)
        form.UserActivates();
}

void WindowFace::UnloadForm()
{
    form.Dispatch([this] { form.Unload(); });
}

} // namespace tressel
