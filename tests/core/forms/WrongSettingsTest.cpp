// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// Starts of the program with values in the store that nobody meant, for everything that the options, the
// language, the colours and the fonts read.

#include "settings/KeyPaths.h"
#include "support/StartedProgram.h"
#include "support/Text.h"

#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

/// A stored number: what is below 0 is stored as its 32 bits.
HiveValue Number(std::int32_t number)
{
    return static_cast<quint32>(number);
}

/// The values that are tried with each key.
QList<HiveValue> WrongValues()
{
    return {u"wrong"_s,
            QString(),
            u" "_s,
            u"99999999999"_s,
            u"-1"_s,
            u"1e300"_s,
            u"&Hzz"_s,
            Number(-1),
            Number(10),
            Number(std::numeric_limits<std::int32_t>::max()),
            Number(std::numeric_limits<std::int32_t>::min())};
}

/// Keys that an appearance, a language or an animation is read from, single ones of the numbered.
QList<KeyEntry> Keys()
{
    QList<KeyEntry> all{
        keys::RightToLeft,   keys::MainWidth,         keys::MainHeight,        keys::MainLeft,
        keys::MainTop,       keys::VisibleItems,      keys::TabStrip,          keys::IndxBar,
        keys::TitleBarFont,  keys::TitleBarSize,      keys::TitleBarBold,      keys::TitleBarItalic,
        keys::TitleBarColor, keys::TitleBarUnderline, keys::TitleCapFont,      keys::TitleCapSize,
        keys::TitleCapBold,  keys::TitleCapItalic,    keys::TitleCapUnderline, keys::TitleCapTextCol,
        keys::OutlookColors, keys::CustomColor,       keys::AnimHeight,        keys::AnimWidth,
        keys::Language};
    for (int number = keys::Color.first; number <= keys::Color.last; ++number)
        all += keys::Color.At(number);
    for (int number = keys::Chk.first; number <= keys::Chk.last; ++number)
        all += keys::Chk.At(number);
    return all;
}

QString PathOf(const KeyEntry &key)
{
    return u"Software\\Halven Software\\Tressel\\"_s
        + (key.place == KeyPlace::Options ? u"Options"_s : u"Main"_s);
}

void Put(StartedProgram &program, const KeyEntry &key, const HiveValue &value)
{
    program.machine.hive.Put(SettingsHive::Root::User, PathOf(key), key.StoredName(), value);
}

/// Works with the window and the options and leaves.
void ExpectThatItWorks(StartedProgram &program)
{
    MainForm &form = program.Start();
    OptionForm &options = program.application.frmOption();
    EXPECT_TRUE(form.IsVisible());
    EXPECT_EQ(form.EyeDropper1.Items().Count(), 7);
    form.btnGBToolbarOption.UserClicks();
    EXPECT_TRUE(options.IsVisible());
    for (int page = 0; page < 5; ++page)
        options.lstOptions.UserSelects(page);
    options.btnGBColorDefault.UserClicks();
    options.btnGBColor2.UserClicks();
    options.btnGBShowAllItem.UserClicks();
    EXPECT_EQ(form.EyeDropper1.ShownCount(), 7);
    EXPECT_EQ(form.EyeDropper1.Colors()->at(0), 0xDEDEDEU);
    options.btnGBOK.UserClicks();
    EXPECT_FALSE(options.IsVisible());
    EXPECT_THROW(form.btnGBToolbarExit.UserClicks(), ProcessEnded);
    EXPECT_EQ(program.machine.journal.About(u"End"_s), QStringList{u"0"_s});
}

TEST(WrongSettings, EachKeyAloneLetsTheProgramComeUpAndWork)
{
    for (const KeyEntry &key : Keys()) {
        for (const HiveValue &value : WrongValues()) {
            SCOPED_TRACE((key.StoredName() + u" = "_s + ValueText(value)).toStdString());
            StartedProgram program;
            Put(program, key, value);
            ExpectThatItWorks(program);
        }
    }
}

TEST(WrongSettings, AllKeysTogetherLetTheProgramComeUpAndWork)
{
    for (const HiveValue &value : WrongValues()) {
        SCOPED_TRACE(ValueText(value).toStdString());
        StartedProgram program;
        for (const KeyEntry &key : Keys())
            Put(program, key, value);
        ExpectThatItWorks(program);
    }
}

TEST(WrongSettings, AfterAWrongOneTheNextStartIsWhole)
{
    StartedProgram program;
    for (const KeyEntry &key : Keys())
        Put(program, key, u"wrong"_s);
    ExpectThatItWorks(program);
    Application next(program.machine.machine);
    program.machine.journal.Clear();
    next.Start();
    EXPECT_EQ(next.frmMain().EyeDropper1.ShownCount(), 7);
    EXPECT_EQ(program.machine.journal.About(u"ReadSetting"_s).last().section(u'\\', -1), u"Menu7"_s);
}

struct StopRow {
    const KeyEntry &key;
    HiveValue value;
    int number;
    const char *description;
};

class StopsTheStart : public testing::TestWithParam<StopRow> { };

// Kept: these are looked at before there is a window, and none of them is tested against what it chooses.
TEST_P(StopsTheStart, WithItsFailure)
{
    StartedProgram program;
    Put(program, GetParam().key, GetParam().value);
    program.machine.dialogs.ExpectFatal(GetParam().number, QString::fromLatin1(GetParam().description));
    EXPECT_THROW(program.Start(), ProcessEnded);
}

constexpr const char *subscript = "Subscript out of range";
constexpr const char *mismatch = "Type mismatch";

INSTANTIATE_TEST_SUITE_P(Options, StopsTheStart,
                         testing::Values(StopRow{keys::ButtonStyle, Number(9), 9, subscript},
                                         StopRow{keys::ButtonStyle, Number(-1), 9, subscript},
                                         StopRow{keys::ButtonStyle, u"wrong"_s, 13, mismatch},
                                         StopRow{keys::DigitType, Number(4), 9, subscript},
                                         StopRow{keys::DigitType, QString(), 13, mismatch},
                                         StopRow{keys::Sound, Number(2), 9, subscript},
                                         StopRow{keys::Sound, u"99999999999"_s, 6, "Overflow"},
                                         StopRow{keys::ShowDigit, Number(3), 380, "Invalid property value"},
                                         StopRow{keys::EnableAnimation, u"wrong"_s, 13, mismatch}));

} // namespace
