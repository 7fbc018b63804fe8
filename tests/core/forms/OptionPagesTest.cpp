// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// The options dialog's pages in the running program, what its buttons store, and its database page.

#include "settings/KeyPaths.h"
#include "support/StartedProgram.h"
#include "support/Text.h"

#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

class OptionPages : public testing::Test, protected StartedProgram {
protected:
    OptionPages()
    {
        PutFact(u"ProductName"_s, u"Some System"_s);
        PutFact(u"RegisteredOwner"_s, u"Ann"_s);
    }

    void PutFact(const QString &name, const QString &value)
    {
        machine.hive.Put(SettingsHive::Root::Machine, SystemFactsKeyPath.toString(), name, value);
    }
    void Choose(int page) { options.lstOptions.UserSelects(page); }
    /// The settings that were written since the journal was cleared, as "name=value".
    QStringList Stored() const
    {
        QStringList stored;
        for (const JournalEntry &entry : machine.journal.Entries()) {
            if (entry.what == u"WriteSetting")
                stored += entry.about.section(u'\\', -1) + u'=' + entry.detail;
        }
        return stored;
    }

    OptionForm &options = application.frmOption();
    InformationPage &page = options.information;
};

TEST_F(OptionPages, FactsAreThereFromTheLoadOn)
{
    StartedProgram other;
    other.machine.hive.Put(SettingsHive::Root::Machine, SystemFactsKeyPath.toString(), u"ProductName"_s,
                           u"Some System"_s);
    EXPECT_EQ(other.application.frmOption().information.lblInformation[0].Caption(), u"Some System"_s);
}

TEST_F(OptionPages, InformationIsFilledAnewWithEachOpening)
{
    Start();
    Choose(1);
    EXPECT_TRUE(page.FrmeInfo.IsVisible());
    EXPECT_EQ(page.lblInformation[3].Caption(), u"Ann"_s);
    page.btnGBChangeInfo.UserClicks();
    page.txtInformation[0].UserEdits(u"Bea"_s);
    page.btnGBUpdateInfo.UserClicks();
    EXPECT_EQ(page.lblInformation[3].Caption(), u"Bea"_s);
    Choose(2);
    EXPECT_EQ(page.lblInformation[3].Caption(), u"Bea"_s);
    Choose(1);
    EXPECT_EQ(page.lblInformation[3].Caption(), u"Ann"_s);
}

TEST_F(OptionPages, BoxesOfTheInformationAreSeenOnNoOtherPage)
{
    Start();
    Choose(1);
    page.btnGBChangeInfo.UserClicks();
    EXPECT_TRUE(page.PicBakground.IsVisible());
    EXPECT_TRUE(page.txtInformation[1].IsVisible());
    for (const int other : {4, 0}) {
        Choose(other);
        EXPECT_EQ(page.PicBakground.IsVisible(), other == 0);
        EXPECT_FALSE(page.txtInformation[0].IsVisible());
        EXPECT_FALSE(page.txtInformation[1].IsVisible());
    }
    Choose(1);
    EXPECT_FALSE(page.PicBakground.IsVisible());
    page.btnGBChangeInfo.UserClicks();
    EXPECT_TRUE(page.txtInformation[0].IsVisible());
}

TEST_F(OptionPages, SeventeenButtonsTakeTheLook)
{
    Start();
    // The two that stand for nothing and that of the page which nobody sees keep the look they were made
    // with.
    const QStringList without{u"isButton1"_s, u"isButton3"_s, u"btnGBShowMenu"_s, u"btnBrowse"_s};
    for (int entry = 0; entry < 9; ++entry) {
        options.optButtonStyle.Select(entry);
        int count = 0;
        for (const Control *control : options.Controls()) {
            const auto *button = dynamic_cast<const IsButton *>(control);
            if (!button || without.contains(button->Name()))
                continue;
            ++count;
            EXPECT_EQ(button->Style(), options.btnGBDefault.Style()) << button->Name().toStdString();
        }
        EXPECT_EQ(count, 17);
    }
}

struct StoreRow {
    const char *button;
    QStringList stored;
};

class WhatIsStored : public OptionPages, public testing::WithParamInterface<StoreRow> { };

TEST_P(WhatIsStored, InItsOrderWithItsValues)
{
    machine.files.PutFile(u"C:\\Tressel\\Lang\\Language.dat"_s, "One\r\nTwo\r\n");
    for (const QString &name : {u"One"_s, u"Two"_s})
        machine.files.PutFile(u"C:\\Tressel\\Lang\\%1.lng"_s.arg(name), "000 LANGUAGE FILE v4.0\r\n");
    Start();
    options.Show();
    options.txtHeight.SetText(u"70"_s);
    options.txtWidth.SetText(u"wide"_s);
    options.ChkAutoOption.SetValue(1);
    options.ChkAnimOption.SetValue(1);
    options.OptDigit.Select(3);
    options.OptSound.Select(1);
    options.optButtonStyle.Select(2);
    options.cmbLanguage.UserSelects(1);
    Form().EyeDropper1.SetOutlookColors(true);
    machine.journal.Clear();
    auto *button = dynamic_cast<IsButton *>(options.Find(QString::fromLatin1(GetParam().button)));
    ASSERT_TRUE(button);
    button->UserClicks();
    EXPECT_EQ(Stored(), GetParam().stored);
}

const QStringList animation{u"AnimHeight=70"_s, u"AnimWidth=wide"_s, u"ShowDigit=1"_s,
                            u"EnableAnimation=1"_s};
const QStringList choices{u"DigitType=3"_s, u"Sound=1"_s, u"ButtonStyle=2"_s};
const QStringList language{u"Language=1"_s};
const QStringList colours{u"OutlookColors=4294967295"_s};

INSTANTIATE_TEST_SUITE_P(Buttons, WhatIsStored,
                         testing::Values(StoreRow{"btnGBApply", animation + language + colours + choices},
                                         StoreRow{"btnGBOK", animation + choices + colours},
                                         StoreRow{"btnGBCancel", {}}, StoreRow{"btnGBDefault", {}}));

TEST_F(OptionPages, DatabaseFileIsAskedForAndItsPathShows)
{
    application.settings.Write(keys::OpenDBPath, u"C:\\Work"_s);
    Start();
    EXPECT_FALSE(options.PicComingSoon.IsVisible());
    EXPECT_EQ(options.Label2.Caption(),
              u"This page is not finish yet but coming more function soon, check for update regularly"_s);
    EXPECT_EQ(options.lblDatabase.Caption(), u"Database:"_s);
    machine.journal.Clear();
    machine.dialogs.ExpectOpenFile(u"C:\\Work\\names.mdb"_s);
    options.btnBrowse.UserClicks();
    EXPECT_EQ(options.txtDBFilnavn.Text(), u"C:\\Work\\names.mdb"_s);
    EXPECT_EQ(machine.journal.Count(u"Play"_s), 1);
    const FileDialogRequest &asked = machine.dialogs.FileRequests().last();
    EXPECT_EQ(asked.title, u"Select Database File"_s);
    EXPECT_EQ(asked.folder, u"C:\\Work"_s);
    EXPECT_EQ(asked.filter, u"All Files (*.*)|*.*|MDB Files (*.mdb)|*.mdb|"_s);
    EXPECT_EQ(asked.filterIndex, 2);
    machine.dialogs.ExpectOpenFile(std::nullopt);
    options.btnBrowse.UserClicks();
    EXPECT_EQ(options.txtDBFilnavn.Text(), u"C:\\Work\\names.mdb"_s);
}

TEST_F(OptionPages, ALanguageThatIsNoneOfTheListIsNotLookedFor)
{
    // Apply stores this where there is no list.
    application.settings.Write(keys::Language, u"-1"_s);
    Start();
    Choose(2);
    EXPECT_EQ(options.cmbLanguage.ListIndex(), -1);
    EXPECT_EQ(machine.dialogs.Boxes().size(), 0);
}

TEST_F(OptionPages, APlaceWhoseMiddleNoNumberCanTellEndsNothing)
{
    application.settings.Write(keys::MainLeft, 2147483647);
    application.settings.Write(keys::MainTop, 2147483647);
    Start();
    EXPECT_EQ(machine.journal.About(u"ReadSetting"_s).last().section(u'\\', -1), u"Menu7"_s);
}

} // namespace
