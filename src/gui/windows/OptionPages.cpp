// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "windows/OptionPages.h"

#include "forms/OptionForm.h"
#include "widgets/IsButtonWidget.h"
#include "windows/ElidedLabel.h"
#include "windows/FieldsOver.h"
#include "windows/LogoPicture.h"
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
    auto *column = Column(gap);
    column->addStretch();
    auto *picture = new LogoPicture({}, false);
    picture->setFixedSize(LogoPicture::extent);
    column->addWidget(picture, 0, Qt::AlignCenter);
    column->addWidget(NameLabel(u"lblName(0)"_s, 2));
    column->addWidget(NameLabel(u"lblName(1)"_s, 1.2));
    column->addStretch();
    auto *page = Part<QWidget>(u"PicAbout"_s);
    page->setLayout(column);
    return page;
}

/// A heading, and below it, drawn in, the lines of that kind.
QLayout *MakeFacts(const QString &heading, const QList<QLabel *> &lines)
{
    auto *facts = Column(0);
    facts->setContentsMargins(gapWindow, 0, 0, 0);
    for (QLabel *line : lines)
        facts->addWidget(line);
    auto *column = Column(gapSmall);
    column->addWidget(LabelFor(heading));
    column->addLayout(facts);
    return column;
}

QList<QLabel *> FactLabels(int first, int count)
{
    QList<QLabel *> labels;
    for (int line = first; line < first + count; ++line) {
        labels += Part<ElidedLabel>(u"lblInformation(%1)"_s.arg(line));
        // Each has the room of a field, which lies over some of them.
        labels.back()->setMinimumHeight(QLineEdit().sizeHint().height() + gapSmall);
    }
    return labels;
}

/// The page, and the plate with the boxes that lie over its last lines.
struct InformationParts {
    QWidget *page;
    QWidget *boxes;
};

InformationParts MakeInformation()
{
    const QList<QLabel *> registered = FactLabels(3, 2);
    auto *column = Column(gapWide);
    column->addWidget(WrappedLabel(u"lblHeaderInformation"_s));
    column->addLayout(MakeFacts(u"lblSystem"_s, FactLabels(0, 3)));
    column->addLayout(MakeFacts(u"lblRegitered"_s, registered));
    column->addStretch();
    auto *change = PageButton(u"btnGBChangeInfo"_s);
    auto *buttons = Row();
    buttons->addStretch();
    buttons->addWidget(change);
    buttons->addWidget(PageButton(u"btnGBUpdateInfo"_s));
    column->addLayout(buttons);
    auto *boxes = new FieldsOver(
        {Field(u"txtInformation(0)"_s, u"Owner"_s), Field(u"txtInformation(1)"_s, u"Organisation"_s)},
        registered, change);
    boxes->setObjectName(u"PicBakground"_s);
    return {PageGroup(u"FrmeInfo"_s, column), boxes};
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
    sides->addLayout(MakeNumbersSide());
    sides->addLayout(MakeAnimationSide());
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

/// The page that no entry of the list shows.
QWidget *MakeComingSoon()
{
    auto *field = Field(u"txtDBFilnavn"_s);
    auto *row = Row();
    row->addWidget(LabelFor(u"lblDatabase"_s, field));
    row->addWidget(field, 1);
    row->addWidget(DotsButton(u"btnBrowse"_s, u"Select Database File"_s));
    auto *column = Column(gapWide);
    column->addWidget(WrappedLabel(u"Label2"_s));
    column->addLayout(row);
    column->addStretch();
    auto *page = Part<QWidget>(u"PicComingSoon"_s);
    page->setLayout(column);
    return page;
}

} // namespace

QWidget *MakeOptionPages()
{
    auto *pages = new QWidget;
    auto *grid = new QGridLayout;
    grid->setContentsMargins(0, 0, 0, 0);
    pages->setLayout(grid);
    const auto add = [&](QWidget *page) {
        QSizePolicy policy = page->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        page->setSizePolicy(policy);
        page->setAutoFillBackground(true);
        grid->addWidget(page, 0, 0);
    };
    const InformationParts information = MakeInformation();
    for (QWidget *page : {MakeComingSoon(), MakeAbout(), information.page, MakeSettings(), MakeLicence()})
        add(page);
    information.boxes->setParent(pages);
    add(MakeColours());
    return pages;
}

} // namespace tressel
