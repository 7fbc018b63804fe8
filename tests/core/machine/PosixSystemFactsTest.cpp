// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/posix/PosixSystemFacts.h"

#include "support/Text.h"

#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

constexpr const char *release = "# NAME=no\n"
                                "PRETTY_NAME=\"Some Linux 12 (worm)\"\n"
                                "NAME=\"Some \\\"Linux\\\"\"\n"
                                "VERSION_ID='12'\n"
                                "ID=some\n";

TEST(AssignedValue, TakesQuotesAndEscapesOff)
{
    EXPECT_EQ(AssignedValue(release, "NAME"), "Some \"Linux\"");
    EXPECT_EQ(AssignedValue(release, "VERSION_ID"), "12");
    EXPECT_EQ(AssignedValue(release, "ID"), "some");
    EXPECT_EQ(AssignedValue(release, "BUILD_ID"), QByteArray());
    EXPECT_EQ(AssignedValue("NAME=\"", "NAME"), "\"");
}

TEST(PosixSystemFacts, NameTheSystemAndItsOwner)
{
    const PosixSystemFacts facts(release, "Ann & Other,Room 1,,", "lee");
    EXPECT_EQ(facts.Fact(u"ProductName"_s), u"Some \"Linux\""_s);
    EXPECT_EQ(facts.Fact(u"currentversion"_s), u"12"_s);
    EXPECT_EQ(facts.Fact(u"RegisteredOwner"_s), u"Ann Lee Other"_s);
    EXPECT_EQ(facts.Fact(u"RegisteredOrganization"_s), std::nullopt);
    EXPECT_EQ(facts.Fact(u"Anything"_s), std::nullopt);
    EXPECT_FALSE(facts.Fact(u"CurrentBuildNumber"_s).value_or(QString()).isEmpty());
}

TEST(PosixSystemFacts, WithoutAReleaseFileOrAFullNameTheSystemItselfIsNamed)
{
    const PosixSystemFacts facts({}, ",,", "me");
    EXPECT_EQ(facts.Fact(u"RegisteredOwner"_s), u"me"_s);
    EXPECT_FALSE(facts.Fact(u"ProductName"_s).value_or(QString()).isEmpty());
    EXPECT_EQ(facts.Fact(u"CurrentVersion"_s), std::nullopt);
}

TEST(PosixSystemFacts, ThisSystemHasAName)
{
    EXPECT_FALSE(PosixSystemFacts().Fact(u"ProductName"_s).value_or(QString()).isEmpty());
}

} // namespace
