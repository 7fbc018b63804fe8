// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "support/Failures.h"
#include "support/Text.h"
#include "tools/database/DelimitedList.h"
#include "tools/database/FieldSelections.h"
#include "tools/database/FieldTypes.h"
#include "tools/database/ValueText.h"

#include <QDate>

#include <array>
#include <gtest/gtest.h>
#include <limits>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

TEST(FieldTypeOf, HasANameAndAKindForEachType)
{
    struct Row {
        std::int16_t type;
        const char *name;
        int kind;
        int size = 0;
    };
    const std::array<Row, 26> rows{{
        {1, "Y/N", 3},         {2, "Int", 1},       {3, "IntLong", 1},     {4, "Single", 1},
        {5, "Double", 1},      {6, "Currency", 2},  {7, "DateTime", 4},    {8, "Unicode", 0},
        {9, "IDesp", 1},       {10, "ErrCode", 1},  {11, "Boolean", 3},    {12, "Variant", 0},
        {16, "IntSmall", 1},   {17, "IntSmall", 1}, {20, "IntLong", 1},    {129, "Text", 0},
        {133, "DateTime", 4},  {134, "Time", 4},    {135, "DateStamp", 4}, {200, "Text", 0},
        {201, "Memo", 0, 256}, {202, "Text", 0},    {203, "Memo", 0, 256}, {0, "???", 0},
        {72, "???", 0},        {131, "???", 0},
    }};
    for (const Row &row : rows) {
        const FieldType type = FieldTypeOf(row.type);
        EXPECT_EQ(type.name, QString::fromLatin1(row.name)) << row.type;
        EXPECT_EQ(static_cast<int>(type.kind), row.kind) << row.type;
        EXPECT_EQ(type.forcedSize, row.size) << row.type;
    }
}

TEST(FieldSelections, BecomeTextAndComeBack)
{
    FieldSelections grid;
    grid.Set(0, 1, false);
    grid.Set(5, 255, false);
    QString text;
    grid.LoadSaveSelects(text, true);
    ASSERT_EQ(text.size(), 1536);
    EXPECT_EQ(text.count(u'0'), 2);
    EXPECT_EQ(text.at(1), u'0');
    EXPECT_EQ(text.at(1535), u'0');
    FieldSelections other;
    text[2] = u'x';
    other.LoadSaveSelects(text, false);
    EXPECT_FALSE(other.At(0, 1));
    EXPECT_TRUE(other.At(0, 2));
    EXPECT_FALSE(other.At(5, 255));
    text.chop(1);
    other.LoadSaveSelects(text, false);
    EXPECT_TRUE(other.At(0, 1));
}

TEST(FieldSelections, FailOutsideTheGrid)
{
    FieldSelections grid;
    for (const auto &[row, column] :
         {std::pair(6, 0), std::pair(0, 256), std::pair(-1, 0), std::pair(0, -1)}) {
        EXPECT_EQ(NumberThrownBy([&, r = row, c = column] { grid.Set(r, c, true); }),
                  FailureNumber::SubscriptOutOfRange);
    }
}

TEST(UpdateDelimitedList, PutsTheItemFirst)
{
    EXPECT_EQ(UpdateDelimitedList(u""_s, u"a"_s, u","_s, 3, false), u"a"_s);
    EXPECT_EQ(UpdateDelimitedList(u"a"_s, u"b"_s, u","_s, 3, false), u"b,a"_s);
    EXPECT_EQ(UpdateDelimitedList(u"a,b,c"_s, u"d"_s, u","_s, 3, false), u"d,a,b"_s);
    EXPECT_EQ(UpdateDelimitedList(u"a,b,c"_s, u"c"_s, u","_s, 3, false), u"c,a,b"_s);
    EXPECT_EQ(UpdateDelimitedList(u"a,b,c"_s, u"a"_s, u","_s, 3, false), u"a,b,c"_s);
    EXPECT_EQ(UpdateDelimitedList(u"a,b,c"_s, u""_s, u","_s, 3, false), u"a,b,c"_s);
    EXPECT_EQ(UpdateDelimitedList(u"a;b"_s, u"b"_s, u";"_s, 1, false), u"a"_s);
}

TEST(UpdateDelimitedList, TakesTheItemOut)
{
    EXPECT_EQ(UpdateDelimitedList(u"a,b,c"_s, u"b"_s, u","_s, 3, true), u"a,c"_s);
    EXPECT_EQ(UpdateDelimitedList(u"a"_s, u"a"_s, u","_s, 3, true), u""_s);
    EXPECT_TRUE(ItemExists(u"a,b"_s, u"b"_s, u","_s));
    EXPECT_FALSE(ItemExists(u"ab"_s, u"b"_s, u","_s));
    EXPECT_EQ(DeleteListItem(u"a,b,a"_s, u"a"_s, u","_s), u"b"_s);
}

QString In(const QLocale &locale, const DatabaseValue &value)
{
    return ValueWriter(locale).Text(value);
}
QString InC(const DatabaseValue &value)
{
    return In(QLocale::c(), value);
}
QString InGerman(const DatabaseValue &value)
{
    return In(QLocale(u"de_DE"_s), value);
}

TEST(ValueWriter, WritesNumbersInTheirShortestForm)
{
    EXPECT_EQ(InC(std::int64_t{-2147483648}), u"-2147483648"_s);
    EXPECT_EQ(InC(0.1), u"0.1"_s);
    EXPECT_EQ(InGerman(0.1), u"0,1"_s);
    EXPECT_EQ(InC(0.1F), u"0.1"_s);
    EXPECT_EQ(InC(-2.5), u"-2.5"_s);
    EXPECT_EQ(InC(-0.0), u"0"_s);
    EXPECT_EQ(InC(1234567.0), u"1234567"_s);
    EXPECT_EQ(InC(120.0), u"120"_s);
    EXPECT_EQ(InC(1e14), u"100000000000000"_s);
    EXPECT_EQ(InC(1e15), u"1E+15"_s);
    EXPECT_EQ(InC(1.5e20), u"1.5E+20"_s);
    EXPECT_EQ(InGerman(1.5e20), u"1,5E+20"_s);
    EXPECT_EQ(InC(0.0001), u"0.0001"_s);
    EXPECT_EQ(InC(0.00001), u"1E-05"_s);
    EXPECT_EQ(InC(-1.25e-300), u"-1.25E-300"_s);
    EXPECT_EQ(InC(1.0 / 3), u"0.3333333333333333"_s);
    EXPECT_EQ(InC(std::numeric_limits<double>::infinity()), u"inf"_s);
}

TEST(ValueWriter, WritesMoneyAndDecimalsWithoutNeedlessZeros)
{
    EXPECT_EQ(InC(MoneyValue{125000}), u"12.5"_s);
    EXPECT_EQ(InGerman(MoneyValue{125000}), u"12,5"_s);
    EXPECT_EQ(InC(MoneyValue{120000}), u"12"_s);
    EXPECT_EQ(InC(MoneyValue{-1}), u"-0.0001"_s);
    EXPECT_EQ(InC(MoneyValue{0}), u"0"_s);
    EXPECT_EQ(InC(MoneyValue{std::numeric_limits<std::int64_t>::min()}), u"-922337203685477.5808"_s);
    EXPECT_EQ(InC(DecimalValue{true, 2, "12345"}), u"-123.45"_s);
    EXPECT_EQ(InGerman(DecimalValue{false, 4, "5"}), u"0,0005"_s);
    EXPECT_EQ(InC(DecimalValue{false, 2, "1500"}), u"15"_s);
    EXPECT_EQ(InC(DecimalValue{true, 0, "0"}), u"0"_s);
}

TEST(ValueWriter, WritesYesAndNoAndText)
{
    EXPECT_EQ(InGerman(true), u"True"_s);
    EXPECT_EQ(InGerman(false), u"False"_s);
    EXPECT_EQ(InC(u" as it is \n"_s), u" as it is \n"_s);
}

TEST(ValueWriter, WritesDatesInTheLocalesShortForm)
{
    EXPECT_EQ(InGerman(DateValue{38077}), u"31.03.2004"_s);
    EXPECT_EQ(InGerman(DateValue{38077.5}), u"31.03.2004 12:00:00"_s);
    EXPECT_EQ(InC(DateValue{38077}), u"31 Mar 2004"_s);
    EXPECT_EQ(InC(DateValue{38077 + 0.25 + 1.0 / 86400}), u"31 Mar 2004 06:00:01"_s);
    EXPECT_EQ(In(QLocale(u"en_US"_s), DateValue{38077.75}), u"3/31/2004 6:00:00 PM"_s);
    // The time alone on the day from which dates count.
    EXPECT_EQ(InGerman(DateValue{0.5}), u"12:00:00"_s);
    EXPECT_EQ(InGerman(DateValue{0}), u"00:00:00"_s);
    // Before it the fraction still counts onwards.
    EXPECT_EQ(InGerman(DateValue{-1.25}), u"29.12.1899 06:00:00"_s);
    EXPECT_EQ(InGerman(DateValue{-463126}), u"01.01.0632"_s);
    EXPECT_EQ(InGerman(DateValue{2958465}), u"31.12.9999"_s);
    // Rounded to the second, which may be the next day's first.
    EXPECT_EQ(InGerman(DateValue{38077.999999}), u"01.04.2004"_s);
    for (const double days : {2958466.0, -700000.0, std::numeric_limits<double>::quiet_NaN()})
        EXPECT_EQ(NumberThrownBy([&] { InC(DateValue{days}); }), FailureNumber::TypeMismatch);
}

TEST(ValueWriter, WritesTheSameDayTheSameHoweverManyOthersCameBetween)
{
    const ValueWriter plain = ValueWriter::Plain();
    const QDate first(1899, 12, 30);
    for (int day = 1; day < 21000; ++day) {
        ASSERT_EQ(plain.Text(DateValue{1.0 * day}), first.addDays(day).toString(Qt::ISODate));
        ASSERT_EQ(plain.Text(DateValue{38077.25}), u"2004-03-31 06:00:00"_s);
    }
}

TEST(ValueWriter, WritesAGuidWithAllItsDashes)
{
    const QByteArray bytes = QByteArray::fromHex("33221100554477668899aabbccddeeff");
    EXPECT_EQ(InC(GuidValue{bytes}), u"{00112233-4455-6677-8899-AABBCCDDEEFF}"_s);
}

TEST(ValueWriter, FailsForWhatIsNoText)
{
    EXPECT_EQ(NumberThrownBy([] { InC(std::monostate()); }), InvalidUseOfNull);
    EXPECT_EQ(NumberThrownBy([] { InC(BinaryValue()); }), FailureNumber::TypeMismatch);
}

TEST(ValueWriter, HasAPlainForm)
{
    const ValueWriter plain = ValueWriter::Plain();
    EXPECT_EQ(plain.Text(0.5), u"0.5"_s);
    EXPECT_EQ(plain.Text(DateValue{38077}), u"2004-03-31"_s);
    EXPECT_EQ(plain.Text(DateValue{38077.75}), u"2004-03-31 18:00:00"_s);
    EXPECT_EQ(plain.Text(DateValue{0.75}), u"18:00:00"_s);
}

} // namespace
