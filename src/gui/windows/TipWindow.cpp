// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "windows/TipWindow.h"

#include "widgets/IsButtonWidget.h"
#include "windows/LogoPicture.h"
#include "windows/Parts.h"
#include "windows/WholeText.h"

#include <QScrollArea>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

QWidget *MakePicture()
{
    auto *image = new LogoPicture(u"Image1"_s, false);
    image->setFixedSize(LogoPicture::extent);
    auto *column = Column(0);
    column->addWidget(image);
    column->addStretch();
    auto *holder = Part<QWidget>(u"Picture1"_s);
    holder->setLayout(column);
    return holder;
}

void Enlarge(QWidget &widget, double factor, bool bold)
{
    QFont font = widget.font();
    font.setPointSizeF(font.pointSizeF() * factor);
    font.setBold(bold);
    widget.setFont(font);
}

QLabel *MakeHeading()
{
    auto *heading = Part<QLabel>(u"Label1"_s);
    Enlarge(*heading, 1.5, true);
    return heading;
}

/// The tip; one that is too long for the window scrolls.
QScrollArea *MakeText()
{
    constexpr int roomForFourLongLines = 136;
    auto *text = Part<WholeText>(u"lblTipText"_s);
    Enlarge(*text, 1.1, false);
    auto *area = new QScrollArea;
    area->setObjectName(u"layoutTip"_s);
    area->setAccessibleName(u"Tip"_s);
    area->setWidget(text);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setMinimumHeight(roomForFourLongLines);
    return area;
}

} // namespace

TipWindow::TipWindow()
{
    constexpr QSize firstSize(480, 264);
    setObjectName(u"frmTip"_s);

    auto *words = Column(gap);
    words->addWidget(MakeHeading());
    words->addWidget(MakeText(), 1);
    auto *upper = Row(gapWindow);
    upper->addWidget(MakePicture());
    upper->addLayout(words, 1);

    auto *lower = Row();
    lower->addWidget(Part<QCheckBox>(u"chkLoadTipsAtStartup"_s));
    lower->addStretch();
    lower->addWidget(PageButton(u"cmdNextTip"_s));
    lower->addWidget(PageButton(u"cmdAbout"_s));
    lower->addWidget(PageButton(u"cmdOK"_s));

    auto *column = Column(gapWindow);
    column->setContentsMargins(gapWindow, gapWindow, gapWindow, gapWindow);
    column->addLayout(upper, 1);
    column->addLayout(lower);
    setLayout(column);
    resize(firstSize);
}

} // namespace tressel
