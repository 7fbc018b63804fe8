// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "controls/Timer.h"

#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

class TimerTest : public testing::Test {
protected:
    TimerTest()
    {
        timer.Tick.Handle([this] { ++ticks; });
    }

    Form form{u"form"_s};
    Timer timer{form, u"Timer1"_s, 100};
    int ticks = 0;
};

TEST_F(TimerTest, TicksWhenItsTimeHasPassed)
{
    timer.Elapse();
    timer.Elapse();
    EXPECT_EQ(ticks, 2);
}

TEST_F(TimerTest, RestsWhileDisabled)
{
    timer.SetEnabled(false);
    timer.Elapse();
    EXPECT_EQ(ticks, 0);
}

TEST_F(TimerTest, RestsWithoutAnInterval)
{
    timer.SetInterval(0);
    timer.Elapse();
    EXPECT_EQ(ticks, 0);
    timer.SetInterval(5);
    timer.Elapse();
    EXPECT_EQ(ticks, 1);
}

} // namespace
