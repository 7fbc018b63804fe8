// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "faces/Face.h"

#include "faces/DroppedPaths.h"
#include "faces/PlainTips.h"

#include <QDropEvent>
#include <QHelpEvent>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QTextDocument>

namespace tressel {

Face::Face(Control &shownControl, QWidget &showingWidget)
    : QObject(&showingWidget)
    , control(shownControl)
    , widget(showingWidget)
    , windowsTip(showingWidget.toolTip())
{
    Watch(widget);
}

void Face::TakeOver()
{
    const QScopedValueRollback guard(showing, true);
    widget.setEnabled(control.IsEnabled());
    // Of a control that shows a tool tip of its own, this is the form's, which it hides meanwhile.
    const QString &formsTip = control.Control::ToolTip();
    if (const QString &toolTip = formsTip.isEmpty() ? windowsTip : formsTip; widget.toolTip() != toolTip)
        widget.setToolTip(toolTip);
    for (const QPointer<QWidget> &part : std::as_const(parts)) {
        if (part)
            part->setAcceptDrops(control.TakesDrops());
    }
    Show();
    ShowVisible(control.IsVisible());
}

void Face::TakeFocus()
{
    widget.setFocus(Qt::OtherFocusReason);
}

void Face::ShowVisible(bool visible)
{
    // A widget that nobody hid comes up with its window, though it isn't visible before.
    const bool hidden =
        widget.testAttribute(Qt::WA_WState_ExplicitShowHide) && widget.testAttribute(Qt::WA_WState_Hidden);
    if (hidden == visible)
        widget.setVisible(visible);
}

void Face::Watch(QWidget &part)
{
    parts.append(&part);
    part.installEventFilter(this);
}

bool Face::eventFilter(QObject *, QEvent *event)
{
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        return control.TakesDrops() && FilterDrop(event);
    case QEvent::ToolTip:
        return FilterToolTip(*static_cast<QHelpEvent *>(event));
    default:
        return false;
    }
}

bool Face::FilterDrop(QEvent *event)
{
    auto *drop = static_cast<QDropEvent *>(event);
    const QStringList paths = DroppedPaths(*drop->mimeData());
    if (paths.isEmpty()) {
        // A text that is dragged is no path, whatever the widget would make of it.
        drop->ignore();
        return true;
    }
    // A copy, whatever the other program proposes: what is dropped stays where it was.
    drop->setDropAction(Qt::CopyAction);
    drop->accept();
    if (event->type() == QEvent::Drop)
        Hand([&] { control.UserDrops(paths); });
    return true;
}

bool Face::FilterToolTip(const QHelpEvent &event)
{
    const QString text = control.Control::ToolTip();
    if (!Qt::mightBeRichText(text))
        return false;
    ShowPlainTip(event.globalPos(), text, widget);
    return true;
}

} // namespace tressel
