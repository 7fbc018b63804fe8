// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "windows/OptionWindow.h"

#include "widgets/IsButtonWidget.h"
#include "windows/OptionPages.h"
#include "windows/Parts.h"

#include <QEvent>
#include <QScreen>
#include <QShortcut>

#include <algorithm>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

QListView *MakeList()
{
    constexpr int listWidth = 152;
    auto *list = List(u"lstOptions"_s, u"Pages"_s);
    list->setFixedWidth(listWidth);
    list->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    return list;
}

QScrollArea *MakePages()
{
    auto *area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidget(MakeOptionPages());
    return area;
}

} // namespace

OptionWindow::OptionWindow()
    : area(MakePages())
{
    setObjectName(u"frmOption"_s);
    auto *upper = Row(gapWide);
    upper->addWidget(MakeList());
    upper->addWidget(area, 1);

    auto *column = Column(gapWide);
    column->setContentsMargins(gapWindow, gapWindow, gapWindow, gapWindow);
    column->addLayout(upper, 1);
    column->addLayout(ButtonRow({u"btnGBOK"_s, u"btnGBCancel"_s, u"btnGBApply"_s}));
    setLayout(column);
    KeepRoom();
    resize(minimumSize());
    PressOn(Qt::Key_Return, u"btnGBOK"_s);
    PressOn(Qt::Key_Enter, u"btnGBOK"_s);
    PressOn(Qt::Key_Escape, u"btnGBCancel"_s);
}

bool OptionWindow::event(QEvent *event)
{
    // Another language has other captions.
    if (event->type() == QEvent::LayoutRequest)
        KeepRoom();
    return QWidget::event(event);
}

void OptionWindow::showEvent(QShowEvent *event)
{
    measured = {};
    KeepRoom();
    QWidget::showEvent(event);
}

void OptionWindow::MeasureAnew()
{
    // From the inside out. The toolkit itself doesn't look at what isn't shown.
    const QList<QWidget *> parts = findChildren<QWidget *>();
    for (auto part = parts.rbegin(); part != parts.rend(); ++part) {
        if (QLayout *inner = (*part)->layout()) {
            inner->invalidate();
            inner->activate();
        }
        (*part)->updateGeometry();
    }
}

QSize OptionWindow::RoomOfPages(const QSize &room)
{
    // On a narrower screen the page scrolls, and captions that this doesn't hold end in an ellipsis.
    constexpr int narrowest = 480;
    QWidget &pages = *area->widget();
    if (pages.sizeHint() != measured) {
        MeasureAnew();
        measured = pages.sizeHint();
    }
    const QLayout &all = *pages.layout();
    const int width = std::min(measured.width(), std::max(room.width(), narrowest));
    return {width, all.hasHeightForWidth() ? all.totalHeightForWidth(width) : measured.height()};
}

void OptionWindow::KeepRoom()
{
    const QRect before = geometry();
    const QRect onScreen = screen()->availableGeometry();
    const QSize frame = frameGeometry().size() - size();
    const QSize around = layout()->totalMinimumSize() - area->minimumSize();
    const QSize room = (onScreen.size() - frame - around).expandedTo(QSize(1, 1));
    const QSize wanted = RoomOfPages(room);
    area->widget()->setMinimumSize(wanted);
    area->setMinimumSize(wanted.boundedTo(room));
    setMinimumSize(layout()->totalMinimumSize());
    if (size() == before.size())
        return;
    // Its middle stays where it is, but its title in sight.
    const QPoint corner = pos() - (rect().center() - QRect(QPoint(), before.size()).center());
    move(corner.x(), std::max(corner.y(), onScreen.top()));
}

void OptionWindow::PressOn(const QKeySequence &keys, const QString &button)
{
    connect(new QShortcut(keys, this), &QShortcut::activated, this,
            [this, button] { findChild<IsButtonWidget *>(button)->Press(); });
}

} // namespace tressel
