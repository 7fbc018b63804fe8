// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "settings/Settings.h"

#include "base/Failure.h"
#include "support/MemoryMachine.h"
#include "support/StoredKeys.h"
#include "support/Text.h"

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

TEST_F(SettingsTest, EveryKeyHasItsPlaceNameKindAndDefaults)
{
    for (const StoredKey &stored : StoredKeys()) {
        SCOPED_TRACE(stored.name.toStdString());
        EXPECT_EQ(stored.key.place, stored.place);
        EXPECT_EQ(stored.key.StoredName(), stored.name);
        EXPECT_EQ(stored.key.kind, stored.kind);
        EXPECT_EQ(settings.Read(stored.key), stored.byDefault);
        if (stored.place != KeyPlace::OlderKey) {
            EXPECT_EQ(settings.Read(stored.key, KeyReader::Later),
                      stored.laterDefault.value_or(stored.byDefault));
        }
    }
}

TEST_F(SettingsTest, NoTwoKeysAreTheSame)
{
    std::set<QString> seen;
    for (const StoredKey &stored : StoredKeys())
        EXPECT_TRUE(seen.insert(JournalNameOf(stored.key).toLower()).second) << stored.name.toStdString();
}

TEST_F(SettingsTest, WhatIsWrittenIsReadAndHasTheKindOfItsRow)
{
    for (const auto &[key, place, name, kind, byDefault, laterDefault] : StoredKeys()) {
        SCOPED_TRACE(name.toStdString());
        settings.Write(key, 42);
        if (place == KeyPlace::SystemFacts)
            continue;
        EXPECT_EQ(settings.Read(key), kind == KeyKind::Number ? Value(42) : Value(u"42"_s));
        settings.Write(key, u"43"_s);
        EXPECT_EQ(settings.ReadInt32(key), 43);
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
    EXPECT_THROW(settings.ReadInt32(keys::FileExt), Failure);
    EXPECT_THROW(settings.ReadInt32(keys::VisibleItems), Failure);
    settings.Write(keys::MainLeft, 40000);
    EXPECT_EQ(settings.ReadInt32(keys::MainLeft), 40000);
    settings.Write(keys::FileExt, u"2147483648"_s);
    EXPECT_THROW(settings.ReadInt32(keys::FileExt), Failure);
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
