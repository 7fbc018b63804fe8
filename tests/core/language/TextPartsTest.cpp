// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "language/TextParts.h"

#include "support/Failures.h"
#include "support/Text.h"

#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

TEST(Texts, AreCutAtMarkers)
{
    EXPECT_EQ(TextAfter(u"a.b.c"_s, u"."_s), u"b.c"_s);
    EXPECT_EQ(TextBefore(u"a.b.c"_s, u"."_s), u"a"_s);
    EXPECT_EQ(TextBeforeLast(u"a.b.c"_s, u"."_s), u"a.b"_s);
    for (const auto cut : {TextAfter, TextBefore, TextBeforeLast})
        EXPECT_EQ(cut(u"whole"_s, u"."_s), u"whole"_s);
    EXPECT_EQ(TextAfter(u""_s, u""_s), u""_s);
}

TEST(Texts, TailOfALongMarkerStays)
{
    EXPECT_EQ(TextAfter(u"key::value"_s, u"::"_s), u":value"_s);
}

TEST(Texts, Beyond16BitsFail)
{
    const QString longest = QString(32766, u'x') + u'.';
    EXPECT_EQ(TextBefore(longest, u"."_s).size(), 32766);
    for (const auto cut : {TextAfter, TextBefore, TextBeforeLast})
        EXPECT_EQ(NumberThrownBy([&] { cut(longest + u'x', u"."_s); }), FailureNumber::Overflow);
}

TEST(Texts, UpperFirstFailsOnNothing)
{
    EXPECT_EQ(UpperFirst(u"élan vital"_s), u"Élan vital"_s);
    EXPECT_EQ(UpperFirst(u"x"_s), u"X"_s);
    EXPECT_EQ(UpperFirst(u"ßx"_s), u"ßx"_s);
    EXPECT_EQ(NumberThrownBy([] { UpperFirst(u""_s); }), FailureNumber::InvalidProcedureCall);
}

TEST(Texts, ContainsTellsCasesApart)
{
    EXPECT_TRUE(TextContains(u"Folder"_s, u"old"_s));
    EXPECT_FALSE(TextContains(u"Folder"_s, u"OLD"_s));
    EXPECT_FALSE(TextContains(u""_s, u""_s));
}

} // namespace
