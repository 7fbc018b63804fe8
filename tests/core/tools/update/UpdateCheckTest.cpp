// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/update/UpdateCheck.h"

#include "core/forms/MainFormTest.h"
#include "tools/update/UpdateText.h"

namespace tressel {
namespace {

using namespace Qt::StringLiterals;

struct Told {
    QString text;
    bool isNewer;
    QString notice;
};

TEST(UpdateText, OnlyItsEndIsRead)
{
    const std::initializer_list<Told> rows{
        {u"5.1451"_s, true, u" (New version 5.1451 is available)"_s},
        {u"whatever stands before 5.1451"_s, true, u" (New version 5.1451 is available)"_s},
        {u"5.1450"_s, false, u" (New version 5.1450 is available)"_s},
        {u"5.1449"_s, false, u" (New version 5.1449 is available)"_s},
        // No number is compared: a single "2" comes behind "1450", and so does "999".
        {u"2"_s, true, u" (New version 2 is available)"_s},
        {u"999"_s, true, u" (New version 999 is available)"_s},
        {u"1"_s, false, u" (New version 1 is available)"_s},
        {u""_s, false, u" (New version  is available)"_s},
        // A line break at the end shifts both.
        {u"5.1450\n"_s, true, u" (New version .1450\n is available)"_s},
        {u"5.1\r\n"_s, false, u" (New version 5.1\r\n is available)"_s},
        {u"garbage"_s, true, u" (New version arbage is available)"_s},
    };
    for (const Told &row : rows) {
        EXPECT_EQ(TellsNewerVersion(row.text, 1450), row.isNewer) << row.text.toStdString();
        EXPECT_EQ(NewVersionNotice(row.text), row.notice);
    }
}

class Update : public MainFormTest {
protected:
    void ServerHas(const QString &text)
    {
        bench.version.updateHost = u"update.example"_s;
        machine.network.online = true;
        machine.network.text = text;
    }
    void Activate() { form.UserActivates(); }

    UpdateCheck &update = form.update;
};

TEST_F(Update, ANewerVersionIsTold)
{
    ServerHas(u"5.1451"_s);
    Activate();
    EXPECT_TRUE(update.PicUpdate.IsVisible());
    EXPECT_EQ(update.lblUpdate.Caption(), u" (New version 5.1451 is available)"_s);
    EXPECT_EQ(machine.journal.About(u"Fetch"_s),
              QStringList{u"http://update.example/download/Tressel5.0.txt"_s});
}

TEST_F(Update, ATransferThatStillRunsIsCancelledFirst)
{
    ServerHas(u"5.1451"_s);
    Activate();
    EXPECT_EQ(machine.journal.Lines().mid(0, 2),
              (QStringList{u"CancelFetch"_s, u"Fetch http://update.example/download/Tressel5.0.txt"_s}));
}

TEST_F(Update, TheSameVersionHidesTheNotice)
{
    ServerHas(u"5.1451"_s);
    Activate();
    machine.network.text = u"5.1450"_s;
    Activate();
    EXPECT_FALSE(update.PicUpdate.IsVisible());
}

TEST_F(Update, AFailedFetchHidesTheNoticeAndSaysNothing)
{
    ServerHas(u"5.1451"_s);
    Activate();
    machine.network.text.clear();
    Activate();
    EXPECT_FALSE(update.PicUpdate.IsVisible());
    EXPECT_EQ(form.area.lblStatusLine.Caption(), u"Ready"_s);
}

TEST_F(Update, OfflineNothingIsFetchedAndTheNoticeStays)
{
    ServerHas(u"5.1451"_s);
    Activate();
    machine.network.online = false;
    machine.network.text = u"5.1450"_s;
    machine.journal.Clear();
    Activate();
    EXPECT_TRUE(update.PicUpdate.IsVisible());
    EXPECT_EQ(machine.journal.Lines(), QStringList());
}

TEST_F(Update, WithoutAHostNothingIsEverFetched)
{
    ServerHas(u"5.1451"_s);
    bench.version.updateHost.clear();
    Activate();
    EXPECT_FALSE(update.PicUpdate.IsVisible());
    EXPECT_EQ(machine.journal.Lines(), QStringList());
}

TEST_F(Update, TheStartAsksToo)
{
    ServerHas(u"5.1451"_s);
    form.Show();
    EXPECT_TRUE(update.PicUpdate.IsVisible());
    EXPECT_EQ(machine.journal.Count(u"Fetch"_s), 1);
}

TEST_F(Update, AnActivationWhileOneWaitsTakesItsPlace)
{
    ServerHas(u"5.1451"_s);
    machine.network.whileFetching = [this] { Activate(); };
    Activate();
    EXPECT_TRUE(update.PicUpdate.IsVisible());
    EXPECT_EQ(machine.journal.Count(u"Fetch"_s), 2);
    EXPECT_EQ(machine.journal.Count(u"CancelFetch"_s), 2);
}

TEST_F(Update, AClickHidesTheNoticeTillTheNextActivation)
{
    ServerHas(u"5.1451"_s);
    for (const bool onTheText : {true, false}) {
        Activate();
        EXPECT_TRUE(update.PicUpdate.IsVisible());
        machine.journal.Clear();
        if (onTheText)
            update.lblUpdate.UserClicks();
        else
            update.PicUpdate.UserClicks();
        EXPECT_FALSE(update.PicUpdate.IsVisible());
        EXPECT_EQ(machine.journal.About(u"Open"_s),
                  QStringList{u"http://update.example/downloadupdate/Tressel5.htm"_s});
        EXPECT_EQ(machine.journal.Count(u"Play"_s), 0);
    }
}

TEST_F(Update, APressThatReachesTextAndBoxOpensThePageOnce)
{
    ServerHas(u"5.1451"_s);
    Activate();
    update.lblUpdate.UserClicks();
    update.PicUpdate.UserClicks();
    EXPECT_EQ(machine.journal.Count(u"Open"_s), 1);
}

TEST_F(Update, TheToolbarOpensThePageAndLeavesTheNotice)
{
    ServerHas(u"5.1451"_s);
    options.OptSound.Select(0);
    Activate();
    form.btnGBToolbarUpdate.UserClicks();
    EXPECT_TRUE(update.PicUpdate.IsVisible());
    EXPECT_EQ(machine.journal.About(u"Open"_s),
              QStringList{u"http://update.example/downloadupdate/Tressel5.htm"_s});
    EXPECT_EQ(machine.journal.Count(u"Play"_s), 1);
}

TEST_F(Update, WithoutAHostTheToolbarSaysSo)
{
    form.btnGBToolbarUpdate.UserClicks();
    EXPECT_EQ(machine.journal.Count(u"Open"_s), 0);
    EXPECT_EQ(form.area.lblStatusLine.Caption(), u"No update address is set"_s);
}

TEST_F(Update, TheNoticeIsFiftyTwipsWiderThanItsText)
{
    ServerHas(u"5.1451"_s);
    Activate();
    update.lblUpdate.TakeWidth(2000);
    EXPECT_EQ(update.PicUpdate.Width(), 2050);
    Activate();
    EXPECT_EQ(update.PicUpdate.Width(), 2050);
}

TEST_F(Update, TheNoticeStaysBesideAStatusTextOfAnyLength)
{
    form.area.lblStatusLine.TakeWidth(900);
    EXPECT_EQ(update.PicUpdate.Left(), 1200);
    form.area.lblStatusLine.SetWidth(700);
    form.area.lblStatusLine.SetCaption(u"Finished"_s);
    EXPECT_EQ(update.PicUpdate.Left(), 1000);
}

TEST_F(Update, TheFirstTextAndLook)
{
    EXPECT_EQ(update.lblUpdate.Caption(), u"New version"_s);
    EXPECT_EQ(update.lblUpdate.ToolTip(), u"Clcik here for new update"_s);
    EXPECT_EQ(update.PicUpdate.ToolTip(), u"Clcik here for new update"_s);
    EXPECT_FALSE(update.PicUpdate.IsVisible());
}

} // namespace
} // namespace tressel
