// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "settings/Settings.h"

#include "base/Failure.h"
#include "support/MemoryMachine.h"
#include "support/Text.h"

#include <QList>

#include <gtest/gtest.h>
#include <set>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

constexpr auto User = SettingsHive::Root::User;

class SettingsTest : public testing::Test {
protected:
    MemoryMachine computer;
    MemoryHive &hive = computer.hive;
    Settings settings{computer.machine};
};

struct Row {
    KeyPlace place;
    QString name;
    KeyKind kind;
    Value byDefault;
    std::optional<Value> laterDefault{};
};

using enum KeyPlace;
using enum KeyKind;

// clang-format off: a row is a line
const Row Rows[] = {
    {Main, u"MainLeft"_s, Number, u"0"_s},
    {Main, u"MainTop"_s, Number, u"0"_s},
    {Main, u"MainWidth"_s, Number, 8120, 10830},
    {Main, u"MainHeight"_s, Number, 6825, 7860},
    {Main, u"VisibleItems"_s, Number, u""_s},
    {Main, u"TabStrip"_s, Number, u"2880"_s},
    {Main, u"IndxBar"_s, Number, u"1"_s},
    {Main, u"chk1"_s, Text, u"1"_s},
    {Main, u"chk2"_s, Text, u"1"_s},
    {Main, u"chk3"_s, Text, u"1"_s},
    {Main, u"chk4"_s, Text, u"1"_s},
    {Main, u"chk5"_s, Text, u"1"_s},
    {Main, u"chk6"_s, Text, u"1"_s},
    {Main, u"chk7"_s, Text, u"1"_s},
    {Main, u"Menu1"_s, Text, u"1"_s},
    {Main, u"Menu2"_s, Text, u"1"_s},
    {Main, u"Menu3"_s, Text, u"1"_s},
    {Main, u"Menu4"_s, Text, u"1"_s},
    {Main, u"Menu5"_s, Text, u"1"_s},
    {Main, u"Menu6"_s, Text, u"1"_s},
    {Main, u"Menu7"_s, Text, u"1"_s},
    {Main, u"RightToLeft"_s, Text, 0},
    {Main, u"OutlookColors"_s, Number, u"0"_s},
    {Main, u"CustomColor"_s, Text, u"2"_s},
    {Main, u"Color0"_s, Text, u""_s},
    {Main, u"Color1"_s, Text, u""_s},
    {Main, u"Color2"_s, Text, u""_s},
    {Main, u"Color3"_s, Text, u""_s},
    {Main, u"Color4"_s, Text, u""_s},
    {Main, u"Color5"_s, Text, u""_s},
    {Main, u"Color6"_s, Text, u""_s},
    {Main, u"Color7"_s, Text, u""_s},
    {Main, u"Color8"_s, Text, u""_s},
    {Main, u"Color9"_s, Text, u""_s},
    {Main, u"Color10"_s, Text, u""_s},
    {Main, u"Color11"_s, Text, u""_s},
    {Main, u"Color12"_s, Text, u""_s},
    {Main, u"Color13"_s, Text, u""_s},
    {Main, u"Color14"_s, Text, u""_s},
    {Main, u"Color15"_s, Text, u""_s},
    {Main, u"Color16"_s, Text, u""_s},
    {Main, u"Color17"_s, Text, u""_s},
    {Main, u"Color18"_s, Text, u""_s},
    {Main, u"Color19"_s, Text, u""_s},
    {Main, u"Color20"_s, Text, u""_s},
    {Main, u"Color21"_s, Text, u""_s},
    {Main, u"TitleBarFont"_s, Text, u"0"_s},
    {Main, u"TitleBarBold"_s, Text, u"0"_s},
    {Main, u"TitleBarItalic"_s, Text, u"0"_s},
    {Main, u"TitleBarUnderline"_s, Text, u"0"_s},
    {Main, u"TitleBarColor"_s, Text, u"0"_s},
    {Main, u"TitleBarSize"_s, Text, u"10"_s},
    {Main, u"TitleCapFont"_s, Text, u"0"_s},
    {Main, u"TitleCapBold"_s, Text, u"0"_s},
    {Main, u"TitleCapItalic"_s, Text, u"0"_s},
    {Main, u"TitleCapUnderline"_s, Text, u"0"_s},
    {Main, u"TitleCapTextCol"_s, Text, u"0"_s},
    {Main, u"TitleCapSize"_s, Text, u"10"_s},
    {Main, u"FilePath"_s, Text, u"C:\\Tressel"_s},
    {Main, u"FileExt"_s, Text, u"1"_s},
    {Main, u"ButtonBar"_s, Text, u"0"_s},
    {Main, u"LastFile"_s, Text, u""_s},
    {Main, u"LastPath"_s, Text, u""_s},
    {Main, u"LastDBPath"_s, Text, u"C:\\Tressel"_s},
    {Main, u"OpenTXTPath"_s, Text, u"C:\\Tressel"_s},
    {Main, u"OpenDBPath"_s, Text, u"C:\\Tressel"_s},
    {Main, u"Separate"_s, Text, u""_s},
    {Main, u"SearchPath"_s, Text, u"C:\\Tressel"_s},
    {Main, u"DatabaseFile"_s, Text, u"C:\\Tressel\\data.mdb"_s},
    {Main, u"SQLString"_s, Text, u"0"_s},
    {Main, u"Table"_s, Text, u"0"_s},
    {Main, u"OnlyListFilename"_s, Number, 0},
    {Main, u"GenLastPath"_s, Text, u""_s},
    {Main, u"LastSavePath"_s, Text, u""_s},
    {Main, u"ReportFile"_s, Text, u""_s},
    {Main, u"RecentPath 0"_s, Text, u""_s},
    {Main, u"RecentPath 1"_s, Text, u""_s},
    {Main, u"RecentPath 2"_s, Text, u""_s},
    {Main, u"RecentPath 3"_s, Text, u""_s},
    {Main, u"RecentPath 4"_s, Text, u""_s},
    {Main, u"TotalFileCount"_s, Text, u"0"_s},
    {Main, u"ReplaceFrom"_s, Text, u""_s},
    {Main, u"ReplaceTo"_s, Text, u""_s},
    {Main, u"ExtAll"_s, Text, u""_s},
    {Main, u"ExtFrom"_s, Text, u""_s},
    {Main, u"ExtTo"_s, Text, u""_s},
    {Options, u"ButtonStyle"_s, Number, 3},
    {Options, u"ShowDigit"_s, Number, 0},
    {Options, u"DigitType"_s, Number, 1},
    {Options, u"EnableAnimation"_s, Number, 0, 1},
    {Options, u"AnimHeight"_s, Text, u"500"_s},
    {Options, u"AnimWidth"_s, Text, u"200"_s},
    {Options, u"Sound"_s, Number, 0},
    {Options, u"Language"_s, Text, 0},
    {Options, u"MakeDel"_s, Number, u"0"_s},
    {Options, u"FromDir"_s, Number, u"1"_s},
    {Options, u"ToDir"_s, Number, u"1"_s},
    {Options, u"Folder"_s, Text, u"Disk"_s},
    {Options, u"SubFolder"_s, Text, u"Sub Folder"_s},
    {Options, u"LastNumPath"_s, Text, u"C:\\"_s},
    {Program, u"Show Tips at Startup"_s, Text, u"1"_s},
    {Splitter, u"WindowLeft"_s, Text, u"0"_s},
    {Splitter, u"WindowTop"_s, Text, u"0"_s},
    {Splitter, u"SplitSize"_s, Text, u"1440"_s},
    {Splitter, u"SplitCount"_s, Text, u"2"_s},
    {Splitter, u"SplitOption"_s, Text, u"False"_s},
    {Splitter, u"DeleteParts"_s, Text, u"1"_s},
    {Splitter, u"OpenExplorer"_s, Text, u"1"_s},
    {Splitter, u"CopyToFloppy"_s, Text, u"0"_s},
    {Splitter, u"InitDir"_s, Text, u""_s},
    {OlderKey, u"ReplaceFrom"_s, Text, u"_"_s},
    {OlderKey, u"ReplaceTo"_s, Text, u""_s},
    {SystemFacts, u"ProductName"_s, Text, u""_s},
    {SystemFacts, u"CurrentVersion"_s, Text, u""_s},
    {SystemFacts, u"CurrentBuildNumber"_s, Text, u""_s},
    {SystemFacts, u"CSDVersion"_s, Text, u""_s},
    {SystemFacts, u"RegisteredOwner"_s, Text, u"No Info"_s},
    {SystemFacts, u"RegisteredOrganization"_s, Text, u"No Info"_s},
};
// clang-format on

/// Every key that can be stored, the numbered ones one by one.
QList<KeyEntry> EachKey()
{
    QList<KeyEntry> each;
    for (const KeyEntry *key : AllKeys()) {
        if (!key->IsNumbered())
            each.append(*key);
        for (int number = key->first; number <= key->last; ++number)
            each.append(key->At(number));
    }
    return each;
}

std::optional<KeyEntry> KeyOf(const Row &row)
{
    for (const KeyEntry &key : EachKey()) {
        if (key.place == row.place && key.StoredName() == row.name)
            return key;
    }
    return {};
}

TEST_F(SettingsTest, EveryKeyIsInTheTableWithItsKindAndDefaults)
{
    for (const Row &row : Rows) {
        SCOPED_TRACE(row.name.toStdString());
        const std::optional<KeyEntry> key = KeyOf(row);
        ASSERT_TRUE(key);
        EXPECT_EQ(key->kind, row.kind);
        EXPECT_EQ(settings.Read(*key), row.byDefault);
        if (row.place != OlderKey) {
            EXPECT_EQ(settings.Read(*key, KeyReader::Later), row.laterDefault.value_or(row.byDefault));
        }
    }
    EXPECT_EQ(static_cast<std::size_t>(EachKey().size()), std::size(Rows));
}

TEST_F(SettingsTest, NoTwoRowsNameTheSameKey)
{
    std::set<std::pair<KeyPlace, QString>> seen;
    for (const KeyEntry &key : EachKey())
        EXPECT_TRUE(seen.emplace(key.place, key.StoredName().toLower()).second)
            << key.StoredName().toStdString();
}

TEST_F(SettingsTest, EveryKeyIsReadSomewhereAndAllButTheSystemsFactsAreWritten)
{
    for (const KeyEntry &key : EachKey()) {
        SCOPED_TRACE(key.StoredName().toStdString());
        EXPECT_NE(key.read, KeyMoment::Never);
        if (key.place != SystemFacts) {
            EXPECT_NE(key.written, KeyMoment::Never);
        }
    }
}

TEST_F(SettingsTest, WhatIsWrittenIsReadAndHasTheKindOfItsRow)
{
    for (const KeyEntry &key : EachKey()) {
        SCOPED_TRACE(key.StoredName().toStdString());
        settings.Write(key, 42);
        if (key.place == SystemFacts)
            continue;
        EXPECT_EQ(settings.Read(key), key.kind == Number ? Value(42) : Value(u"42"_s));
        settings.Write(key, u"43"_s);
        EXPECT_EQ(settings.ReadInt16(key), 43);
    }
}

TEST_F(SettingsTest, EachPlaceHasItsKeyInTheHive)
{
    const auto has = [this](const QString &key, const QString &name) {
        return hive.Get(User, key, name).has_value();
    };
    settings.Write(keys::FilePath, u"/x"_s);
    EXPECT_TRUE(has(u"Software\\Halven Software\\Tressel\\Main"_s, u"FilePath"_s));
    settings.Write(keys::Sound, 1);
    EXPECT_TRUE(has(u"Software\\Halven Software\\Tressel\\Options"_s, u"Sound"_s));
    settings.Write(keys::PresetReplaceTo, u"x"_s);
    EXPECT_TRUE(has(u"Software\\Halven Software\\Brindlekit\\3.0"_s, u"ReplaceTo"_s));
    EXPECT_EQ(settings.ReadText(keys::ReplaceTo), u""_s);
}

TEST_F(SettingsTest, TheSystemsFactsAreReadFromTheMachinesRootAndNotWritten)
{
    hive.Put(SettingsHive::Root::Machine, u"Software\\Microsoft\\Windows NT\\CurrentVersion"_s,
             u"RegisteredOwner"_s, u"Ann"_s);
    settings.Write(keys::RegisteredOwner, u"Bob"_s);
    EXPECT_EQ(settings.ReadText(keys::RegisteredOwner), u"Ann"_s);
}

TEST_F(SettingsTest, TheTwoReadersOfTheWindowsSizeKeepTheirDefaults)
{
    EXPECT_EQ(settings.ReadInt32(keys::MainWidth), 8120);
    EXPECT_EQ(settings.ReadInt32(keys::MainWidth, KeyReader::Later), 10830);
    settings.Write(keys::MainWidth, 9000);
    EXPECT_EQ(settings.ReadInt32(keys::MainWidth), 9000);
    EXPECT_EQ(settings.ReadInt32(keys::MainWidth, KeyReader::Later), 9000);
}

TEST_F(SettingsTest, NumberedKeysGoByTheirNumber)
{
    settings.Write(keys::Color.At(11), 255);
    EXPECT_EQ(hive.Get(User, u"Software\\Halven Software\\Tressel\\Main"_s, u"Color11"_s),
              HiveValue(u"255"_s));
    settings.Write(keys::RecentPath.At(4), u"/a"_s);
    EXPECT_EQ(hive.Get(User, u"Software\\Halven Software\\Tressel\\Main"_s, u"RecentPath 4"_s),
              HiveValue(u"/a"_s));
    EXPECT_THROW(keys::Chk.At(0), Failure);
    EXPECT_THROW(keys::Chk.At(8), Failure);
    EXPECT_THROW(keys::FilePath.At(0), Failure);
}

TEST_F(SettingsTest, ConversionsFailAtTheReader)
{
    settings.Write(keys::FileExt, u"abc"_s);
    EXPECT_EQ(settings.ReadText(keys::FileExt), u"abc"_s);
    EXPECT_THROW(settings.ReadInt16(keys::FileExt), Failure);
    EXPECT_THROW(settings.ReadInt32(keys::VisibleItems), Failure);
    settings.Write(keys::MainLeft, 40000);
    EXPECT_THROW(settings.ReadInt16(keys::MainLeft), Failure);
    EXPECT_EQ(settings.ReadInt32(keys::MainLeft), 40000);
}

TEST_F(SettingsTest, TextForANumberIsConvertedOrFailsAndChangesNothing)
{
    settings.Write(keys::TabStrip, u"3000"_s);
    EXPECT_EQ(settings.Read(keys::TabStrip), Value(3000));
    EXPECT_THROW(settings.Write(keys::TabStrip, u"wide"_s), Failure);
    EXPECT_EQ(settings.Read(keys::TabStrip), Value(3000));
}

TEST_F(SettingsTest, BooleansAreWordsInTextAndMinusOneInNumbers)
{
    EXPECT_FALSE(settings.ReadBoolean(keys::SplitOption));
    settings.WriteBoolean(keys::SplitOption, true);
    EXPECT_EQ(settings.ReadText(keys::SplitOption), u"True"_s);
    EXPECT_TRUE(settings.ReadBoolean(keys::SplitOption));
    settings.WriteBoolean(keys::OutlookColors, true);
    EXPECT_EQ(settings.Read(keys::OutlookColors), Value(-1));
    EXPECT_TRUE(settings.ReadBoolean(keys::OutlookColors));
    settings.WriteBoolean(keys::OutlookColors, false);
    EXPECT_FALSE(settings.ReadBoolean(keys::OutlookColors));
}

} // namespace
