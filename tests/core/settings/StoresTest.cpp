// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "base/Failure.h"
#include "settings/ApplicationStore.h"
#include "settings/HiveTree.h"
#include "settings/MainStore.h"
#include "settings/OlderKey.h"
#include "support/Text.h"

#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

constexpr auto User = SettingsHive::Root::User;
constexpr auto MachineWide = SettingsHive::Root::Machine;
const QString Key = u"Software\\Halven Software\\Tressel\\Main"_s;
const QString Older = u"Software\\Halven Software\\Brindlekit\\3.0"_s;

class Stores : public testing::Test {
protected:
    Value Get(const QString &name, const Value &defaultValue = u"default"_s)
    {
        return GetKeyValue(hive, User, Key, name, defaultValue);
    }
    void Put(const QString &name, const HiveValue &value) { hive.Write(User, Key, name, value); }
    void PutOlder(const QString &name, const HiveValue &value) { hive.Write(User, Older, name, value); }

    MemorySettingsHive hive;
};

using MainStore = Stores;
using ApplicationStore = Stores;
using OlderKeyStore = Stores;

TEST_F(MainStore, MissingKeyAndMissingNameGiveTheDefaultAsItIs)
{
    EXPECT_EQ(Get(u"a"_s, u"text"_s), Value(u"text"_s));
    Put(u"b"_s, 1U);
    EXPECT_EQ(Get(u"a"_s, 8120), Value(8120));
}

TEST_F(MainStore, WhatIsStoredComesBackWhateverKindTheDefaultIsOf)
{
    SetKeyString(hive, User, Key, u"text"_s, u"abc"_s);
    SetKeyDword(hive, User, Key, u"number"_s, 7);
    EXPECT_EQ(Get(u"text"_s, 3), Value(u"abc"_s));
    EXPECT_EQ(Get(u"number"_s, u"3"_s), Value(7));
    EXPECT_THROW(ToInt32(Get(u"text"_s, 3)), Failure);
    EXPECT_EQ(ToText(Get(u"number"_s)), u"7"_s);
}

TEST_F(MainStore, KindsAreTextAndNumber)
{
    EXPECT_EQ(SetKeyString(hive, User, Key, u"text"_s, u"5"_s), StoreStatus::Done);
    EXPECT_EQ(SetKeyDword(hive, User, Key, u"number"_s, -1), StoreStatus::Done);
    EXPECT_EQ(hive.Read(User, Key, u"text"_s), HiveValue(u"5"_s));
    EXPECT_EQ(hive.Read(User, Key, u"number"_s), HiveValue(0xFFFFFFFFU));
    EXPECT_EQ(Get(u"number"_s), Value(-1));
}

TEST_F(MainStore, AnotherKindGivesTheDefault)
{
    Put(u"binary"_s, OtherKindValue{3, "text"});
    Put(u"expandable"_s, OtherKindValue{2, "text"});
    EXPECT_EQ(Get(u"binary"_s), Value(u"default"_s));
    EXPECT_EQ(Get(u"expandable"_s, 4), Value(4));
}

TEST_F(MainStore, EmptyTextIsAValue)
{
    SetKeyString(hive, User, Key, u"empty"_s, u""_s);
    SetKeyString(hive, User, Key, u"null"_s, QString());
    EXPECT_EQ(Get(u"empty"_s), Value(u""_s));
    EXPECT_EQ(Get(u"null"_s), Value(u""_s));
    EXPECT_FALSE(std::get<QString>(*hive.Read(User, Key, u"null"_s)).isNull());
}

TEST_F(MainStore, TextIsTrimmedOnTheRightThenCutAtItsFirstNul)
{
    const struct {
        QString stored;
        QString read;
    } rows[] = {
        {u"  a b  "_s, u"  a b"_s},          {u"   "_s, u""_s},
        {u"tab\t "_s, u"tab\t"_s},           {QString(u"ab\0cd"_s), u"ab"_s},
        {QString(u"ab  \0cd"_s), u"ab  "_s}, {QString(u"ab\0  "_s), u"ab"_s},
        {QString(u"\0cd"_s), u""_s},         {u"no-break\u00a0"_s, u"no-break\u00a0"_s},
    };
    for (const auto &row : rows) {
        SetKeyString(hive, User, Key, u"name"_s, row.stored);
        EXPECT_EQ(hive.Read(User, Key, u"name"_s), HiveValue(row.stored));
        EXPECT_EQ(Get(u"name"_s), Value(row.read));
    }
}

TEST_F(MainStore, KeysAndNamesIgnoreCase)
{
    SetKeyString(hive, User, Key.toUpper(), u"FILEPATH"_s, u"first"_s);
    EXPECT_EQ(Get(u"filepath"_s), Value(u"first"_s));
    SetKeyString(hive, User, Key, u"FilePath"_s, u"second"_s);
    EXPECT_EQ(GetKeyValue(hive, User, Key.toUpper(), u"FILEPATH"_s, u""_s), Value(u"second"_s));
    ASSERT_EQ(hive.Tree(User).AllKeys().size(), 1U);
    EXPECT_EQ(hive.Tree(User).AllKeys().begin()->second.size(), 1U);
}

TEST_F(MainStore, TheMachinesRootIsReadAndNeverWritten)
{
    hive.Tree(MachineWide).Write(Key, u"fact"_s, u"old"_s);
    EXPECT_EQ(SetKeyString(hive, MachineWide, Key, u"fact"_s, u"new"_s), StoreStatus::AccessDenied);
    EXPECT_EQ(SetKeyDword(hive, MachineWide, Key, u"other"_s, 1), StoreStatus::AccessDenied);
    EXPECT_EQ(GetKeyValue(hive, MachineWide, Key, u"fact"_s, u""_s), Value(u"old"_s));
    EXPECT_EQ(Get(u"fact"_s), Value(u"default"_s));
}

TEST_F(MainStore, GetKeyStringReadsTextAloneAndKeepsItsBlanks)
{
    Put(u"text"_s, QString(u" a  \0b"_s));
    Put(u"number"_s, 5U);
    Put(u"expandable"_s, OtherKindValue{2, "text"});
    EXPECT_EQ(GetKeyString(hive, User, Key, u"text"_s), u" a  "_s);
    EXPECT_EQ(GetKeyString(hive, User, Key, u"number"_s), u""_s);
    EXPECT_EQ(GetKeyString(hive, User, Key, u"expandable"_s), u""_s);
    EXPECT_EQ(GetKeyString(hive, User, Key, u"missing"_s), u""_s);
}

TEST_F(ApplicationStore, KeepsApplicationSectionAndKeyApart)
{
    SaveApplicationSetting(hive, u"tressel"_s, u"Options"_s, u"Key"_s, u"1"_s);
    SaveApplicationSetting(hive, u"Halven Software\\Tressel"_s, u"Settings"_s, u"Key"_s, u"2"_s);
    SaveApplicationSetting(hive, u"Halven Software"_s, u"Tressel\\Settings"_s, u"Key"_s, u"3"_s);
    SaveApplicationSetting(hive, u"Halven Software%5CTressel"_s, u"Settings"_s, u"Key"_s, u"4"_s);
    EXPECT_EQ(GetApplicationSetting(hive, u"tressel"_s, u"Options"_s, u"Key"_s), u"1"_s);
    EXPECT_EQ(GetApplicationSetting(hive, u"Halven Software\\Tressel"_s, u"Settings"_s, u"Key"_s), u"2"_s);
    EXPECT_EQ(GetApplicationSetting(hive, u"Halven Software"_s, u"Tressel\\Settings"_s, u"Key"_s), u"3"_s);
    EXPECT_EQ(GetApplicationSetting(hive, u"Halven Software%5CTressel"_s, u"Settings"_s, u"Key"_s), u"4"_s);
}

TEST_F(ApplicationStore, DefaultOnlyForWhatIsMissing)
{
    EXPECT_EQ(GetApplicationSetting(hive, u"a"_s, u"s"_s, u"k"_s, u"1"_s), u"1"_s);
    EXPECT_EQ(GetApplicationSetting(hive, u"a"_s, u"s"_s, u"k"_s), u""_s);
    SaveApplicationSetting(hive, u"a"_s, u"s"_s, u"k"_s, QString());
    EXPECT_EQ(GetApplicationSetting(hive, u"a"_s, u"s"_s, u"k"_s, u"1"_s), u""_s);
    SaveApplicationSetting(hive, u"a"_s, u"s"_s, u"k"_s, QString(u"x \0y"_s));
    EXPECT_EQ(GetApplicationSetting(hive, u"A"_s, u"S"_s, u"K"_s, u"1"_s), u"x "_s);
}

TEST_F(OlderKeyStore, MissingIsNullAndEmptyIsOneBlank)
{
    EXPECT_TRUE(LegacyGetValue(hive, u"ReplaceFrom"_s).isNull());
    EXPECT_TRUE(LegacySetValue(hive, u"ReplaceFrom"_s, u""_s));
    EXPECT_EQ(LegacyGetValue(hive, u"ReplaceFrom"_s), u" "_s);
    EXPECT_EQ(hive.Read(User, Older, u"ReplaceFrom"_s), HiveValue(u" "_s));
    EXPECT_TRUE(LegacySetValue(hive, u"ReplaceTo"_s, QString()));
    EXPECT_EQ(LegacyGetValue(hive, u"ReplaceTo"_s), u" "_s);
}

TEST_F(OlderKeyStore, AnEmptyTextThatAnotherStoredIsNotNull)
{
    PutOlder(u"empty"_s, u""_s);
    PutOlder(u"nul"_s, QString(u"\0"_s));
    PutOlder(u"none"_s, OtherKindValue{2, {}});
    for (const QString &name : {u"empty"_s, u"nul"_s, u"none"_s}) {
        EXPECT_TRUE(LegacyGetValue(hive, name).isEmpty());
        EXPECT_FALSE(LegacyGetValue(hive, name).isNull()) << name.toStdString();
    }
}

TEST_F(OlderKeyStore, TextIsCutAtItsFirstNulAndKeepsItsBlanks)
{
    LegacySetValue(hive, u"a"_s, QString(u" x \0y"_s));
    EXPECT_EQ(hive.Read(User, Older, u"a"_s), HiveValue(QString(u" x \0y"_s)));
    EXPECT_EQ(LegacyGetValue(hive, u"a"_s), u" x "_s);
    PutOlder(u"b"_s, OtherKindValue{2, QByteArray("%HOME%\0x", 8)});
    EXPECT_EQ(LegacyGetValue(hive, u"b"_s), u"%HOME%"_s);
}

TEST_F(OlderKeyStore, NumbersComeAsSignedDecimals)
{
    const struct {
        std::uint32_t stored;
        QString read;
    } rows[] = {
        {0, u"0"_s}, {5, u"5"_s}, {256, u"256"_s}, {0x7FFFFFFF, u"2147483647"_s}, {0xFFFFFFFF, u"-1"_s}};
    for (const auto &row : rows) {
        PutOlder(u"n"_s, row.stored);
        EXPECT_EQ(LegacyGetValue(hive, u"n"_s), row.read);
    }
}

TEST_F(OlderKeyStore, AnotherKindIsNull)
{
    PutOlder(u"n"_s, OtherKindValue{3, "abc"});
    EXPECT_TRUE(LegacyGetValue(hive, u"n"_s).isNull());
}

TEST_F(OlderKeyStore, TheBufferHolds1024Bytes)
{
    LegacySetValue(hive, u"fits"_s, QString(1024, u'x'));
    LegacySetValue(hive, u"long"_s, QString(1025, u'x'));
    LegacySetValue(hive, u"wide"_s, QString(513, u'\u00e9'));
    PutOlder(u"expandable"_s, OtherKindValue{2, QByteArray(1025, 'x')});
    EXPECT_EQ(LegacyGetValue(hive, u"fits"_s).size(), 1024);
    EXPECT_TRUE(LegacyGetValue(hive, u"long"_s).isNull());
    EXPECT_TRUE(LegacyGetValue(hive, u"wide"_s).isNull());
    EXPECT_TRUE(LegacyGetValue(hive, u"expandable"_s).isNull());
}

TEST_F(OlderKeyStore, GetOrSetStoresTheDefaultForWhatIsMissingOrEmpty)
{
    EXPECT_EQ(LegacyGetOrSet(hive, u"ReplaceFrom"_s, u"_"_s), u"_"_s);
    EXPECT_EQ(hive.Read(User, Older, u"ReplaceFrom"_s), HiveValue(u"_"_s));
    PutOlder(u"ReplaceFrom"_s, u""_s);
    EXPECT_EQ(LegacyGetOrSet(hive, u"ReplaceFrom"_s, u"-"_s), u"-"_s);
    LegacySetValue(hive, u"ReplaceFrom"_s, u"own"_s);
    EXPECT_EQ(LegacyGetOrSet(hive, u"ReplaceFrom"_s, u"_"_s), u"own"_s);
    EXPECT_EQ(LegacyGetOrSet(hive, u"ReplaceTo"_s, u""_s), u""_s);
    EXPECT_EQ(LegacyGetOrSet(hive, u"ReplaceTo"_s, u""_s), u" "_s);
}

} // namespace
