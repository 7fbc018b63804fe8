// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "controls/Event.h"

#include <QList>

#include <gtest/gtest.h>

using namespace tressel;

namespace {

TEST(Event, WithoutAHandlerNothingHappens)
{
    const Event<int> event;
    event.Raise(1);
}

TEST(Event, TellsTheHandlerFirstAndTheOthersInTheirOrder)
{
    Event<int> event;
    QList<int> told;
    event.Also([&](int value) { told += 10 * value; });
    event.Handle([&](int value) { told += value; });
    event.Also([&](int value) { told += 100 * value; });
    event.Raise(2);
    EXPECT_EQ(told, (QList<int>{2, 20, 200}));
}

TEST(Event, AFailureOfTheHandlerIsNotPassedOver)
{
    Event<> event;
    bool heard = false;
    event.Handle([] { throw 1; });
    event.Also([&] { heard = true; });
    EXPECT_THROW(event.Raise(), int);
    EXPECT_FALSE(heard);
}

TEST(EventDeathTest, TakingItASecondTimeEndsTheProgram)
{
    Event<> event;
    event.Handle([] {});
    EXPECT_DEATH(event.Handle([] {}), "was given another one");
}

} // namespace
