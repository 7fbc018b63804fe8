// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "forms/Application.h"

#include "support/MemoryMachine.h"
#include "support/Text.h"

#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

class Start : public testing::Test {
protected:
    void TipsOff() { application.settings.Write(keys::ShowTips, u"0"_s); }

    MemoryMachine machine;
    Application application{machine.machine};
};

TEST_F(Start, TipsComeFirst)
{
    application.Start();
    EXPECT_TRUE(application.frmTip().IsVisible());
    EXPECT_TRUE(application.frmTip().chkLoadTipsAtStartup.IsChecked());
    EXPECT_TRUE(application.frmAbout().chkLoadTipsAtStartup.IsChecked());
    EXPECT_FALSE(application.frmAbout().IsVisible());
    application.frmTip().cmdOK.UserClicks();
    EXPECT_FALSE(application.frmTip().IsVisible());
    EXPECT_TRUE(application.frmMain().IsVisible());
}

TEST_F(Start, WithTipsTheAnimationKeepsItsDesignTexts)
{
    application.settings.Write(keys::AnimHeight, u"7"_s);
    application.settings.Write(keys::AnimWidth, u"8"_s);
    application.Start();
    EXPECT_EQ(application.frmOption().txtHeight.Text(), u"500"_s);
    EXPECT_EQ(application.frmOption().txtWidth.Text(), u"200"_s);
}

TEST_F(Start, WithoutTipsTheMainWindowComesAtOnce)
{
    TipsOff();
    application.settings.Write(keys::AnimHeight, u"7"_s);
    application.Start();
    EXPECT_TRUE(application.frmMain().IsVisible());
    EXPECT_EQ(application.frmOption().txtHeight.Text(), u"7"_s);
    EXPECT_EQ(application.frmOption().txtWidth.Text(), u"200"_s);
}

TEST_F(Start, EmptyStoreGivesTheDefaults)
{
    TipsOff();
    application.Start();
    OptionForm &options = application.frmOption();
    EXPECT_EQ(options.optButtonStyle.Selected(), 3);
    EXPECT_EQ(options.OptDigit.Selected(), 1);
    EXPECT_EQ(options.OptSound.Selected(), 0);
    EXPECT_EQ(options.ChkAutoOption.Value(), 0);
    EXPECT_EQ(options.ChkAnimOption.Value(), 0);
    EXPECT_FALSE(options.IsVisible());
    EXPECT_EQ(application.session.AppTitle, u"Brindlekit"_s);
}

TEST_F(Start, OptionsOffDisableTheirControls)
{
    TipsOff();
    application.Start();
    OptionForm &options = application.frmOption();
    const std::initializer_list<const Control *> both = {
        &options.FrmeNumFolders, &options.OptDigit.Button(0), &options.OptDigit.Button(3),
        &options.FrmeAnimation,  &options.lblHeight,          &options.lblWidth,
        &options.txtHeight,      &options.txtWidth,           &options.btnGBDefault};
    for (const Control *control : both)
        EXPECT_FALSE(control->IsEnabled()) << control->Name().toStdString();
}

TEST_F(Start, OptionsOnEnableTheirControls)
{
    TipsOff();
    application.settings.Write(keys::ShowDigit, 1);
    application.settings.Write(keys::EnableAnimation, 1);
    application.Start();
    OptionForm &options = application.frmOption();
    const std::initializer_list<const Control *> both = {
        &options.FrmeNumFolders, &options.OptDigit.Button(0), &options.OptDigit.Button(3),
        &options.FrmeAnimation,  &options.lblHeight,          &options.lblWidth,
        &options.txtHeight,      &options.txtWidth,           &options.btnGBDefault};
    for (const Control *control : both)
        EXPECT_TRUE(control->IsEnabled()) << control->Name().toStdString();
}

TEST_F(Start, StoredIndexOutsideItsGroupStopsTheStart)
{
    TipsOff();
    application.settings.Write(keys::ButtonStyle, 9);
    machine.dialogs.ExpectFatal(9, u"Subscript out of range"_s);
    EXPECT_THROW(application.Start(), ProcessEnded);
}

TEST_F(Start, TextInANumericKeyStopsTheStart)
{
    TipsOff();
    machine.hive.Write(SettingsHive::Root::User, u"Software\\Halven Software\\Tressel\\Options"_s, u"Sound"_s,
                       u"abc"_s);
    machine.dialogs.ExpectFatal(13, u"Type mismatch"_s);
    EXPECT_THROW(application.Start(), ProcessEnded);
}

TEST_F(Start, FailureThatNobodyHandlesEndsTheProcess)
{
    TipsOff();
    application.Start();
    application.frmMain().btnGBToolbarLoadList.Click.Also([] { throw Failure(FailureNumber::Overflow); });
    machine.dialogs.ExpectFatal(6, u"Overflow"_s);
    EXPECT_THROW(application.frmMain().btnGBToolbarLoadList.UserClicks(), ProcessEnded);
}

} // namespace
