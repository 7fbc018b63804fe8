// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "forms/InformationPage.h"

#include "settings/KeyPaths.h"
#include "support/MemoryMachine.h"
#include "support/Text.h"
#include "support/ToolBench.h"

#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

class Information : public testing::Test {
protected:
    Information() { bench.options.OptSound.Select(0); }
    void Put(const QString &name, const QString &value)
    {
        machine.hive.Put(SettingsHive::Root::Machine, SystemFactsKeyPath.toString(), name, value);
    }
    QStringList Lines() const
    {
        QStringList lines;
        for (const Label &label : page.lblInformation)
            lines += label.Caption();
        return lines;
    }

    MemoryMachine machine;
    ToolBench bench{machine.machine};
    Form form{u"frmInformation"_s};
    InformationPage page{form, bench.settings, bench.clickSound};
};

TEST_F(Information, EveryLineAndBoxStartsAsNoInfo)
{
    EXPECT_EQ(Lines(), QStringList(5, u"No Info"_s));
    EXPECT_EQ(page.txtInformation[0].Text(), u"No Info"_s);
    EXPECT_EQ(page.txtInformation[1].Text(), u"No Info"_s);
    EXPECT_FALSE(page.PicBakground.IsVisible());
    EXPECT_FALSE(page.btnGBUpdateInfo.IsVisible());
}

TEST_F(Information, TextsOfThePage)
{
    EXPECT_EQ(
        page.lblHeaderInformation.Caption(),
        u"Below you will find a small personal section for personal useage.  If you want to change any of "
        "the information below, click on \"Change Info\"."_s);
    EXPECT_EQ(page.lblSystem.Caption(), u"System:"_s);
    EXPECT_EQ(page.lblRegitered.Caption(), u"Registered to:"_s);
    EXPECT_EQ(page.btnGBChangeInfo.Caption(), u"&Change Info"_s);
    EXPECT_EQ(page.btnGBUpdateInfo.Caption(), u"&Update Info"_s);
}

TEST_F(Information, TheFiveValuesStandInTheirOrder)
{
    Put(u"ProductName"_s, u"Some System"_s);
    Put(u"CurrentVersion"_s, u"5.1"_s);
    Put(u"CurrentBuildNumber"_s, u"2600"_s);
    Put(u"CSDVersion"_s, u"Service 3"_s);
    Put(u"RegisteredOwner"_s, u"Ann"_s);
    Put(u"RegisteredOrganization"_s, u"Mill"_s);
    page.FillSystemInfo();
    EXPECT_EQ(Lines(), (QStringList{u"Some System"_s, u"5.10.2600"_s, u"Service 3"_s, u"Ann"_s, u"Mill"_s}));
}

TEST_F(Information, WhatIsMissingIsAnEmptyLineOrNoInfo)
{
    page.FillSystemInfo();
    EXPECT_EQ(Lines(), (QStringList{u""_s, u""_s, u""_s, u"No Info"_s, u"No Info"_s}));
}

TEST_F(Information, AServiceLevelThatIsNotSetLeavesItsLineEmpty)
{
    Put(u"ProductName"_s, u"Some System"_s);
    page.FillSystemInfo();
    EXPECT_EQ(Lines().at(2), QString());
}

TEST_F(Information, ChangeShowsTheBoxesWithTheLabelsTexts)
{
    Put(u"RegisteredOwner"_s, u"Ann"_s);
    page.FillSystemInfo();
    page.btnGBChangeInfo.UserClicks();
    EXPECT_EQ(machine.journal.Count(u"Play"_s), 1);
    EXPECT_TRUE(page.PicBakground.IsVisible());
    EXPECT_TRUE(page.btnGBUpdateInfo.IsVisible());
    EXPECT_EQ(page.txtInformation[0].Text(), u"Ann"_s);
    EXPECT_EQ(page.txtInformation[1].Text(), u"No Info"_s);
    EXPECT_EQ(form.TakeFocused(), &page.txtInformation[0]);
    EXPECT_TRUE(page.txtInformation[0].TakeSelectAll());
}

TEST_F(Information, UpdateShowsTheChangeUntilThePageIsFilledAnew)
{
    Put(u"RegisteredOwner"_s, u"Ann"_s);
    Put(u"RegisteredOrganization"_s, u"Mill"_s);
    page.FillSystemInfo();
    page.btnGBChangeInfo.UserClicks();
    page.txtInformation[0].UserEdits(u"Bea"_s);
    page.txtInformation[1].UserEdits(u"Forge"_s);
    machine.journal.Clear();
    page.btnGBUpdateInfo.UserClicks();
    EXPECT_EQ(machine.journal.Count(u"Play"_s), 1);
    EXPECT_EQ(machine.journal.About(u"WriteSetting"_s),
              (QStringList{SystemFactsKeyPath.toString() + u"\\RegisteredOwner"_s,
                           SystemFactsKeyPath.toString() + u"\\RegisteredOrganization"_s}));
    EXPECT_FALSE(page.PicBakground.IsVisible());
    EXPECT_FALSE(page.btnGBUpdateInfo.IsVisible());
    EXPECT_EQ(Lines().at(3), u"Bea"_s);
    EXPECT_EQ(Lines().at(4), u"Forge"_s);
    page.FillSystemInfo();
    EXPECT_EQ(Lines().at(3), u"Ann"_s);
    EXPECT_EQ(Lines().at(4), u"Mill"_s);
}

} // namespace
