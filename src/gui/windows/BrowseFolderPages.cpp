// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "widgets/IsButtonWidget.h"
#include "windows/Pages.h"
#include "windows/Parts.h"

#include <QGridLayout>

namespace tressel {

using namespace Qt::StringLiterals;

QWidget *MakeBrowsePage()
{
    auto *column = Column();
    column->addWidget(Combo(u"DrvList"_s, u"Drives"_s));
    column->addWidget(List(u"DirList"_s, u"Folders"_s), 2);
    column->addWidget(List(u"FileList"_s, u"Files"_s), 3);
    return Page(u"FrameXPMenu(0)"_s, column);
}

QWidget *MakeNumberedPage()
{
    auto *from = Combo(u"cboFrom"_s);
    auto *to = Combo(u"cboTo"_s);
    auto *numbers = Row();
    numbers->addWidget(LabelFor(u"lblFrom"_s, from));
    numbers->addWidget(from, 1);
    numbers->addSpacing(gapSmall);
    numbers->addWidget(LabelFor(u"lblTo"_s, to));
    numbers->addWidget(to, 1);

    auto *names = Row();
    names->addWidget(Field(u"txtFeltDir"_s, u"Name of the folders"_s), 1);
    names->addWidget(Field(u"txtFeltDirSub"_s, u"Name of the sub folders"_s), 1);

    auto *buttons = Row();
    buttons->addStretch();
    buttons->addWidget(PageButton(u"btnGBMake"_s));
    buttons->addWidget(PageButton(u"btnGBDelete"_s));

    auto *column = Column();
    column->addWidget(Combo(u"DrvBox"_s, u"Drives"_s));
    column->addWidget(List(u"DirBox"_s, u"Folder of the series"_s), 1);
    column->addLayout(names);
    column->addLayout(numbers);
    column->addWidget(Part<QCheckBox>(u"chkMain_Sub"_s));
    column->addWidget(Part<QCheckBox>(u"Chck_MakeDel"_s));
    column->addLayout(buttons);
    return Page(u"FrameXPMenu(2)"_s, column);
}

QWidget *MakeDatabasePage()
{
    auto *file = Field(u"txtDatabaseFile"_s);
    auto *fileRow = Row();
    fileRow->addWidget(file, 1);
    fileRow->addWidget(PageButton(u"btnGBOpenDatabase"_s));

    auto *load = Row();
    load->addStretch();
    load->addWidget(PageButton(u"btnGBLoadList"_s));

    auto *tables = List(u"ListBox(0)"_s, u"Tables"_s);
    auto *fields = List(u"ListBox(1)"_s, u"Fields"_s);
    auto *column = Column(gapSmall);
    column->addWidget(LabelFor(u"lblDatabaseFile"_s, file));
    column->addLayout(fileRow);
    column->addSpacing(gap);
    column->addWidget(LabelFor(u"lblstrSQL"_s, tables));
    column->addWidget(tables, 1);
    column->addSpacing(gap);
    column->addWidget(LabelFor(u"lblTable"_s, fields));
    column->addWidget(fields, 1);
    column->addSpacing(gapSmall);
    column->addLayout(load);
    return Page(u"FrameXPMenu(4)"_s, column);
}

QWidget *MakeEmptyFoldersPage()
{
    auto *buttons = Column();
    buttons->addWidget(PageButton(u"btnGBToolbarSearch"_s));
    buttons->addWidget(PageButton(u"btnGBToolbarOpenDir"_s));
    buttons->addWidget(PageButton(u"btnGBToolbarDelDir"_s));
    buttons->addWidget(PageButton(u"btnGBToolbarDeleteAll"_s));
    buttons->addWidget(PageButton(u"btnGBToolbarCopy"_s));
    buttons->addStretch();

    auto *lists = Column();
    lists->addWidget(Combo(u"DrvListRemove"_s, u"Drives"_s));
    lists->addWidget(List(u"DirListRemove"_s, u"Folder to search"_s), 1);
    lists->addWidget(List(u"ListRemove"_s, u"Empty folders found"_s), 1);

    auto *row = Row();
    row->addLayout(lists, 1);
    row->addLayout(buttons);
    return Page(u"FrameXPMenu(5)"_s, row);
}

} // namespace tressel
