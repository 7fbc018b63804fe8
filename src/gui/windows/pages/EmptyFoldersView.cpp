// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "windows/pages/EmptyFoldersView.h"

#include "widgets/IsButtonWidget.h"
#include "windows/Parts.h"

#include <QGridLayout>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

QLayout *MakeButtons()
{
    auto *grid = new QGridLayout;
    grid->setSpacing(gapSmall);
    for (int column = 0; column < 3; ++column)
        grid->setColumnStretch(column, 1);
    grid->addWidget(PageButton(u"btnGBToolbarSearch"_s), 0, 0);
    grid->addWidget(PageButton(u"btnGBToolbarOpenDir"_s), 0, 1);
    grid->addWidget(PageButton(u"btnGBToolbarDelDir"_s), 0, 2);
    grid->addWidget(PageButton(u"btnGBToolbarDeleteAll"_s), 1, 0);
    grid->addWidget(PageButton(u"btnGBToolbarCopy"_s), 1, 1);
    return grid;
}

} // namespace

QWidget *MakeEmptyFoldersView()
{
    auto *column = Column();
    column->addWidget(Combo(u"DrvListRemove"_s, u"Drives"_s));
    column->addWidget(List(u"DirListRemove"_s, u"Folder to search"_s), 1);
    column->addWidget(
        List(u"ListRemove"_s, u"Empty folders found"_s, u"A search lists the empty folders here."_s), 1);
    return Page(u"FrameXPMenu(5)"_s, {column, MakeButtons()});
}

} // namespace tressel
