// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "language/FolderPaths.h"

#include "language/Session.h"
#include "support/MemoryMachine.h"
#include "support/Text.h"

#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

class Names : public testing::Test {
protected:
    QString Fixed(const QString &name) { return FixFolderName(name, machine.events, session); }

    MemoryMachine machine;
    Session session;
};

TEST_F(Names, IllegalCharactersBecomeUnderscores)
{
    const QList<QPair<QString, QString>> rows = {
        {u"a/b"_s, u"a_b"_s},
        {u"a\\b"_s, u"a\\b"_s},
        {u"What?*"_s, u"What__"_s},
        {u"a\tb"_s, u"a_b"_s},
        {u"Mail: 1/2"_s, u"Mail_ 1_2"_s},
        {u"\"<x>|\""_s, u"__x___"_s},
        {u" trailing. "_s, u" trailing. "_s},
        {u""_s, u""_s},
    };
    for (const auto &[name, fixed] : rows) {
        EXPECT_EQ(Fixed(name), fixed);
        EXPECT_EQ(session.LastFixedName, fixed);
    }
}

TEST_F(Names, EventsRunNineTimesPerName)
{
    Fixed(u"plain"_s);
    EXPECT_EQ(machine.events.Calls(), 9);
}

TEST_F(Names, ShortPathIsNeverLookedUp)
{
    machine.files.PutFolder(u"C:\\W"_s);
    EXPECT_FALSE(FolderPathExists(machine.files, u"C:\\"_s));
    EXPECT_EQ(machine.journal.Count(u"Status"_s), 0);
    EXPECT_TRUE(FolderPathExists(machine.files, u"C:\\W"_s));
    EXPECT_FALSE(FolderPathExists(machine.files, u"C:\\X"_s));
}

TEST_F(Names, FileIsNoFolder)
{
    machine.files.PutFile(u"C:\\file"_s, "x");
    EXPECT_FALSE(FolderPathExists(machine.files, u"C:\\file"_s));
}

TEST_F(Names, PathIsMadeLevelByLevel)
{
    EXPECT_TRUE(MakeFolderPath(machine.files, u"C:\\a\\b"_s));
    EXPECT_EQ(machine.journal.About(u"MakeFolder"_s), (QStringList{u"C:\\a"_s, u"C:\\a\\b"_s}));
}

TEST_F(Names, ExistingLevelLeavesItsFailure)
{
    machine.files.PutFolder(u"C:\\a"_s);
    EXPECT_FALSE(MakeFolderPath(machine.files, u"C:\\a\\b"_s));
    EXPECT_TRUE(machine.files.Exists(u"C:\\a\\b"_s));
}

TEST_F(Names, TrailingSeparatorTriesTheLastLevelTwice)
{
    EXPECT_FALSE(MakeFolderPath(machine.files, u"C:\\a\\b\\"_s));
    EXPECT_EQ(machine.journal.About(u"MakeFolder"_s),
              (QStringList{u"C:\\a"_s, u"C:\\a\\b"_s, u"C:\\a\\b\\"_s}));
}

TEST_F(Names, RelativePathWithoutALevelMakesNothing)
{
    EXPECT_TRUE(MakeFolderPath(machine.files, u"loose"_s));
    EXPECT_EQ(machine.journal.Count(u"MakeFolder"_s), 0);
}

TEST_F(Names, PathFromASeparatorStartsInTheRoot)
{
    EXPECT_TRUE(MakeFolderPath(machine.files, u"\\x\\y"_s));
    EXPECT_TRUE(machine.files.Exists(u"C:\\x\\y"_s));
}

TEST_F(Names, EachLevelThatIsTriedIsTold)
{
    machine.files.PutFolder(u"C:\\Test1"_s);
    QStringList told;
    const auto tell = [&](const QString &level, const std::optional<Failure> &failure) {
        told += level + (failure ? u" %1"_s.arg(failure->Number()) : u""_s);
    };
    MakeFolderPath(machine.files, u"C:\\Test1\\b\\c"_s, tell);
    EXPECT_EQ(told, (QStringList{u"C:\\Test1 75"_s, u"C:\\Test1\\b"_s, u"C:\\Test1\\b\\c"_s}));
    told.clear();
    // The protected one isn't tried.
    RemoveFolderPath(machine.files, u"C:\\Test1\\b\\c"_s, tell);
    EXPECT_EQ(told, (QStringList{u"C:\\Test1\\b 75"_s, u"C:\\Test1\\b\\c"_s}));
}

TEST_F(Names, RemovalTakesTheDeepestEmptyLevelOnly)
{
    machine.files.PutFolder(u"C:\\a\\b"_s);
    EXPECT_FALSE(RemoveFolderPath(machine.files, u"C:\\a\\b"_s));
    EXPECT_TRUE(machine.files.Exists(u"C:\\a"_s));
    EXPECT_FALSE(machine.files.Exists(u"C:\\a\\b"_s));
}

TEST_F(Names, RemovalNeverTouchesTheProtectedFolder)
{
    machine.files.PutFolder(u"C:\\Test1"_s);
    EXPECT_TRUE(RemoveFolderPath(machine.files, u"C:\\Test1"_s));
    EXPECT_TRUE(machine.files.Exists(u"C:\\Test1"_s));
    EXPECT_TRUE(RemoveFolderPath(machine.files, u"C:\\test1"_s));
    EXPECT_FALSE(machine.files.Exists(u"C:\\Test1"_s));
}

} // namespace
