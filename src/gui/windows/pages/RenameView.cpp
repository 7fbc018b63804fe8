// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "windows/pages/RenameView.h"

#include "widgets/IsButtonWidget.h"
#include "windows/Parts.h"

#include <QGridLayout>
#include <QStackedWidget>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

/// A frame around buttons of one kind, beside or below each other.
template <typename Button>
QGroupBox *Choices(const QString &name, QBoxLayout *layout, const QStringList &names)
{
    for (const QString &choice : names)
        layout->addWidget(Part<Button>(choice));
    layout->addStretch();
    return Group(name, layout);
}

QLayout *MakePath()
{
    auto *path = Field(u"txtCurrentPath"_s);
    auto *row = Row();
    row->addWidget(LabelFor(u"lblPath"_s, path));
    row->addWidget(path, 1);
    row->addWidget(DotsButton(u"btnGBBrowsePath"_s, u"Browse"_s));
    return row;
}

QLayout *MakeRenaming()
{
    auto *row = Row();
    row->addWidget(Choices<QRadioButton>(u"fraRenamingType"_s, Column(gapSmall),
                                         {u"optRenameFolder"_s, u"optRenameFile"_s, u"optRenameAll"_s}),
                   1);
    row->addWidget(Choices<QRadioButton>(u"fraRenamingCase"_s, Column(gapSmall),
                                         {u"optNoChange"_s, u"optUppercase"_s, u"optLowercase"_s}),
                   1);
    auto *column = Column();
    column->addLayout(row);
    column->addWidget(Choices<QCheckBox>(u"fraRenamingCap"_s, Row(gapWide),
                                         {u"chkCapFirstLetter"_s, u"chkCapAfterEverySpace"_s}));
    return column;
}

QGroupBox *MakeSpecificExtensions()
{
    auto *from = Field(u"txtSpecificExtFrom"_s);
    auto *to = Field(u"txtSpecificExtTo"_s);
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(gap);
    grid->setVerticalSpacing(gapSmall);
    grid->addWidget(LabelFor(u"lblExtensionsFrom"_s, from), 0, 0);
    grid->addWidget(from, 0, 1);
    grid->addWidget(LabelFor(u"lblExtensionsTo"_s, to), 1, 0);
    grid->addWidget(to, 1, 1);
    return Group(u"fraExtensionsSpecific"_s, grid);
}

QGroupBox *MakeAllExtensions()
{
    auto *text = Field(u"txtExtensionsChangeAllTo"_s);
    auto *column = Column(gapSmall);
    column->addWidget(LabelFor(u"lblExtensionsChangeAllTo"_s, text));
    column->addWidget(text);
    column->addStretch();
    return Group(u"fraAllExtensions"_s, column);
}

QLayout *MakeExtensions()
{
    auto *either = new QStackedWidget;
    either->addWidget(MakeSpecificExtensions());
    either->addWidget(MakeAllExtensions());
    auto *row = Row();
    row->addWidget(Choices<QRadioButton>(u"fraExtensions"_s, Column(gapSmall),
                                         {u"optSpecificExtensions"_s, u"optAllExtensions"_s}));
    row->addWidget(either, 1);
    return row;
}

QLayout *MakeReplacing()
{
    auto *from = Field(u"txtReplaceFrom"_s);
    auto *to = Field(u"txtReplaceTo"_s);
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(gap);
    grid->setVerticalSpacing(gapSmall);
    grid->addWidget(LabelFor(u"lblReplaceEvery"_s, from), 0, 0);
    grid->addWidget(from, 0, 1);
    grid->addWidget(LabelFor(u"lblReplaceWith"_s, to), 1, 0);
    grid->addWidget(to, 1, 1);

    auto *row = Row();
    row->addWidget(Choices<QRadioButton>(u"fraReplace"_s, Column(gapSmall),
                                         {u"optReplacePresetNone"_s, u"optReplacePresetMP3"_s}));
    row->addWidget(Group(u"fraReplacePresets"_s, grid), 1);
    auto *column = Column();
    column->addLayout(row);
    column->addWidget(
        Choices<QRadioButton>(u"fraReplaceType"_s, Row(gapWide),
                              {u"optReplaceFolder"_s, u"optReplaceFile"_s, u"optReplaceBoth"_s}));
    return column;
}

QLayout *MakeRun()
{
    auto *row = Row(gapSmall);
    for (const QString &name : {u"btnGBRename"_s, u"btnGBReplace"_s, u"btnGBExtension"_s, u"btnGBCancel"_s}) {
        // The four share the least width by what their captions need.
        auto *button = PageButton(name);
        button->setMinimumWidth(1);
        row->addWidget(button);
    }
    auto *column = Column();
    column->addLayout(row);
    column->addWidget(Progress(u"ProgressBar"_s, u"Renaming"_s));
    return column;
}

} // namespace

QWidget *MakeRenameView()
{
    auto *column = Column();
    column->addLayout(MakePath());
    column->addLayout(MakeRenaming());
    column->addWidget(Line(u"Picture1"_s));
    column->addLayout(MakeExtensions());
    column->addWidget(Line(u"Picture2"_s));
    column->addLayout(MakeReplacing());
    column->addStretch();
    return Page(u"FrameXPMenu(1)"_s, {column, MakeRun()});
}

} // namespace tressel
