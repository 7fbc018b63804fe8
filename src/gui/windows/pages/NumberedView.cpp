// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "windows/pages/NumberedView.h"

#include "widgets/IsButtonWidget.h"
#include "windows/Parts.h"

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

QLayout *MakeNames()
{
    auto *row = Row();
    row->addWidget(Explained(Field(u"txtFeltDir"_s, u"Name of the folders"_s),
                             u"What the name of each folder begins with"_s),
                   1);
    row->addWidget(Explained(Field(u"txtFeltDirSub"_s, u"Name of the sub folders"_s),
                             u"What the name of the folder in each folder begins with"_s),
                   1);
    return row;
}

QLayout *MakeNumbers()
{
    auto *from = NumberCombo(u"cboFrom"_s);
    auto *to = NumberCombo(u"cboTo"_s);
    auto *row = Row();
    row->addWidget(LabelFor(u"lblFrom"_s, from));
    row->addWidget(from, 1);
    row->addSpacing(gapSmall);
    row->addWidget(LabelFor(u"lblTo"_s, to));
    row->addWidget(to, 1);
    row->addStretch();
    return row;
}

} // namespace

QWidget *MakeNumberedView()
{
    auto *column = Column();
    column->addWidget(Combo(u"DrvBox"_s, u"Drives"_s));
    column->addWidget(List(u"DirBox"_s, u"Folder of the series"_s), 1);
    column->addLayout(MakeNames());
    column->addLayout(MakeNumbers());
    column->addWidget(Part<QCheckBox>(u"chkMain_Sub"_s));
    column->addWidget(Part<QCheckBox>(u"Chck_MakeDel"_s));
    return Page(u"FrameXPMenu(2)"_s, {column, ButtonRow({u"btnGBMake"_s, u"btnGBDelete"_s})});
}

} // namespace tressel
