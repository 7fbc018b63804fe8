// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "windows/OptionWindow.h"

#include "widgets/IsButtonWidget.h"
#include "windows/OptionPages.h"
#include "windows/Parts.h"

#include <QKeyEvent>

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

} // namespace

OptionWindow::OptionWindow()
{
    setObjectName(u"frmOption"_s);
    auto *upper = Row(gapWide);
    upper->addWidget(MakeList());
    upper->addWidget(MakeOptionPages(), 1);

    auto *column = Column(gapWide);
    column->setContentsMargins(gapWindow, gapWindow, gapWindow, gapWindow);
    column->addLayout(upper, 1);
    column->addLayout(ButtonRow({u"btnGBOK"_s, u"btnGBCancel"_s, u"btnGBApply"_s}));
    setLayout(column);
    resize(sizeHint());
}

void OptionWindow::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Cancel))
        Press(u"btnGBCancel"_s);
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        Press(u"btnGBOK"_s);
    else
        QWidget::keyPressEvent(event);
}

void OptionWindow::Press(const QString &button) const
{
    findChild<IsButtonWidget *>(button)->Press();
}

} // namespace tressel
