// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "base/Numbers.h"

#include "base/Failure.h"
#include "support/Text.h"

#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

FailureNumber NumberThrownBy(const std::function<void()> &step)
{
    try {
        step();
    } catch (const Failure &failure) {
        return failure.number;
    }
    return FailureNumber{0};
}

TEST(Numbers, RoundHalfToEven)
{
    EXPECT_EQ(ToInt16(0.5), 0);
    EXPECT_EQ(ToInt16(1.5), 2);
    EXPECT_EQ(ToInt16(2.5), 2);
    EXPECT_EQ(ToInt32(-1.5), -2);
}

TEST(Numbers, BeyondTheirBitsOverflow)
{
    EXPECT_EQ(ToInt16(32767), 32767);
    EXPECT_EQ(NumberThrownBy([] { ToInt16(32768); }), FailureNumber::Overflow);
    EXPECT_EQ(NumberThrownBy([] { ToInt32(2147483648.0); }), FailureNumber::Overflow);
}

TEST(Numbers, TextThatIsNoNumberIsATypeMismatch)
{
    for (const QString &text : {u""_s, u"abc"_s, u"1 2"_s, u"&HZ"_s})
        EXPECT_EQ(NumberThrownBy([&] { ToInt32(text); }), FailureNumber::TypeMismatch) << text.toStdString();
    EXPECT_EQ(ToInt32(u" 12 "_s), 12);
    EXPECT_EQ(ToInt32(u"&HFFFF"_s), -1);
    EXPECT_TRUE(ToBoolean(u"true"_s));
    EXPECT_FALSE(ToBoolean(u"False"_s));
}

} // namespace
