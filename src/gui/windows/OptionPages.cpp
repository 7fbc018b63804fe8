// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "windows/OptionPages.h"

#include "forms/OptionForm.h"
#include "widgets/IsButtonWidget.h"
#include "widgets/ProgramIcons.h"
#include "windows/Parts.h"
#include "windows/Swatch.h"

#include <QGridLayout>
#include <QPlainTextEdit>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

QGroupBox *PageGroup(const QString &name, QLayout *content)
{
    auto *page = Group(name, content);
    content->setContentsMargins(gapWide, gapWide, gapWide, gapWide);
    return page;
}

QLabel *NameLabel(const QString &name, double factor)
{
    auto *label = Part<QLabel>(name);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * factor);
    label->setFont(font);
    label->setAlignment(Qt::AlignCenter);
    return label;
}

QWidget *MakeAbout()
{
    constexpr int pictureSize = 96;
    auto *picture = new QLabel;
    picture->setPixmap(
        ProgramIcon(u"tressel"_s).pixmap(QSize(pictureSize, pictureSize), picture->devicePixelRatioF()));
    picture->setAlignment(Qt::AlignCenter);
    auto *column = Column(gap);
    column->addStretch();
    column->addWidget(picture);
    column->addWidget(NameLabel(u"lblName(0)"_s, 2));
    column->addWidget(NameLabel(u"lblName(1)"_s, 1.2));
    column->addStretch();
    auto *page = Part<QWidget>(u"PicAbout"_s);
    page->setLayout(column);
    return page;
}

QWidget *MakeInformation()
{
    auto *column = Column(gapWide);
    column->addWidget(WrappedLabel(u"lblHeaderInformation"_s));
    column->addWidget(Part<QLabel>(u"lblSystem"_s));
    column->addWidget(Part<QLabel>(u"lblRegitered"_s));
    column->addStretch();
    column->addLayout(ButtonRow({u"btnGBChangeInfo"_s, u"btnGBUpdateInfo"_s}));
    return PageGroup(u"FrmeInfo"_s, column);
}

QLayout *MakeOptionButtons(const QString &name, int count, int columns)
{
    auto *grid = new QGridLayout;
    grid->setSpacing(gapSmall);
    for (int index = 0; index < count; ++index)
        grid->addWidget(Part<QRadioButton>(u"%1(%2)"_s.arg(name).arg(index)), index / columns,
                        index % columns);
    return grid;
}

QLayout *MakeLanguage()
{
    auto *combo = Combo(u"cmbLanguage"_s);
    auto *row = Row();
    row->addWidget(LabelFor(u"lblLanguage"_s, combo));
    row->addWidget(combo, 1);
    return row;
}

QGroupBox *MakeAnimation()
{
    auto *height = NumberField(u"txtHeight"_s);
    auto *width = NumberField(u"txtWidth"_s);
    auto *grid = new QGridLayout;
    grid->setSpacing(gap);
    grid->addWidget(LabelFor(u"lblHeight"_s, height), 0, 0);
    grid->addWidget(height, 0, 1);
    grid->addWidget(LabelFor(u"lblWidth"_s, width), 1, 0);
    grid->addWidget(width, 1, 1);
    grid->addWidget(PageButton(u"btnGBDefault"_s), 2, 0, 1, 2, Qt::AlignRight);
    grid->setRowStretch(3, 1);
    return Group(u"FrmeAnimation"_s, grid);
}

QLayout *MakeNumbersSide()
{
    auto *column = Column();
    column->addWidget(Part<QCheckBox>(u"ChkAutoOption"_s));
    column->addWidget(Group(u"FrmeNumFolders"_s, MakeOptionButtons(u"OptDigit"_s, 4, 1)));
    column->addWidget(Group(u"FrmeSound"_s, MakeOptionButtons(u"OptSound"_s, 2, 2)));
    column->addStretch();
    return column;
}

QLayout *MakeAnimationSide()
{
    auto *column = Column();
    column->addWidget(Part<QCheckBox>(u"ChkAnimOption"_s));
    column->addWidget(MakeAnimation());
    column->addStretch();
    return column;
}

QWidget *MakeSettings()
{
    auto *sides = Row(gapWide);
    sides->addLayout(MakeNumbersSide(), 1);
    sides->addLayout(MakeAnimationSide(), 1);
    auto *column = Column();
    column->addWidget(WrappedLabel(u"lblHeaderOption"_s));
    column->addLayout(MakeLanguage());
    column->addWidget(WrappedLabel(u"lblMessage"_s));
    column->addLayout(sides);
    column->addWidget(Group(u"FrmeButtonStyle"_s, MakeOptionButtons(u"optButtonStyle"_s, 9, 3)));
    column->addStretch();
    return PageGroup(u"FrmeOption"_s, column);
}

/// What a colour of a palette is for, in the order of the side bar's slots.
QString PurposeOf(int slot)
{
    const QStringList purposes{u"header"_s,
                               u"line below the header"_s,
                               u"light line"_s,
                               u"border"_s,
                               u"open entry"_s,
                               u"mark of the open entry"_s,
                               u"rows"_s,
                               u"bar of icons"_s,
                               u"lines between rows"_s,
                               u"pressed entry"_s,
                               u"entry under the mouse"_s};
    return purposes.at(slot);
}

QLayout *MakePalette(int first, const QString &button)
{
    auto *row = Row(gapSmall);
    for (int slot = 0; slot < OptionForm::secondPalette; ++slot) {
        row->addWidget(new Swatch(u"PicColor(%1)"_s.arg(first + slot),
                                  u"Color form %1, %2"_s.arg(first == 0 ? 1 : 2).arg(PurposeOf(slot))));
    }
    row->addSpacing(gapSmall);
    row->addWidget(PageButton(button));
    return row;
}

QLayout *MakeButtons(const QStringList &names)
{
    constexpr int columns = 2;
    auto *grid = new QGridLayout;
    grid->setSpacing(gap);
    for (int index = 0; index < names.size(); ++index)
        grid->addWidget(PageButton(names[index]), index / columns, index % columns);
    return grid;
}

QWidget *MakeColours()
{
    auto *palettes = Column();
    palettes->addLayout(MakePalette(0, u"btnGBColor1"_s));
    palettes->addLayout(MakePalette(OptionForm::secondPalette, u"btnGBColor2"_s));
    auto *swatches = Part<QWidget>(u"Picture6"_s);
    swatches->setLayout(palettes);
    auto *column = Column(gapWide);
    column->addWidget(WrappedLabel(u"Label5"_s));
    column->addWidget(swatches);
    column->addWidget(Group(u"Frame5"_s,
                            MakeButtons({u"btnGBColorDefault"_s, u"btnGBColorSystem"_s,
                                         u"btnGBTextSidebarFont"_s, u"btnGBTextHeadFont"_s})));
    column->addWidget(Group(
        u"Frame6"_s,
        MakeButtons({u"btnGBImageSmall"_s, u"btnGBImageNone"_s, u"btnGBShowMenu"_s, u"btnGBHideSelItem"_s,
                     u"btnGBShowAllItem"_s, u"btnGBIconRight"_s, u"isButton1"_s, u"isButton3"_s})));
    column->addStretch();
    return PageGroup(u"FrmeColor"_s, column);
}

QWidget *MakeLicence()
{
    auto *text = Part<QPlainTextEdit>(u"Text1"_s);
    text->setAccessibleName(u"Licence"_s);
    text->setTabChangesFocus(true);
    auto *column = Column();
    column->addWidget(text);
    return PageGroup(u"FrmeLicence"_s, column);
}

} // namespace

QWidget *MakeOptionPages()
{
    auto *grid = new QGridLayout;
    grid->setContentsMargins(0, 0, 0, 0);
    for (QWidget *page : {MakeAbout(), MakeInformation(), MakeSettings(), MakeLicence(), MakeColours()}) {
        QSizePolicy policy = page->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        page->setSizePolicy(policy);
        page->setAutoFillBackground(true);
        grid->addWidget(page, 0, 0);
    }
    grid->addWidget(Part<QWidget>(u"PicBakground"_s), 0, 0, Qt::AlignLeft | Qt::AlignBottom);
    auto *pages = new QWidget;
    pages->setLayout(grid);
    return pages;
}

} // namespace tressel
