// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/rename/RenameRules.h"

#include "support/Failures.h"
#include "support/Text.h"

#include <gtest/gtest.h>
#include <tuple>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

constexpr CaseRule upper{LetterCase::Upper};
constexpr CaseRule lower{LetterCase::Lower};
constexpr CaseRule first{LetterCase::Unchanged, true};
constexpr CaseRule words{LetterCase::Unchanged, false, true};

struct CaseRow {
    const char *about;
    CaseRule rule;
    QString name;
    QString newName;
};

const QString oddByte(QChar(char16_t(0xDCE9)));

const QList<CaseRow> caseRows{
    {"nothing asked", {}, u"My Song.MP3"_s, u"My Song.MP3"_s},
    {"the extension is part of the name", upper, u"a b.txt"_s, u"A B.TXT"_s},
    {"lower case", lower, u"A B.TXT"_s, u"a b.txt"_s},
    {"first letter leaves the rest", first, u"my sONG.MP3"_s, u"My sONG.MP3"_s},
    {"first character no letter", first, u".profile"_s, u".profile"_s},
    {"lower case and one capital", {LetterCase::Lower, true}, u"MY SONG.MP3"_s, u"My song.mp3"_s},
    {"every word", words, u"my sONG, live.MP3"_s, u"My Song, Live.mp3"_s},
    {"words override upper case", {LetterCase::Upper, false, true}, u"my song.mp3"_s, u"My Song.mp3"_s},
    {"words override the first letter", {LetterCase::Upper, true, true}, u"my song"_s, u"My Song"_s},
    {"a word starts behind white space alone", words, u"a_b a-b (c) 2nd\ttab\nline"_s,
     u"A_b A-b (c) 2nd\tTab\nLine"_s},
    {"blanks stay", words, u"  a   b "_s, u"  A   B "_s},
    {"sharp s", upper, u"straße.txt"_s, u"STRASSE.TXT"_s},
    {"dotless i", upper, u"kırık"_s, u"KIRIK"_s},
    {"dotless i stays", lower, u"ı"_s, u"ı"_s},
    {"the dot of a capital i", lower, u"İ"_s, u"i\u0307"_s},
    {"sharp s in front has no capital", first, u"ßa"_s, u"ßa"_s},
    {"composed accents", upper, u"été"_s, u"ÉTÉ"_s},
    {"decomposed accents stay decomposed", upper, u"e\u0301te\u0301"_s, u"E\u0301TE\u0301"_s},
    {"decomposed accent in a word", words, u"E\u0301TE\u0301 e\u0301"_s, u"E\u0301te\u0301 E\u0301"_s},
    {"a ligature", upper, u"ﬁn"_s, u"FIN"_s},
    {"sigma at the end of a word, for which a dot counts as within it", lower, u"ΟΔΟΣ ΣΑΣ.TXT"_s,
     u"οδος σασ.txt"_s},
    {"beyond 16 bits", upper, u"\U00010428a"_s, u"\U00010400A"_s},
    {"a byte that is no UTF-8, upper", upper, u"caf"_s + oddByte + u"é"_s, u"CAF"_s + oddByte + u"É"_s},
    {"a byte that is no UTF-8, lower", lower, u"CAF"_s + oddByte + u"É"_s, u"caf"_s + oddByte + u"é"_s},
    {"a byte that is no UTF-8, first", first, oddByte + u"a"_s, oddByte + u"a"_s},
    {"a byte that is no UTF-8, words", words, u"A "_s + oddByte + u"B c"_s, u"A "_s + oddByte + u"b C"_s},
};

TEST(RenameRules, Case)
{
    for (const CaseRow &row : caseRows)
        EXPECT_EQ(CasedName(row.name, row.rule), row.newName) << row.about;
}

TEST(RenameRules, AnEmptyNameHasNoFirstLetter)
{
    EXPECT_EQ(NumberThrownBy([] { CasedName({}, first); }), FailureNumber::InvalidProcedureCall);
    EXPECT_EQ(CasedName({}, words), u""_s);
}

TEST(RenameRules, ExtensionIsWhatStandsBehindTheFirstDot)
{
    const QList<std::pair<QString, QString>> rows{
        {u"a.txt"_s, u"txt"_s},     {u"a.tar.gz"_s, u"tar.gz"_s},
        {u"readme"_s, u"readme"_s}, {u".bashrc"_s, u"bashrc"_s},
        {u"a."_s, u""_s},           {u"a..b"_s, u".b"_s},
    };
    for (const auto &[name, extension] : rows)
        EXPECT_EQ(ExtensionOf(name), extension) << name.toStdString();
}

TEST(RenameRules, ExtensionsCompareWithoutCase)
{
    EXPECT_TRUE(HasExtension(u"a.txt"_s, u"txt"_s));
    EXPECT_TRUE(HasExtension(u"a.TXT"_s, u"txt"_s));
    EXPECT_TRUE(HasExtension(u"a.Txt"_s, u"tXT"_s));
    EXPECT_FALSE(HasExtension(u"a.b.txt"_s, u"txt"_s));
    EXPECT_TRUE(HasExtension(u"TXT"_s, u"txt"_s));
    EXPECT_FALSE(HasExtension(u"readme"_s, u""_s));
    EXPECT_TRUE(HasExtension(u"a.ÉT"_s, u"ét"_s));
    EXPECT_FALSE(HasExtension(u"a."_s + oddByte, u"a."_s + QChar(char16_t(0xDCEA))));
}

TEST(RenameRules, NewExtension)
{
    const QList<std::tuple<QString, QString, QString>> rows{
        {u"a.txt"_s, u"doc"_s, u"a.doc"_s},
        {u"a.b.txt"_s, u"doc"_s, u"a.doc"_s},
        {u"readme"_s, u"txt"_s, u"readme.txt"_s},
        {u".bashrc"_s, u"txt"_s, u".txt"_s},
        {u"a.txt"_s, u"tar.gz"_s, u"a.tar.gz"_s},
        {u"a.txt"_s, u""_s, u"a."_s},
        {u"a"_s + oddByte + u".x"_s, u"y"_s, u"a"_s + oddByte + u".y"_s},
    };
    for (const auto &[name, extension, newName] : rows)
        EXPECT_EQ(WithExtension(name, extension), newName) << name.toStdString();
}

TEST(RenameRules, WhatLeadsToAnExtensionIsTakenOff)
{
    EXPECT_EQ(ReducedExtension(u"txt"_s), u"txt"_s);
    EXPECT_EQ(ReducedExtension(u".txt"_s), u"txt"_s);
    EXPECT_EQ(ReducedExtension(u"*.txt"_s), u"txt"_s);
    EXPECT_EQ(ReducedExtension(u"*.tar.gz"_s), u"tar.gz"_s);
    EXPECT_EQ(ReducedExtension(u"."_s), u""_s);
    EXPECT_EQ(NumberThrownBy([] { ReducedExtension(QString(32768, u'x')); }), FailureNumber::Overflow);
}

TEST(RenameRules, Replace)
{
    const QList<std::tuple<QString, QString, QString, QString>> rows{
        {u"my_song_1.mp3"_s, u"_"_s, u" "_s, u"my song 1.mp3"_s},
        {u"aAa"_s, u"a"_s, u"b"_s, u"bAb"_s},
        {u"A"_s, u"a"_s, u"b"_s, u"A"_s},
        {u"a.b.c"_s, u"."_s, u"-"_s, u"a-b-c"_s},
        {u"abab"_s, u"ab"_s, u""_s, u""_s},
        {u"aaa"_s, u"aa"_s, u"b"_s, u"ba"_s},
        {u"a"_s, u"a"_s, u"aa"_s, u"aa"_s},
        {u"a:b"_s, u":"_s, u"-"_s, u"a-b"_s},
        {u"é"_s, u"e"_s, u"x"_s, u"é"_s},
        {u"e\u0301"_s, u"e"_s, u"x"_s, u"x\u0301"_s},
        {oddByte + u"a"_s, u"a"_s, u"b"_s, oddByte + u"b"_s},
    };
    for (const auto &[name, from, to, newName] : rows)
        EXPECT_EQ(ReplacedName(name, from, to), newName) << name.toStdString();
}

TEST(RenameRules, NineCharactersAreRefused)
{
    for (const QChar character : u"/\\:*?\"<>|"_s) {
        EXPECT_TRUE(HasIllegalCharacter(QString(character)));
        EXPECT_TRUE(HasIllegalCharacter(u"a"_s + character + u"b"_s));
    }
    EXPECT_FALSE(HasIllegalCharacter(u""_s));
    EXPECT_FALSE(HasIllegalCharacter(u"a b.c_d-\t'[]{}"_s));
}

} // namespace
