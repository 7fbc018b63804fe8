// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "windows/AboutWindow.h"

#include "widgets/IsButtonWidget.h"
#include "windows/ClickPlaces.h"
#include "windows/LogoPicture.h"
#include "windows/Parts.h"

#include <QPlainTextEdit>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

/// The two states of the logo, one over the other.
QWidget *MakeLogo()
{
    auto *place = new QWidget;
    place->setObjectName(u"layoutLogo"_s);
    place->setFixedSize(LogoPicture::extent);
    for (LogoPicture *logo : {new LogoPicture(u"picLogo"_s, false), new LogoPicture(u"picLogo2"_s, true)})
        logo->setParent(place);
    return place;
}

QLabel *MakeTitle()
{
    constexpr double larger = 1.8;
    auto *title = Part<QLabel>(u"lblTitle"_s);
    QFont font = title->font();
    font.setPointSizeF(font.pointSizeF() * larger);
    font.setBold(true);
    title->setFont(font);
    return title;
}

QLayout *MakeFacts()
{
    auto *facts = Column(gapSmall);
    facts->addWidget(MakeTitle());
    facts->addWidget(Part<QLabel>(u"lblVersion"_s));
    facts->addSpacing(gap);
    facts->addWidget(WrappedLabel(u"lblCopyright"_s));
    facts->addWidget(WrappedLabel(u"lblComments"_s));
    facts->addSpacing(gap);
    for (const QString &name : {u"lblHomePage"_s, u"lblEMail"_s})
        facts->addWidget(Part<LinkLabel>(name), 0, Qt::AlignLeft);
    facts->addStretch();
    return facts;
}

QPlainTextEdit *MakeAgreement()
{
    constexpr int leastHeight = 120;
    auto *agreement = Part<QPlainTextEdit>(u"Text1"_s);
    agreement->setMinimumHeight(leastHeight);
    return agreement;
}

} // namespace

AboutWindow::AboutWindow()
{
    constexpr QSize firstSize(520, 440);
    setObjectName(u"frmAbout"_s);

    auto *upper = Row(gapWindow);
    upper->addWidget(MakeLogo(), 0, Qt::AlignTop);
    upper->addLayout(MakeFacts(), 1);

    QPlainTextEdit *agreement = MakeAgreement();
    auto *words = Column(gapSmall);
    words->addWidget(LabelFor(u"lblAbout"_s, agreement));
    words->addWidget(agreement, 1);

    auto *lower = Row();
    lower->addWidget(Part<QCheckBox>(u"chkLoadTipsAtStartup"_s));
    lower->addStretch();
    lower->addWidget(PageButton(u"btnGBOK"_s));

    auto *column = Column(gapWindow);
    column->setContentsMargins(gapWindow, gapWindow, gapWindow, gapWindow);
    column->addLayout(upper);
    column->addLayout(words, 1);
    column->addLayout(lower);
    setLayout(column);
    resize(firstSize);
}

} // namespace tressel
