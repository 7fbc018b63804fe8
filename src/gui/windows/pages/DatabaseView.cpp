// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "windows/pages/DatabaseView.h"

#include "widgets/IsButtonWidget.h"
#include "windows/Parts.h"

namespace tressel {

using namespace Qt::StringLiterals;

QWidget *MakeDatabaseView()
{
    auto *file = Field(u"txtDatabaseFile"_s);
    auto *fileRow = Row();
    fileRow->addWidget(file, 1);
    fileRow->addWidget(PageButton(u"btnGBOpenDatabase"_s));

    auto *tables = List(u"ListBox(0)"_s, u"Tables"_s, u"The tables of a database are listed here."_s);
    auto *fields = List(u"ListBox(1)"_s, u"Fields"_s, u"Choose a table to see its fields."_s);
    auto *column = Column(gapSmall);
    column->addWidget(LabelFor(u"lblDatabaseFile"_s, file));
    column->addLayout(fileRow);
    column->addSpacing(gap);
    column->addWidget(LabelFor(u"lblstrSQL"_s, tables));
    column->addWidget(tables, 1);
    column->addSpacing(gap);
    column->addWidget(LabelFor(u"lblTable"_s, fields));
    column->addWidget(fields, 1);
    return Page(u"FrameXPMenu(4)"_s, {column, ButtonRow({u"btnGBLoadList"_s})});
}

} // namespace tressel
