// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "windows/pages/SplitterView.h"

#include "widgets/CtlProgressWidget.h"
#include "widgets/IsButtonWidget.h"
#include "windows/Parts.h"

#include <QGridLayout>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

QGroupBox *MakeCut()
{
    auto *size = NumberCombo(u"cmbSplitSize"_s);
    auto *count = NumberField(u"txtSplitCount"_s);
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(gapSmall);
    grid->setVerticalSpacing(gapSmall);
    grid->setColumnStretch(2, 1);
    grid->addWidget(Part<QRadioButton>(u"optSplit(0)"_s), 0, 0);
    grid->addWidget(LabelFor(u"lblSplitSize"_s, size), 0, 1);
    grid->addWidget(size, 0, 2, Qt::AlignLeft);
    grid->addWidget(Part<QRadioButton>(u"optSplit(1)"_s), 1, 0);
    grid->addWidget(LabelFor(u"lblSplitCount"_s, count), 1, 1);
    grid->addWidget(count, 1, 2, Qt::AlignLeft);
    return Group(u"Frame1"_s, grid);
}

QGroupBox *MakeEstimates()
{
    // Below each other: a size in both units is too long to stand beside the count.
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(gapWide);
    grid->setVerticalSpacing(gapSmall);
    grid->setColumnStretch(1, 1);
    grid->addWidget(Part<QLabel>(u"lblEstFileCount(0)"_s), 0, 0);
    grid->addWidget(Part<QLabel>(u"lblEstFileCount(1)"_s), 0, 1);
    grid->addWidget(Part<QLabel>(u"lblEstFileSize(0)"_s), 1, 0);
    grid->addWidget(Part<QLabel>(u"lblEstFileSize(1)"_s), 1, 1);
    return Group(u"fraEst"_s, grid);
}

QGroupBox *MakeSplitOptions()
{
    auto *column = Column(gapSmall);
    column->addWidget(Part<QCheckBox>(u"chkCopyToFloppy"_s));
    column->addWidget(Part<QCheckBox>(u"chkOpenExplorer"_s));
    column->addWidget(Part<QCheckBox>(u"chkDeleteParts"_s));
    return Group(u"Frame2"_s, column);
}

QGroupBox *MakeStatistics()
{
    // A date with its time leaves no room for a second column in the smallest window.
    auto *column = Column(gapSmall);
    column->addWidget(Part<QLabel>(u"lblStart"_s));
    column->addWidget(Part<QLabel>(u"lblFinish"_s));
    column->addWidget(Part<QLabel>(u"lblElapsed"_s));
    column->addWidget(Part<QLabel>(u"lblFileCount"_s));
    return Group(u"fraStats"_s, column);
}

QLayout *MakeRun()
{
    auto *progress = Part<CtlProgressWidget>(u"ctlProgress1"_s);
    progress->setAccessibleName(u"Splitting"_s);
    auto *column = Column();
    column->addWidget(progress);
    column->addLayout(ButtonRow({u"btnGBSplitFile"_s, u"btnGBJoinFile"_s}));
    return column;
}

} // namespace

QWidget *MakeSplitterView()
{
    auto *file = Row();
    file->addWidget(Combo(u"cboFileName"_s, u"File to split or join"_s), 1);
    file->addWidget(DotsButton(u"btnBrowse"_s, u"Browse"_s));

    auto *column = Column();
    column->addLayout(file);
    column->addWidget(MakeCut());
    column->addWidget(MakeEstimates());
    column->addWidget(MakeSplitOptions());
    column->addWidget(MakeStatistics());
    column->addStretch();
    return Page(u"FrameXPMenu(7)"_s, {column, MakeRun()});
}

} // namespace tressel
