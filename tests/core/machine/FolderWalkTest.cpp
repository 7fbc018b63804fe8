// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/FolderWalk.h"

#include "support/MemoryMachine.h"
#include "support/Text.h"

#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

TEST(FolderWalk, GoesDeepBeforeItGoesOn)
{
    MemoryMachine machine;
    FolderWalk walk(machine.files, u"D:\\"_s, {u"a"_s, u"b"_s});
    EXPECT_EQ(walk.Next(), u"D:\\a"_s);
    walk.Enter({u"1"_s, u"2"_s});
    EXPECT_EQ(walk.Next(), u"D:\\a\\1"_s);
    walk.Enter({u"x"_s});
    EXPECT_EQ(walk.Next(), u"D:\\a\\1\\x"_s);
    walk.Enter({});
    EXPECT_EQ(walk.Next(), u"D:\\a\\2"_s);
    EXPECT_EQ(walk.Next(), u"D:\\b"_s);
    EXPECT_EQ(walk.Next(), std::nullopt);
}

TEST(FolderWalk, EndsAtOnceWithoutFolders)
{
    MemoryMachine machine;
    FolderWalk walk(machine.files, u"D:\\W"_s, {});
    EXPECT_EQ(walk.Next(), std::nullopt);
}

} // namespace
