// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "widgets/CtlProgressWidget.h"
#include "widgets/IsButtonWidget.h"
#include "windows/Pages.h"
#include "windows/Parts.h"

#include <QGridLayout>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

QLayout *MakeTextLists()
{
    auto *buttons = Row();
    buttons->addStretch();
    buttons->addWidget(PageButton(u"btnGBLoadFile"_s));
    buttons->addWidget(PageButton(u"btnGBSaveFile"_s));
    auto *column = Column();
    column->addWidget(WrappedLabel(u"lblInfo"_s));
    column->addLayout(buttons);
    return column;
}

QLayout *MakeListing()
{
    auto *path = Combo(u"CboFilePath"_s);
    auto *pathRow = Row();
    pathRow->addWidget(path, 1);
    pathRow->addWidget(DotsButton(u"btnGBBrowse"_s, u"Choose Path"_s));

    auto *report = Field(u"txtReport"_s);
    auto *checks = Row(gapWide);
    checks->addWidget(Part<QCheckBox>(u"ChckValg"_s));
    checks->addWidget(Part<QCheckBox>(u"ChckDir"_s));
    checks->addStretch();

    auto *progress = Progress(u"ProgressBar1"_s, u"Listing"_s);
    auto *run = Row();
    run->addWidget(progress, 1);
    run->addWidget(PageButton(u"btnGBMakeList"_s));
    run->addWidget(PageButton(u"btnGBResult"_s));

    auto *column = Column(gapSmall);
    column->addWidget(LabelFor(u"lblFilePath"_s, path));
    column->addLayout(pathRow);
    column->addSpacing(gapSmall);
    column->addWidget(LabelFor(u"lblRSaved"_s, report));
    column->addWidget(report);
    column->addSpacing(gapSmall);
    column->addLayout(checks);
    column->addSpacing(gapSmall);
    column->addWidget(LabelFor(u"lblWStatus"_s, progress));
    column->addLayout(run);
    return column;
}

QLayout *MakeErase()
{
    auto *list = List(u"lstErase"_s, u"Files to erase"_s);

    auto *holder = Part<QWidget>(u"PicProgress"_s);
    auto *progress = Column(gapSmall);
    progress->addWidget(Part<QLabel>(u"lblOverwrite"_s));
    progress->addWidget(Progress(u"ProgrBar"_s, u"Erasing"_s));
    holder->setLayout(progress);

    auto *run = Row();
    run->addWidget(holder, 1);
    run->addWidget(PageButton(u"btnGBErase"_s), 0, Qt::AlignBottom);

    auto *column = Column(gapSmall);
    column->addWidget(LabelFor(u"lblEraseMessage"_s, list));
    column->addWidget(list, 1);
    column->addLayout(run);
    return column;
}

QGroupBox *MakeCut()
{
    auto *size = Combo(u"cmbSplitSize"_s);
    auto *count = Field(u"txtSplitCount"_s);
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(gapSmall);
    grid->setVerticalSpacing(gapSmall);
    grid->setColumnStretch(2, 1);
    grid->addWidget(Part<QRadioButton>(u"optSplit(0)"_s), 0, 0);
    grid->addWidget(LabelFor(u"lblSplitSize"_s, size), 0, 1);
    grid->addWidget(size, 0, 2);
    grid->addWidget(Part<QRadioButton>(u"optSplit(1)"_s), 1, 0);
    grid->addWidget(LabelFor(u"lblSplitCount"_s, count), 1, 1);
    grid->addWidget(count, 1, 2);
    return Group(u"Frame1"_s, grid);
}

QGroupBox *MakeEstimates()
{
    auto *row = Row();
    row->addWidget(Part<QLabel>(u"lblEstFileCount(0)"_s));
    row->addWidget(Part<QLabel>(u"lblEstFileCount(1)"_s), 1);
    row->addWidget(Part<QLabel>(u"lblEstFileSize(0)"_s));
    row->addWidget(Part<QLabel>(u"lblEstFileSize(1)"_s), 1);
    return Group(u"fraEst"_s, row);
}

QGroupBox *MakeSplitOptions()
{
    auto *column = Column(gapSmall);
    column->addWidget(Part<QCheckBox>(u"chkCopyToFloppy"_s));
    column->addWidget(Part<QCheckBox>(u"chkOpenExplorer"_s));
    column->addWidget(Part<QCheckBox>(u"chkDeleteParts"_s));
    // The captions need all of the width that the page has in the smallest window.
    return Group(u"Frame2"_s, column, 0);
}

QGroupBox *MakeStatistics()
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(gapWide);
    grid->setVerticalSpacing(gapSmall);
    grid->addWidget(Part<QLabel>(u"lblStart"_s), 0, 0);
    grid->addWidget(Part<QLabel>(u"lblFinish"_s), 1, 0);
    grid->addWidget(Part<QLabel>(u"lblElapsed"_s), 0, 1);
    grid->addWidget(Part<QLabel>(u"lblFileCount"_s), 1, 1);
    return Group(u"fraStats"_s, grid);
}

} // namespace

QWidget *MakeTextPage()
{
    auto *column = Column(gapWide);
    column->addLayout(MakeTextLists());
    column->addWidget(Line());
    column->addLayout(MakeListing());
    column->addWidget(Line());
    column->addLayout(MakeErase(), 1);
    return Page(u"FrameXPMenu(6)"_s, column);
}

QWidget *MakeSplitterPage()
{
    auto *file = Row();
    file->addWidget(Combo(u"cboFileName"_s, u"File to split or join"_s), 1);
    file->addWidget(DotsButton(u"btnBrowse"_s, u"Browse"_s));

    auto *progress = Part<CtlProgressWidget>(u"ctlProgress1"_s);
    progress->setAccessibleName(u"Splitting"_s);

    auto *buttons = Row();
    buttons->addStretch();
    buttons->addWidget(PageButton(u"btnGBSplitFile"_s));
    buttons->addWidget(PageButton(u"btnGBJoinFile"_s));

    auto *column = Column();
    column->addLayout(file);
    column->addWidget(MakeCut());
    column->addWidget(MakeEstimates());
    column->addWidget(MakeSplitOptions());
    column->addWidget(MakeStatistics());
    column->addStretch();
    column->addWidget(progress);
    column->addLayout(buttons);
    return Page(u"FrameXPMenu(7)"_s, column);
}

} // namespace tressel
