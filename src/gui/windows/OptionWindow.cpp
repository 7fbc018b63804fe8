// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "windows/OptionWindow.h"

#include "widgets/IsButtonWidget.h"
#include "windows/OptionPages.h"
#include "windows/Parts.h"

#include <QShortcut>

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
    PressOn(Qt::Key_Return, u"btnGBOK"_s);
    PressOn(Qt::Key_Enter, u"btnGBOK"_s);
    PressOn(Qt::Key_Escape, u"btnGBCancel"_s);
}

void OptionWindow::PressOn(const QKeySequence &keys, const QString &button)
{
    connect(new QShortcut(keys, this), &QShortcut::activated, this,
            [this, button] { findChild<IsButtonWidget *>(button)->Press(); });
}

} // namespace tressel
