// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "forms/Appearance.h"
#include "forms/Application.h"
#include "support/MemoryMachine.h"
#include "support/Text.h"

#include <QFile>

#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

/// The program as it starts with tips on.
class Tips : public testing::Test {
protected:
    void PutTips(const QByteArray &content)
    {
        machine.files.PutFile(u"C:\\Tressel\\TIPOFDAY.TXT"_s, content);
    }
    TipForm &StartedForm()
    {
        application.Start();
        return application.frmTip();
    }
    QString Shown() { return application.frmTip().lblTipText.Caption(); }

    MemoryMachine machine;
    Application application{machine.machine};
};

TEST_F(Tips, TextsOfTheWindow)
{
    const TipForm &form = StartedForm();
    EXPECT_EQ(form.Caption(), u"Tip of the Day"_s);
    EXPECT_EQ(form.Label1.Caption(), u"Did you know..."_s);
    EXPECT_EQ(form.cmdNextTip.Caption(), u"Next"_s);
    EXPECT_EQ(form.cmdAbout.Caption(), u"About"_s);
    EXPECT_EQ(form.chkLoadTipsAtStartup.Caption(), u"&Show Tips at Startup"_s);
}

TEST_F(Tips, WithoutAFileAllBuiltInLinesShowAndNextIsOff)
{
    const TipForm &form = StartedForm();
    EXPECT_FALSE(form.cmdNextTip.IsEnabled());
    EXPECT_EQ(
        Shown(),
        u"1. If you will create a folder from filename Check for Ext for remove extension ex (.txt)\n"
        "2. If you will create from ex January, February or Peter, Joe... Unceck for Ext\n"
        "3. You must Remove hook (UnChecked) with ''Remove Ext'' see red Arrow below...\n"
        "4. If this is checked shows Wrong format and cut 4 last letter ex: (.txt) dot and txt = 4\n"_s);
}

TEST_F(Tips, ThreeLinesComeInTurnAndBeginAnew)
{
    PutTips("one\r\ntwo\r\nthree\r\n");
    TipForm &form = StartedForm();
    QStringList seen{Shown()};
    for (int press = 0; press < 3; ++press) {
        form.cmdNextTip.UserClicks();
        seen += Shown();
    }
    EXPECT_EQ(seen, (QStringList{u"one"_s, u"two"_s, u"three"_s, u"one"_s}));
}

TEST_F(Tips, AnEmptyLineIsATip)
{
    PutTips("one\r\n\r\nthree");
    TipForm &form = StartedForm();
    form.cmdNextTip.UserClicks();
    EXPECT_EQ(Shown(), QString());
    form.cmdNextTip.UserClicks();
    EXPECT_EQ(Shown(), u"three"_s);
}

TEST_F(Tips, AnEmptyFileLeavesTheTextAndNextDoesNothing)
{
    PutTips("");
    TipForm &form = StartedForm();
    EXPECT_TRUE(form.cmdNextTip.IsEnabled());
    EXPECT_EQ(Shown(), QString());
    form.cmdNextTip.UserClicks();
    EXPECT_EQ(Shown(), QString());
}

TEST_F(Tips, OneLineStays)
{
    PutTips("only");
    TipForm &form = StartedForm();
    form.cmdNextTip.UserClicks();
    form.cmdNextTip.UserClicks();
    EXPECT_EQ(Shown(), u"only"_s);
}

TEST_F(Tips, TenThousandLinesAreWalkedThrough)
{
    constexpr int count = 10000;
    QByteArray content;
    for (int line = 1; line <= count; ++line)
        content += QByteArray::number(line) + "\r\n";
    PutTips(content);
    TipForm &form = StartedForm();
    for (int press = 1; press < count; ++press)
        form.cmdNextTip.UserClicks();
    EXPECT_EQ(Shown(), QString::number(count));
    form.cmdNextTip.UserClicks();
    EXPECT_EQ(Shown(), u"1"_s);
}

TEST_F(Tips, AFileInWindows1252IsRead)
{
    PutTips("caf\xE9 costs 2 \x80\r\n");
    StartedForm();
    EXPECT_EQ(Shown(), u"café costs 2 €"_s);
}

TEST_F(Tips, ALineOfTenThousandCharactersIsOneTip)
{
    PutTips(QByteArray(10000, 'x') + "\r\nshort");
    StartedForm();
    EXPECT_EQ(Shown(), QString(10000, u'x'));
}

TEST_F(Tips, AFileThatCannotBeReadCountsAsNone)
{
    PutTips(QByteArray((4 << 20) + 1, 'x'));
    EXPECT_FALSE(StartedForm().cmdNextTip.IsEnabled());
    EXPECT_TRUE(Shown().startsWith(u"1. If you will"_s));
}

TEST_F(Tips, ThirtyComeWithTheProgram)
{
    QFile file(QString::fromLocal8Bit(TRESSEL_ASSETS "/TIPOFDAY.TXT"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    PutTips(file.readAll());
    TipForm &form = StartedForm();
    const QString first = Shown();
    QStringList seen;
    do {
        EXPECT_GT(Shown().size(), 40);
        EXPECT_TRUE(Shown().endsWith(u'.')) << qPrintable(Shown());
        seen += Shown();
        form.cmdNextTip.UserClicks();
    } while (Shown() != first && seen.size() < 100);
    EXPECT_EQ(seen.size(), 30);
}

TEST_F(Tips, ATipIsShownAsItStands)
{
    PutTips("  <b>two</b> blanks & a sign\t; no remark  ");
    StartedForm();
    EXPECT_EQ(Shown(), u"  <b>two</b> blanks & a sign\t; no remark  "_s);
}

TEST_F(Tips, TheBoxIsStoredAtOnceAndMirrored)
{
    TipForm &form = StartedForm();
    form.chkLoadTipsAtStartup.UserToggles();
    EXPECT_FALSE(application.frmAbout().chkLoadTipsAtStartup.IsChecked());
    EXPECT_EQ(application.settings.ReadInt32(keys::ShowTips), 0);
    form.chkLoadTipsAtStartup.UserToggles();
    EXPECT_TRUE(application.frmAbout().chkLoadTipsAtStartup.IsChecked());
    EXPECT_EQ(application.settings.ReadInt32(keys::ShowTips), 1);
}

TEST_F(Tips, AboutOpensBesideAndTheTipsStay)
{
    TipForm &form = StartedForm();
    form.cmdAbout.UserClicks();
    EXPECT_TRUE(application.frmAbout().IsVisible());
    EXPECT_TRUE(form.IsVisible());
}

TEST_F(Tips, GoingInAnyWayShowsTheMainWindow)
{
    StartedForm().Unload();
    EXPECT_FALSE(application.frmTip().IsVisible());
    EXPECT_TRUE(application.frmMain().IsVisible());
}

TEST_F(Tips, ButtonsAreHeard)
{
    PutTips("one\r\ntwo");
    TipForm &form = StartedForm();
    form.cmdNextTip.UserClicks();
    form.cmdAbout.UserClicks();
    EXPECT_EQ(machine.journal.Count(u"Play"_s), 2);
    application.frmOption().OptSound.Select(1);
    form.cmdOK.UserClicks();
    EXPECT_EQ(machine.journal.Count(u"Play"_s), 2);
}

/// The About window, opened from the main one.
class About : public testing::Test {
protected:
    AboutForm &Opened()
    {
        application.settings.Write(keys::ShowTips, u"0"_s);
        application.Start();
        application.frmMain().btnGBToolbarAbout.UserClicks();
        return application.frmAbout();
    }

    MemoryMachine machine;
    Application application{machine.machine};
};

TEST_F(About, TheToolbarOpensItWithTheClickSound)
{
    EXPECT_TRUE(Opened().IsVisible());
    EXPECT_EQ(machine.journal.Count(u"Play"_s), 1);
    EXPECT_TRUE(application.frmMain().IsVisible());
}

TEST_F(About, TheFieldsComeFromTheVersionBlock)
{
    application.version.productName = u"Trestle & Co"_s;
    application.version.copyright = u"One\\nTwo\\nThree"_s;
    application.version.comments = u"(c) here and (c) there"_s;
    application.version.homePage = u"http://home.example/x"_s;
    application.version.mail = u"me@home.example"_s;
    const AboutForm &form = Opened();
    EXPECT_EQ(form.Caption(), u"About Tressel"_s);
    EXPECT_EQ(form.lblTitle.Caption(), u"Trestle & Co"_s);
    EXPECT_EQ(form.lblTitle.FontFamily(), u"Arial"_s);
    EXPECT_EQ(form.lblCopyright.Caption(), u"One\nTwo\nThree"_s);
    EXPECT_EQ(form.lblComments.Caption(), u"© here and © there"_s);
    EXPECT_EQ(form.lblHomePage.Caption(), u"http://home.example/x"_s);
    EXPECT_EQ(form.lblEMail.Caption(), u"me@home.example"_s);
}

TEST_F(About, TheVersionReadsAsThreeNumbers)
{
    EXPECT_EQ(Opened().lblVersion.Caption(), u"version 5.0.1450"_s);
}

TEST_F(About, TheTextsOfThisBuildAreThere)
{
    const AboutForm &form = Opened();
    EXPECT_EQ(form.lblTitle.Caption(), u"Tressel"_s);
    EXPECT_TRUE(form.lblCopyright.Caption().contains(u'\n'));
    EXPECT_TRUE(form.lblComments.Caption().contains(u'©'));
    EXPECT_FALSE(form.lblHomePage.Caption().isEmpty());
    EXPECT_TRUE(form.lblEMail.Caption().contains(u'@'));
    EXPECT_TRUE(form.Text1.Text().contains(u"No warranty"_s));
    EXPECT_TRUE(form.Text1.IsLocked());
    EXPECT_EQ(form.btnGBOK.Caption(), u"&OK"_s);
    EXPECT_EQ(form.chkLoadTipsAtStartup.Caption(), u"Load Tips At Startup"_s);
}

TEST_F(About, AClickOnTheHomePageOpensWhatTheLabelShows)
{
    AboutForm &form = Opened();
    form.lblHomePage.SetCaption(u"http://other.example/"_s);
    form.lblHomePage.UserClicks();
    EXPECT_EQ(machine.journal.About(u"Open"_s), QStringList{u"http://other.example/"_s});
}

TEST_F(About, AClickOnTheMailAddressBeginsAMailWithTheTitleAsSubject)
{
    application.version.mail = u"me@home.example"_s;
    AboutForm &form = Opened();
    form.lblTitle.SetCaption(u"Tressel & more"_s);
    form.lblEMail.UserClicks();
    EXPECT_TRUE(
        machine.journal.Lines().contains(u"Open mailto:me@home.example?subject=Tressel%20%26%20more C:\\"_s));
}

TEST_F(About, TheLogoChangesWhileItIsPressed)
{
    AboutForm &form = Opened();
    machine.journal.Clear();
    EXPECT_TRUE(form.picLogo.IsVisible());
    EXPECT_FALSE(form.picLogo2.IsVisible());
    form.picLogo.UserPressesMouse();
    EXPECT_FALSE(form.picLogo.IsVisible());
    EXPECT_TRUE(form.picLogo2.IsVisible());
    EXPECT_EQ(machine.journal.Count(u"Play"_s), 1);
    form.picLogo.UserReleasesMouse();
    EXPECT_TRUE(form.picLogo.IsVisible());
    EXPECT_FALSE(form.picLogo2.IsVisible());
}

TEST_F(About, TheBoxUncheckedHereStopsTheTipsAtTheNextStart)
{
    application.Start();
    application.frmTip().cmdOK.UserClicks();
    application.frmMain().btnGBToolbarAbout.UserClicks();
    AboutForm &form = application.frmAbout();
    EXPECT_TRUE(form.chkLoadTipsAtStartup.IsChecked());
    form.chkLoadTipsAtStartup.UserToggles();
    EXPECT_EQ(application.settings.ReadInt32(keys::ShowTips), 1);
    form.btnGBOK.UserClicks();
    EXPECT_FALSE(form.IsVisible());
    EXPECT_EQ(application.settings.ReadInt32(keys::ShowTips), 0);
    Application next(machine.machine);
    next.Start();
    EXPECT_FALSE(next.frmTip().IsVisible());
    EXPECT_TRUE(next.frmMain().IsVisible());
}

TEST_F(About, TheBoxIsReadAnewWithEachLoad)
{
    AboutForm &form = Opened();
    EXPECT_FALSE(form.chkLoadTipsAtStartup.IsChecked());
    form.btnGBOK.UserClicks();
    application.settings.Write(keys::ShowTips, u"1"_s);
    form.Show();
    EXPECT_TRUE(form.chkLoadTipsAtStartup.IsChecked());
}

TEST_F(About, AStoredValueThatNoBoxHasLeavesTheRestToBeFilled)
{
    application.settings.Write(keys::ShowTips, u"7"_s);
    application.Start();
    EXPECT_EQ(application.frmAbout().lblTitle.Caption(), u"Tressel"_s);
}

TEST_F(About, TheButtonTakesTheLookOfTheSelectedEntryWithEachActivation)
{
    AboutForm &form = Opened();
    application.frmOption().optButtonStyle.Select(6);
    form.UserActivates();
    EXPECT_EQ(form.btnGBOK.Style(), StyleOfEntry(6));
    application.frmOption().optButtonStyle.Select(1);
    form.UserActivates();
    EXPECT_EQ(form.btnGBOK.Style(), StyleOfEntry(1));
}

TEST_F(About, WithoutASelectedEntryTheStoredOneHolds)
{
    AboutForm &form = Opened();
    application.frmOption().optButtonStyle.SelectNone();
    application.settings.Write(keys::ButtonStyle, 5);
    form.UserActivates();
    EXPECT_EQ(form.btnGBOK.Style(), StyleOfEntry(5));
}

} // namespace
