// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "base/Pictures.h"

#include "support/Text.h"
#include "support/UserLocale.h"

#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

TEST(Pictures, PercentHasTwoDecimals)
{
    const UserLocale locale(QLocale::c());
    EXPECT_EQ(FormatPercent(0), u"0.00%"_s);
    EXPECT_EQ(FormatPercent(1.0 / 3), u"33.33%"_s);
    EXPECT_EQ(FormatPercent(2.0 / 3), u"66.67%"_s);
    EXPECT_EQ(FormatPercent(1), u"100.00%"_s);
}

TEST(Pictures, PercentIsWrittenAsTheUserWritesNumbers)
{
    const UserLocale locale(QLocale(QLocale::German, QLocale::Germany));
    EXPECT_EQ(FormatPercent(0.125), u"12,50%"_s);
}

} // namespace
