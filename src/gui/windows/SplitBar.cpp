// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "windows/SplitBar.h"

#include "base/Twips.h"
#include "faces/Keys.h"
#include "windows/WorkPanes.h"

#include <QMouseEvent>
#include <QPainter>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

constexpr int keyStep = 10 * twipsPerPixel;

} // namespace

SplitGrip::SplitGrip(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(u"PicHold"_s);
    setFixedSize(sizeHint());
    setCursor(Qt::SplitHCursor);
}

void SplitGrip::paintEvent(QPaintEvent *)
{
    constexpr int distance = 5;
    constexpr int dot = 2;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    QColor colour = palette().color(QPalette::WindowText);
    colour.setAlphaF(0.45F);
    painter.setBrush(colour);
    for (int y = distance; y <= height() - distance; y += distance) {
        painter.drawEllipse(QRect(1, y, dot, dot));
        painter.drawEllipse(QRect(1 + dot + 1, y, dot, dot));
    }
}

SplitBar::SplitBar(QWidget *parent)
    : QWidget(parent)
    , grip(new SplitGrip(this))
{
    setObjectName(u"PicStrip"_s);
    setAccessibleName(u"Width of the page"_s);
    setCursor(Qt::SplitHCursor);
    setFocusPolicy(Qt::TabFocus);
}

WorkPanes *SplitBar::Panes() const
{
    return dynamic_cast<WorkPanes *>(parentWidget());
}

void SplitBar::resizeEvent(QResizeEvent *)
{
    grip->move((width() - grip->width() + 1) / 2, (height() - grip->height()) / 2);
}

void SplitBar::paintEvent(QPaintEvent *)
{
    if (!hasFocus())
        return;
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Highlight));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

SplitBarFace::SplitBarFace(PictureBox &control, SplitBar &widget, const FaceLooks &looks)
    : PictureFace(control, widget, looks)
    , box(control)
    , bar(widget)
{
}

void SplitBarFace::Show()
{
    PictureFace::Show();
    if (bar.Panes())
        bar.Panes()->TakeOver();
}

bool SplitBarFace::eventFilter(QObject *watched, QEvent *event)
{
    if (IsKey(*event, Qt::Key_Left) || IsKey(*event, Qt::Key_Right)) {
        const int step = IsKey(*event, Qt::Key_Left) ? -keyStep : keyStep;
        Hand([&] {
            box.UserMovesMouse(PictureBox::leftButton, step);
            box.UserReleasesMouse();
        });
        return true;
    }
    return PictureFace::eventFilter(watched, event);
}

SplitGripFace::SplitGripFace(PictureBox &control, SplitGrip &widget, const FaceLooks &looks)
    : PictureFace(control, widget, looks)
    , box(control)
{
}

bool SplitGripFace::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseMove:
        return TakeMove(*static_cast<QMouseEvent *>(event));
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
        // What the grip has seen goes no further: the bar below would act on it once more.
        PictureFace::eventFilter(watched, event);
        return true;
    default:
        return PictureFace::eventFilter(watched, event);
    }
}

bool SplitGripFace::TakeMove(const QMouseEvent &move)
{
    const auto *bar = static_cast<const SplitBar *>(Widget().parentWidget());
    const Control *strip = box.Owner().Find(bar->objectName());
    if (bar->Panes() && strip) {
        const int ahead = strip->Left() - bar->Panes()->ShownStripLeft();
        const int buttons = move.buttons() & Qt::LeftButton ? PictureBox::leftButton : 0;
        Hand([&] { box.UserMovesMouse(buttons, ToTwips(move.position().toPoint().x()) - ahead); });
    }
    return true;
}

} // namespace tressel
