// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "windows/pages/BrowseView.h"

#include "windows/Parts.h"

namespace tressel {

using namespace Qt::StringLiterals;

QWidget *MakeBrowseView()
{
    auto *column = Column();
    column->addWidget(Combo(u"DrvList"_s, u"Drives"_s));
    column->addWidget(List(u"DirList"_s, u"Folders"_s), 2);
    column->addWidget(List(u"FileList"_s, u"Files"_s, u"There are no files in this folder."_s), 3);
    return Page(u"FrameXPMenu(0)"_s, {column});
}

} // namespace tressel
