// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/splitter/SplitRules.h"

#include "base/Numbers.h"
#include "support/Failures.h"
#include "support/Text.h"

#include <QLocale>

#include <gtest/gtest.h>
#include <limits>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

TEST(SplitRules, PathsFallApartAtTheLastSeparator)
{
    EXPECT_EQ(GetPathPart(u"C:\\a\\b.bin"_s, u'\\'), u"C:\\a\\"_s);
    EXPECT_EQ(GetFilePart(u"C:\\a\\b.bin"_s, u'\\'), u"b.bin"_s);
    EXPECT_EQ(GetPathPart(u"b.bin"_s, u'\\'), QString());
    EXPECT_EQ(GetFilePart(u"b.bin"_s, u'\\'), u"b.bin"_s);
    EXPECT_EQ(GetPathPart(u"/home/a\\b"_s, u'/'), u"/home/"_s);
    EXPECT_EQ(GetFilePart(u"/home/a\\b"_s, u'/'), u"a\\b"_s);
    EXPECT_EQ(GetFilePart(u"/home/"_s, u'/'), QString());
}

TEST(SplitRules, NamesStandBehindTheWholeName)
{
    EXPECT_EQ(PartName(u"movie.avi"_s, 1), u"movie.avi.1"_s);
    EXPECT_EQ(PartName(u"movie.avi"_s, 120), u"movie.avi.120"_s);
    EXPECT_EQ(BatchName(u"movie.avi"_s), u"movie.avi.bat"_s);
}

TEST(SplitRules, PartNumbersAreReadBackInTheirOwnFormAlone)
{
    EXPECT_EQ(PartNumberOf(u"a.b"_s, u"a.b.12"_s), 12);
    for (const QString &other : {u"a.b.0"_s, u"a.b.01"_s, u"a.b.+1"_s, u"a.b.-1"_s, u"a.b. 1"_s, u"a.b."_s,
                                 u"a.b"_s, u"a.b.1x"_s, u"a.bat.1"_s, u"A.b.1"_s, u"a.b.bat"_s})
        EXPECT_EQ(PartNumberOf(u"a.b"_s, other), 0) << other.toStdString();
}

struct CountRow {
    qint64 length;
    qint64 chunk;
    qint64 parts;
};

TEST(SplitRules, PartsAreTheQuotientRoundedUp)
{
    constexpr CountRow rows[]{{0, 1024, 0},
                              {1, 1024, 1},
                              {1023, 1024, 1},
                              {1024, 1024, 1},
                              {1025, 1024, 2},
                              {2560, 1024, 3},
                              {10, 3, 4},
                              {3584, 1024, 4},
                              {100, -30, -3},
                              {-100, 30, -3},
                              {-100, -30, 4},
                              {90, -30, -3},
                              {6442450944, 1, 6442450944}};
    for (const CountRow &row : rows)
        EXPECT_EQ(PartsOf(row.length, row.chunk), row.parts) << row.length << " / " << row.chunk;
    EXPECT_EQ(NumberThrownBy([] { PartsOf(5, 0); }), FailureNumber::DivisionByZero);
}

TEST(SplitRules, PlannedPartsGoThroughSixteenBits)
{
    EXPECT_EQ(PlannedParts(32767 * 1024, 1024), 32767);
    EXPECT_EQ(NumberThrownBy([] { PlannedParts(32767 * 1024 + 1, 1024); }), FailureNumber::Overflow);
    EXPECT_EQ(NumberThrownBy([] { PlannedParts(1, 0); }), FailureNumber::DivisionByZero);
}

TEST(SplitRules, ChunksAreRoundedToTheNearestAndHalvesToEven)
{
    constexpr CountRow rows[]{
        {10, 3, 3},  {11, 3, 4},  {5, 2, 2},    {7, 2, 4},    {1, 2, 0},
        {3, 2, 2},   {0, 5, 0},   {1, 3, 0},    {2, 3, 1},    {-5, 2, -2},
        {-7, 2, -4}, {7, -2, -4}, {-11, 3, -4}, {-10, 3, -3}, {2147483647, 1, 2147483647}};
    for (const CountRow &row : rows)
        EXPECT_EQ(ChunkOf(row.length, row.chunk), row.parts) << row.length << " / " << row.chunk;
    EXPECT_EQ(NumberThrownBy([] { ChunkOf(5, 0); }), FailureNumber::DivisionByZero);
}

TEST(SplitRules, TenBytesInThreePartsGiveFour)
{
    const std::int32_t chunk = ChunkOfCount(10, u"3"_s);
    EXPECT_EQ(chunk, 3);
    EXPECT_EQ(PlannedParts(10, chunk), 4);
}

TEST(SplitRules, ExactChunksGiveThatManyPartsAndNoneEmpty)
{
    for (qint64 length = 1; length <= 60; ++length) {
        for (qint64 count = 1; count <= length; ++count) {
            const qint64 chunk = ExactChunkOf(length, count);
            const qint64 last = length - (count - 1) * chunk;
            EXPECT_GT(chunk, 0) << length << " in " << count;
            EXPECT_GT(last, 0) << length << " in " << count;
            if (PartsOf(length, ChunkOf(length, count)) == count) {
                EXPECT_EQ(chunk, ChunkOf(length, count)) << length << " in " << count;
            }
        }
    }
    EXPECT_EQ(ExactChunkOf(10, 3), 3);
    EXPECT_EQ(ExactChunkOf(6, 4), 1);
    EXPECT_EQ(ExactChunkOf(11, 3), 4);
}

TEST(SplitRules, PartsOfACutFitEachOther)
{
    for (qint64 length = 1; length <= 40; ++length) {
        for (qint64 count = 1; count <= length; ++count) {
            const qint64 chunk = ExactChunkOf(length, count);
            QList<qint64> lengths(count - 1, chunk);
            lengths += length - (count - 1) * chunk;
            EXPECT_EQ(FirstUnfitPart(lengths), 0) << length << " in " << count;
        }
    }
    for (const QList<qint64> &lengths :
         {QList<qint64>{}, {0}, {5}, {5, 5, 1}, {5, 5, 5}, {3, 3, 2, 2}, {3, 2, 2, 2}, {2, 2, 2, 4}})
        EXPECT_EQ(FirstUnfitPart(lengths), 0) << lengths.size();
}

TEST(SplitRules, APartOfAnotherSizeIsFound)
{
    EXPECT_EQ(FirstUnfitPart({5, 3, 5, 2}), 2);
    EXPECT_EQ(FirstUnfitPart({5, 5, 4, 2}), 3);
    EXPECT_EQ(FirstUnfitPart({5, 5, 8}), 3);
    EXPECT_EQ(FirstUnfitPart({5, 5, 0}), 3);
    EXPECT_EQ(FirstUnfitPart({3, 2, 3, 2}), 2);
    EXPECT_EQ(FirstUnfitPart({0, 5}), 2);
    EXPECT_EQ(FirstUnfitPart({0, 0}), 2);
}

TEST(SplitRules, TypedSizesAreKilobytesInThirtyTwoBits)
{
    EXPECT_EQ(ChunkOfSize(u"1440"_s), 1440 * 1024);
    EXPECT_EQ(ChunkOfSize(u" 5 "_s), 5120);
    EXPECT_EQ(ChunkOfSize(u"2.5"_s), 2048);
    EXPECT_EQ(ChunkOfSize(u"-1"_s), -1024);
    EXPECT_EQ(ChunkOfSize(u"0"_s), 0);
    EXPECT_EQ(ChunkOfSize(u"2097151"_s), 2097151 * 1024);
    EXPECT_EQ(NumberThrownBy([] { ChunkOfSize(u"2097152"_s); }), FailureNumber::Overflow);
    EXPECT_EQ(NumberThrownBy([] { ChunkOfSize(u"3000000000"_s); }), FailureNumber::Overflow);
    EXPECT_EQ(NumberThrownBy([] { ChunkOfSize(u"big"_s); }), FailureNumber::TypeMismatch);
}

TEST(SplitRules, TypedCountsAreWholeNumbers)
{
    EXPECT_EQ(ChunkOfCount(100, u"2.5"_s), 50);
    EXPECT_EQ(ChunkOfCount(100, u"3.5"_s), 25);
    EXPECT_EQ(ChunkOfCount(100, u"-3"_s), -33);
    EXPECT_EQ(NumberThrownBy([] { ChunkOfCount(100, u"0"_s); }), FailureNumber::DivisionByZero);
    EXPECT_EQ(NumberThrownBy([] { ChunkOfCount(100, u"0.5"_s); }), FailureNumber::DivisionByZero);
    EXPECT_EQ(NumberThrownBy([] { ChunkOfCount(100, u"9999999999"_s); }), FailureNumber::Overflow);
}

TEST(SplitRules, LengthsBeyondThirtyTwoBitsAreNegative)
{
    constexpr qint64 gigabyte = 1LL << 30;
    EXPECT_EQ(Length32(0), 0);
    EXPECT_EQ(Length32(2 * gigabyte - 1), std::numeric_limits<std::int32_t>::max());
    EXPECT_EQ(Length32(2 * gigabyte), std::numeric_limits<std::int32_t>::min());
    for (const qint64 length : {3 * gigabyte, 4 * gigabyte, 5 * gigabyte + 7, 1LL << 40})
        EXPECT_LT(Length32(length), 0) << length;
}

TEST(SplitRules, NumbersAreWhatAPersonTypesForOne)
{
    for (const QString &number : {u"1"_s, u" 1440 "_s, u"-3"_s, u"2.5"_s, u"1e3"_s, u"&H10"_s, u"001"_s})
        EXPECT_TRUE(IsNumeric(number)) << number.toStdString();
    for (const QString &other : {u""_s, u" "_s, u"abc"_s, u"1x"_s, u"True"_s, u"false"_s, u"1 2"_s, u"&H"_s})
        EXPECT_FALSE(IsNumeric(other)) << other.toStdString();
}

TEST(SplitRules, PartSizesAreShownInBothUnits)
{
    EXPECT_EQ(PartSizeText(3 << 20, 2), u"1.5 MB (1536. kB)"_s);
    EXPECT_EQ(PartSizeText(1 << 20, 1), u"1. MB (1024. kB)"_s);
    EXPECT_EQ(PartSizeText(1000, 2), u". MB (.49 kB)"_s);
    EXPECT_EQ(PartSizeText(0, 2), u". MB (. kB)"_s);
    EXPECT_EQ(PartSizeText(1024, 3), u". MB (.33 kB)"_s);
    EXPECT_EQ(NumberThrownBy([] { PartSizeText(1, 0); }), FailureNumber::DivisionByZero);
}

TEST(SplitRules, SecondsHaveTwoDecimalsAndNoLeadingZero)
{
    EXPECT_EQ(SecondsText(0), u".00"_s);
    EXPECT_EQ(SecondsText(0.254), u".25"_s);
    EXPECT_EQ(SecondsText(12), u"12.00"_s);
    EXPECT_EQ(SecondsText(-86399.5), u"-86399.50"_s);
}

TEST(SplitRules, SecondsOfTheDayKnowNoDate)
{
    EXPECT_DOUBLE_EQ(GetSecondsToday(QDateTime(QDate(2004, 3, 31), QTime(1, 2, 3, 45))), 3723.045);
    EXPECT_DOUBLE_EQ(GetSecondsToday(QDateTime(QDate(2004, 4, 1), QTime(0, 0))), 0);
}

TEST(SplitRules, DateAndTimeTakeTheUsersForm)
{
    const QDateTime noon(QDate(2004, 3, 31), QTime(12, 5, 9));
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    EXPECT_EQ(DateTimeText(noon), u"31.03.04 12:05:09"_s);
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    EXPECT_EQ(DateTimeText(noon), u"3/31/04 12:05:09 PM"_s);
    QLocale::setDefault(before);
}

struct BatchRow {
    qint64 parts;
    bool deletes;
    QStringList middle;
};

TEST(SplitRules, BatchLinesToTheLetter)
{
    const BatchRow rows[]{
        {0, false, {u"COPY \"a b.avi.1\" \"a b.avi\""_s}},
        {1, false, {u"COPY \"a b.avi.1\" \"a b.avi\""_s}},
        {2, false, {u"COPY \"a b.avi.1\" \"a b.avi\""_s, u"COPY /B \"a b.avi\"+\"a b.avi.2\""_s}},
        {4,
         false,
         {u"COPY \"a b.avi.1\" \"a b.avi\""_s,
          u"COPY /B \"a b.avi\"+\"a b.avi.2\"+\"a b.avi.3\"+\"a b.avi.4\""_s}},
        {0, true, {u"REN \"a b.avi.1\" \"a b.avi\""_s, u"DEL \"a b.avi.bat\""_s}},
        {1, true, {u"REN \"a b.avi.1\" \"a b.avi\""_s, u"DEL \"a b.avi.bat\""_s}},
        {3,
         true,
         {u"COPY /B \"a b.avi.1\"+\"a b.avi.2\"+\"a b.avi.3\""_s, u"DEL \"a b.avi.2\""_s,
          u"DEL \"a b.avi.3\""_s, u"REN \"a b.avi.1\" \"a b.avi\""_s, u"DEL \"a b.avi.bat\""_s}},
    };
    const QStringList head{u"@ECHO OFF"_s, u"ECHO Joining Files..."_s,
                           u"IF EXIST \"a b.avi\" DEL \"a b.avi\""_s};
    for (const BatchRow &row : rows)
        EXPECT_EQ(JoinBatchLines(u"a b.avi"_s, row.parts, row.deletes),
                  head + row.middle + QStringList{u"ECHO Done!"_s})
            << row.parts;
}

} // namespace
