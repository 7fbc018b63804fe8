// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "language/Language.h"

#include "language/Session.h"
#include "support/Failures.h"
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
