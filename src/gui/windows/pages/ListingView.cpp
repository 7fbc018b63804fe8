// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "windows/pages/ListingView.h"

#include "widgets/IsButtonWidget.h"

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

QLayout *MakeWhat()
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

    auto *column = Column(gapSmall);
    column->addWidget(LabelFor(u"lblFilePath"_s, path));
    column->addLayout(pathRow);
    column->addSpacing(gapSmall);
    column->addWidget(LabelFor(u"lblRSaved"_s, report));
    column->addWidget(report);
    column->addSpacing(gapSmall);
    column->addLayout(checks);
    return column;
}

QLayout *MakeRun()
{
    auto *progress = Progress(u"ProgressBar1"_s, u"Listing"_s);
    auto *state = Column(gapSmall);
    state->addWidget(LabelFor(u"lblWStatus"_s, progress));
    state->addWidget(progress);
    auto *run = Row();
    run->addLayout(state, 1);
    run->addWidget(PageButton(u"btnGBMakeList"_s), 0, Qt::AlignBottom);
    run->addWidget(PageButton(u"btnGBResult"_s), 0, Qt::AlignBottom);
    return run;
}

} // namespace

PageParts MakeListingView()
{
    return {MakeWhat(), MakeRun()};
}

} // namespace tressel
