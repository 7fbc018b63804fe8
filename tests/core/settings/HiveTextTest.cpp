// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "settings/HiveText.h"

#include "support/Text.h"

#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

const QString Key = u"Software\\Some Maker"_s;

HiveTree TreeWith(const QString &name, const HiveValue &value)
{
    HiveTree tree;
    tree.Write(Key, name, value);
    return tree;
}

void ExpectRoundTrip(const HiveTree &tree)
{
    const HiveReading reading = HiveFromText(HiveToText(tree));
    EXPECT_FALSE(reading.isDamaged) << HiveToText(tree).toStdString();
    EXPECT_TRUE(reading.tree == tree) << HiveToText(tree).toStdString();
}

TEST(HiveText, LooksAsTold)
{
    HiveTree tree = TreeWith(u"text"_s, u"C:\\a \"b\"\n"_s);
    tree.Write(Key, u"number"_s, 30U);
    tree.Write(Key, u"other"_s, OtherKindValue{3, QByteArray("\0\xff", 2)});
    EXPECT_EQ(HiveToText(tree),
              "; Settings of Tressel. Written anew whenever a setting changes.\n"
              "\n"
              "[Software\\Some Maker]\n"
              "\"number\"=dword:0000001e\n"
              "\"other\"=hex(3):00,ff\n"
              "\"text\"=\"C:\\\\a \\\"b\\\"\\n\"\n");
}

TEST(HiveText, EveryCharacterComesBackInNamesTextsAndKeys)
{
    for (char32_t character = 0; character <= 0xFFFF; ++character) {
        const QString text = u"a"_s + QChar(static_cast<char16_t>(character)) + u"b"_s;
        HiveTree tree = TreeWith(text, text);
        tree.Write(text, text, text);
        const HiveReading reading = HiveFromText(HiveToText(tree));
        ASSERT_FALSE(reading.isDamaged) << static_cast<std::uint32_t>(character);
        ASSERT_TRUE(reading.tree == tree) << static_cast<std::uint32_t>(character);
    }
}

TEST(HiveText, OddTextsComeBack)
{
    const QString high(QChar(u'\xD83D'));
    const QString low(QChar(u'\xDE00'));
    const QString texts[] = {
        u""_s,
        u"\""_s,
        u"\\"_s,
        u"\\\""_s,
        u"\\n"_s,
        u"a\r\nb\tc"_s,
        QString(u"\0"_s),
        u"\\u0041"_s,
        u"  "_s,
        u"]"_s,
        u"[a]"_s,
        u";"_s,
        u"=\"="_s,
        high,
        low,
        high + low,
        low + high,
        high + high + low,
        high + low + low,
        u"\ufeff"_s,
        QString(100000, u'x'),
    };
    for (const QString &text : texts)
        ExpectRoundTrip(TreeWith(text, text));
}

TEST(HiveText, OddKeysComeBack)
{
    const QString keys[] = {
        u"a"_s,        u"a\\b]"_s, u"[a]"_s, u"\"a\""_s, u"a\nb\\c\u0001\\\u0002"_s,
        u"a\\u0041"_s, u" a "_s,   u";a"_s,  u""_s,
    };
    for (const QString &key : keys) {
        HiveTree tree;
        tree.Write(key, u"n"_s, 1U);
        if (!key.isEmpty())
            ExpectRoundTrip(tree);
    }
    HiveTree keyAlone;
    keyAlone.MakeKey(u"a\\b"_s);
    ExpectRoundTrip(keyAlone);
    ExpectRoundTrip(HiveTree());
}

TEST(HiveText, NumbersAndOtherKindsComeBack)
{
    for (const std::uint32_t number : {0U, 1U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU})
        ExpectRoundTrip(TreeWith(u"n"_s, number));
    QByteArray every;
    for (int byte = 0; byte < 256; ++byte)
        every += static_cast<char>(byte);
    for (const std::uint32_t kind : {0U, 1U, 2U, 3U, 4U, 11U, 0xFFFFFFFFU}) {
        ExpectRoundTrip(TreeWith(u"o"_s, OtherKindValue{kind, every}));
        ExpectRoundTrip(TreeWith(u"o"_s, OtherKindValue{kind, {}}));
    }
}

TEST(HiveText, WhatAnEditorLeavesIsNoDamage)
{
    const HiveReading reading =
        HiveFromText("\xEF\xBB\xBF# mine\r\n\r\n  \r\n[A]\r\n\"n\"=\"t\"\r\n; end\r\n\"m\"=dword:0000000A");
    EXPECT_FALSE(reading.isDamaged);
    EXPECT_EQ(reading.tree.Read(u"a"_s, u"N"_s), HiveValue(u"t"_s));
    EXPECT_EQ(reading.tree.Read(u"a"_s, u"M"_s), HiveValue(10U));
}

TEST(HiveText, DamagedLinesAreToldAndTheOthersTaken)
{
    const QByteArray damaged[] = {
        "\"x\"=\"open",
        "\"x\"=\"bad \\q escape\"",
        "\"x\"=\"bad \\u12 escape\"",
        "\"x\"=\"ends in \\",
        "\"x\"=\"t\" and more",
        "\"x\"=dword:12",
        "\"x\"=dword:0000000g",
        "\"x\"=dword:0000000011",
        "\"x\"=dword:+0000001",
        "\"x\"=qword:0000000000000001",
        "\"x\"=hex(3):0",
        "\"x\"=hex(3):00,",
        "\"x\"=hex(3):,00",
        "\"x\"=hex(3):0001",
        "\"x\"=hex():00",
        "\"x\"=hex(3",
        "\"x\"=hex(123456789):00",
        "\"x\"=",
        "\"x\"",
        "x=\"t\"",
        "<<<<<<< mine",
        "\"x\"=\"\xff\"",
        "\"x\"=\"\xed\xa0\x80\"",
        "\"x\"=\"\xe2\x82\"",
        QByteArray("\0\0\0\0", 4),
    };
    for (const QByteArray &line : damaged) {
        SCOPED_TRACE(line.toStdString());
        const HiveReading reading =
            HiveFromText("[A]\n\"before\"=\"1\"\n" + line + "\n\"after\"=dword:00000002\n");
        EXPECT_TRUE(reading.isDamaged);
        EXPECT_EQ(reading.tree.Read(u"A"_s, u"before"_s), HiveValue(u"1"_s));
        EXPECT_EQ(reading.tree.Read(u"A"_s, u"after"_s), HiveValue(2U));
        EXPECT_FALSE(reading.tree.Read(u"A"_s, u"x"_s));
    }
}

TEST(HiveText, NothingGoesToAKeyItMayNotBelongTo)
{
    for (const QByteArray line : {"[B", "[]", "[\"B]", "[\"B\"x]", "[\"\\q\"]"}) {
        SCOPED_TRACE(line.toStdString());
        const HiveReading reading = HiveFromText("[A]\n" + line + "\n\"n\"=\"1\"\n[C]\n\"n\"=\"2\"\n");
        EXPECT_TRUE(reading.isDamaged);
        EXPECT_FALSE(reading.tree.Read(u"A"_s, u"n"_s));
        EXPECT_EQ(reading.tree.Read(u"C"_s, u"n"_s), HiveValue(u"2"_s));
    }
    EXPECT_TRUE(HiveFromText("\"n\"=\"1\"\n").isDamaged);
}

TEST(HiveText, CutAnywhereItIsToldOrHoldsWhatItStillHolds)
{
    HiveTree tree = TreeWith(u"text"_s, u"C:\\a \"b\"\n\u20ac"_s);
    tree.Write(Key, u"number"_s, 30U);
    const QByteArray whole = HiveToText(tree);
    for (qsizetype length = 0; length < whole.size(); ++length) {
        const HiveReading reading = HiveFromText(whole.left(length));
        for (const auto &[key, values] : reading.tree.AllKeys()) {
            for (const auto &[name, value] : values)
                EXPECT_EQ(tree.Read(key, name), value) << length;
        }
    }
}

TEST(HiveTree, KeysCompareWithoutCaseAndWithoutEmptyLevels)
{
    HiveTree tree;
    tree.Write(u"A\\B C\\D"_s, u"n"_s, 1U);
    EXPECT_EQ(tree.Read(u"\\a\\b c\\\\d\\"_s, u"N"_s), HiveValue(1U));
    EXPECT_FALSE(tree.Read(u"A\\B C"_s, u"n"_s));
    EXPECT_FALSE(tree.Read(u"A\\B C\\D\\E"_s, u"n"_s));
}

} // namespace
