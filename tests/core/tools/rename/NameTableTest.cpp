// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/rename/NameTable.h"

#include <QStringList>

#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

TEST(NameTable, TheFirstNumberOfANameStays)
{
    NameTable table(3);
    EXPECT_EQ(table.PutOrFind(u"a"_s, 7), 7);
    EXPECT_EQ(table.PutOrFind(u"A"_s, 8), 8);
    EXPECT_EQ(table.PutOrFind(u"a"_s, 9), 7);
    EXPECT_EQ(table.PutOrFind(u""_s, 0), 0);
    EXPECT_EQ(table.Find(u"a"_s), 7);
    EXPECT_EQ(table.Find(u"A"_s), 8);
    EXPECT_EQ(table.Find(u""_s), 0);
    EXPECT_EQ(table.Find(u"b"_s), -1);
}

TEST(NameTable, OneForNoNamesFindsNone)
{
    EXPECT_EQ(NameTable().Find(u"a"_s), -1);
}

TEST(NameTable, ManyNamesAreAllFound)
{
    QStringList names;
    for (int number = 0; number < 5000; ++number)
        names += QString::number(number);
    NameTable table(names.size());
    for (qsizetype index = 0; index < names.size(); ++index)
        ASSERT_EQ(table.PutOrFind(names.at(index), index), index);
    for (qsizetype index = 0; index < names.size(); ++index)
        ASSERT_EQ(table.Find(names.at(index)), index);
    EXPECT_EQ(table.Find(u"5000"_s), -1);
}

} // namespace
