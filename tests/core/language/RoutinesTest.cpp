// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "language/Routines.h"

#include "language/Session.h"
#include "support/MemoryMachine.h"
#include "support/Text.h"

#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

TEST(Clicks, GiveTheLowBitsOfTheResult)
{
    MemoryMachine machine;
    EXPECT_EQ(PlayClick(machine.sound, u"C:\\Tressel\\click.wav"_s), 1);
    EXPECT_EQ(machine.journal.About(u"Play"_s), QStringList{u"C:\\Tressel\\click.wav"_s});
}

TEST(Errors, ComeUnderTheirOwnTitle)
{
    MemoryMachine machine;
    Session session;
    session.AppTitle = u"Brindlekit"_s;
    machine.dialogs.ExpectBox({u"Error: no luck"_s, u"Brindlekit"_s, BoxIcon::Exclamation});
    ShowError(machine.dialogs, session, u"no luck"_s);
}

TEST(Seconds, CountMillisecondsInTheFraction)
{
    MemoryMachine machine;
    machine.clock.Set(QDateTime(QDate(2004, 3, 31), QTime(1, 2, 3, 250)));
    EXPECT_DOUBLE_EQ(SecondsOfDay(machine.clock), 3723.25);
}

} // namespace
