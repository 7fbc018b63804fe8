// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "windows/pages/EraseView.h"

#include "widgets/IsButtonWidget.h"

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

QLayout *MakeFiles()
{
    auto *list = List(u"lstErase"_s, u"Files to erase"_s, u"Files that are dropped here are listed."_s);
    auto *column = Column(gapSmall);
    column->addWidget(LabelFor(u"lblEraseMessage"_s, list));
    column->addWidget(list, 1);
    return column;
}

QLayout *MakeRun()
{
    auto *holder = Part<QWidget>(u"PicProgress"_s);
    auto *progress = Column(gapSmall);
    progress->addWidget(Part<QLabel>(u"lblOverwrite"_s));
    progress->addWidget(Progress(u"ProgrBar"_s, u"Erasing"_s));
    holder->setLayout(progress);

    auto *run = Row();
    run->addWidget(holder, 1);
    run->addWidget(PageButton(u"btnGBErase"_s), 0, Qt::AlignBottom);
    return run;
}

} // namespace

PageParts MakeEraseView()
{
    return {MakeFiles(), MakeRun()};
}

} // namespace tressel
