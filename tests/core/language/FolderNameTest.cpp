// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "language/FolderPaths.h"
#include "support/Text.h"

#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

TEST(FolderName, IllegalCharactersAreMendedAndLevelsStay)
{
    EXPECT_EQ(MendedName(u"Mail: 1/2"_s), u"Mail_ 1_2"_s);
    EXPECT_EQ(MendedName(u"a\\b*?\"<>|\tc"_s), u"a\\b_______c"_s);
    EXPECT_EQ(MendedName(u""_s), u""_s);
}

TEST(FolderName, NoLevelLeadsOut)
{
    EXPECT_EQ(MendedName(u".."_s), u"__"_s);
    EXPECT_EQ(MendedName(u"..\\..\\escaped"_s), u"__\\__\\escaped"_s);
    EXPECT_EQ(MendedName(u"x\\..\\..\\..\\y"_s), u"x\\__\\__\\__\\y"_s);
    EXPECT_EQ(MendedName(u"x\\.."_s), u"x\\__"_s);
    EXPECT_EQ(MendedName(u"../.."_s), u".._.."_s);
    EXPECT_EQ(MendedName(u"..."_s), u"..."_s);
    EXPECT_EQ(MendedName(u"a..b\\.\\..c"_s), u"a..b\\.\\..c"_s);
}

TEST(FolderName, LeadingOutIsALevelOfTwoDots)
{
    EXPECT_TRUE(LeadsOut(u"a\\..\\b"_s));
    EXPECT_FALSE(LeadsOut(u"a..\\...\\b"_s));
}

TEST(FolderName, NameFromTheDiscIsOneLevel)
{
    EXPECT_EQ(EntryOfName(u"x\\..\\..\\escaped"_s), u"x_.._.._escaped"_s);
    EXPECT_EQ(EntryOfName(u"plain"_s), u"plain"_s);
}

} // namespace
