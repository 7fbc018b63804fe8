// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "support/StartedProgram.h"
#include "support/Text.h"

#include <gtest/gtest.h>
#include <limits>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

const QString finished = u"Finished, folders created successfully"_s;

class FolderCreation : public testing::Test, protected StartedProgram {
protected:
    FolderCreation() { Start(); }

    void PressCreate() { Form().btnGBToolbarCreate.UserClicks(); }
};

TEST_F(FolderCreation, MakesOneFolderForEachEntry)
{
    List({u"x"_s, u"y"_s});
    PressCreate();
    EXPECT_EQ(Folders(), (QStringList{u"x"_s, u"y"_s}));
    EXPECT_EQ(application.session.DestinationPath, u"C:\\Work\\"_s);
    EXPECT_EQ(Status(), finished);
    EXPECT_FALSE(machine.events.IsBusy());
}

TEST_F(FolderCreation, MissingDestinationIsMadeLevelByLevel)
{
    Area().txtStrtPath.SetText(u"C:\\New\\Deep"_s);
    List({u"x"_s});
    PressCreate();
    EXPECT_TRUE(machine.files.Exists(u"C:\\New\\Deep\\x"_s));
}

TEST_F(FolderCreation, NothingIsMadeThroughALinkBelowTheDestination)
{
    machine.files.PutFolder(u"C:\\Elsewhere"_s);
    machine.files.PutLink(u"C:\\Work\\planted"_s, u"C:\\Elsewhere"_s);
    List({u"planted\\x"_s, u"y\\z"_s});
    PressCreate();
    EXPECT_EQ(machine.files.Tree(u"C:\\Elsewhere"_s), QStringList());
    EXPECT_TRUE(machine.files.Exists(u"C:\\Work\\y\\z"_s));
}

TEST_F(FolderCreation, TheDestinationItselfMayBeReachedThroughALink)
{
    machine.files.PutFolder(u"C:\\Elsewhere"_s);
    machine.files.PutLink(u"C:\\named"_s, u"C:\\Elsewhere"_s);
    Area().txtStrtPath.SetText(u"C:\\named"_s);
    List({u"x\\y"_s});
    PressCreate();
    EXPECT_TRUE(machine.files.Exists(u"C:\\Elsewhere\\x\\y"_s));
}

TEST_F(FolderCreation, EmptyDestinationIsTheRootOfTheCurrentDrive)
{
    Area().txtStrtPath.SetText(u""_s);
    List({u"x"_s});
    PressCreate();
    EXPECT_TRUE(machine.files.Exists(u"C:\\x"_s));
}

TEST_F(FolderCreation, NamesAreMendedAndNested)
{
    List({u"Mail: 1/2"_s, u"Sales\\2004\\Q1"_s, u"\\x"_s, u"a\tb"_s});
    PressCreate();
    EXPECT_EQ(
        Folders(),
        (QStringList{u"a_b"_s, u"Mail_ 1_2"_s, u"Sales"_s, u"Sales\\2004"_s, u"Sales\\2004\\Q1"_s, u"x"_s}));
}

TEST_F(FolderCreation, NoEntryLeadsOutOfTheDestination)
{
    machine.files.PutFolder(u"C:\\there"_s);
    List({u"..\\..\\escaped"_s, u"x\\..\\..\\..\\there"_s, u"..\\there"_s});
    PressCreate();
    EXPECT_EQ(Folders(),
              (QStringList{u"__"_s, u"__\\__"_s, u"__\\__\\escaped"_s, u"__\\there"_s, u"x"_s, u"x\\__"_s,
                           u"x\\__\\__"_s, u"x\\__\\__\\__"_s, u"x\\__\\__\\__\\there"_s}));
    EXPECT_EQ(machine.files.Tree(u"C:\\"_s).filter(u"escaped"_s).size(), 1);
}

TEST_F(FolderCreation, RemoveExtCutsFourCharactersWhateverTheyAre)
{
    Area().chkExtension.SetChecked(true);
    List({u"report.txt"_s, u"notes.html"_s, u"Photos2004"_s});
    PressCreate();
    EXPECT_EQ(Folders(), (QStringList{u"notes."_s, u"Photos"_s, u"report"_s}));
}

TEST_F(FolderCreation, ShortEntryWithRemoveExtEndsTheRunInSilence)
{
    Area().chkExtension.SetChecked(true);
    List({u"one.txt"_s, u"abc"_s, u"two.txt"_s});
    PressCreate();
    EXPECT_EQ(Folders(), QStringList{u"one"_s});
    EXPECT_EQ(Status(), finished);
    EXPECT_EQ(application.session.RunNumber, 1);
}

TEST_F(FolderCreation, FailedRunTellsItsIndexBeforeTheButtonOverwritesIt)
{
    Area().chkExtension.SetChecked(true);
    List({u"one.txt"_s, u"abc"_s});
    QStringList texts;
    Area().lblStatusLine.Change.Also([&] { texts += Status(); });
    PressCreate();
    EXPECT_TRUE(texts.contains(u"Finished with ERROR, Total of 1 folders created"_s));
}

TEST_F(FolderCreation, EntryOfFourCharactersMakesTheDestination)
{
    Area().chkExtension.SetChecked(true);
    Area().txtStrtPath.SetText(u"C:\\Later"_s);
    List({u"abcd"_s});
    PressCreate();
    EXPECT_TRUE(machine.files.Exists(u"C:\\Later"_s));
    EXPECT_TRUE(Folders(u"C:\\Later"_s).isEmpty());
}

TEST_F(FolderCreation, EntryOfFourCharactersMakesASuffixWhereTheDestinationExists)
{
    Area().chkExtension.SetChecked(true);
    List({u"abcd"_s});
    application.session.LastFixedName = u"stale"_s;
    PressCreate();
    EXPECT_EQ(Folders(), QStringList{u"stale (1)"_s});
}

TEST_F(FolderCreation, ExistingFolderGivesTheNameBeforeItASuffix)
{
    machine.files.PutFolder(u"C:\\Work\\b"_s);
    List({u"a"_s, u"b"_s});
    PressCreate();
    EXPECT_EQ(Folders(), (QStringList{u"a"_s, u"a (1)"_s, u"b"_s}));
}

TEST_F(FolderCreation, FirstExistingEntryTakesTheLastNameOfTheTree)
{
    machine.files.PutFolder(u"C:\\Work\\a"_s);
    List({u"a"_s, u"z"_s});
    Form().tree.RefreshFolderTree();
    PressCreate();
    EXPECT_EQ(Folders(), (QStringList{u"a"_s, u"z"_s, u"z (1)"_s}));
}

TEST_F(FolderCreation, SecondPressMakesOneStaleFolder)
{
    List({u"a"_s, u"b"_s, u"c"_s});
    PressCreate();
    EXPECT_EQ(application.session.RunNumber, 2);
    PressCreate();
    EXPECT_EQ(Folders(), (QStringList{u"a"_s, u"b"_s, u"c"_s, u"c (2)"_s}));
}

TEST_F(FolderCreation, MendedNameIsNotFoundAndSoTriedAgain)
{
    machine.files.PutFolder(u"C:\\Work\\What_"_s);
    List({u"What?"_s});
    PressCreate();
    EXPECT_EQ(Folders(), QStringList{u"What_"_s});
}

TEST_F(FolderCreation, EmptyListStillRaisesTheRunNumber)
{
    PressCreate();
    EXPECT_EQ(application.session.RunNumber, 2);
    EXPECT_EQ(Status(), finished);
}

TEST_F(FolderCreation, RunNumberAtItsEndIsAFailureWithoutABox)
{
    application.session.RunNumber = std::numeric_limits<std::int32_t>::max();
    List({u"x"_s});
    QStringList texts;
    Area().lblStatusLine.Change.Also([&] { texts += Status(); });
    PressCreate();
    EXPECT_TRUE(machine.files.Exists(u"C:\\Work\\x"_s));
    EXPECT_TRUE(texts.contains(u"Finished with ERROR, Total of 1 folders created"_s));
    EXPECT_EQ(application.session.RunNumber, std::numeric_limits<std::int32_t>::max());
}

TEST_F(FolderCreation, FolderThatCannotBeMadeIsPassedOver)
{
    machine.files.FailAt(Operation::MakeFolder, u"C:\\Work\\b"_s, 1, FailureNumber::DiskFull);
    List({u"a"_s, u"b"_s, u"c"_s});
    PressCreate();
    EXPECT_EQ(Folders(), (QStringList{u"a"_s, u"c"_s}));
    EXPECT_EQ(Status(), finished);
}

TEST_F(FolderCreation, DestinationThatIsAFileLosesNothing)
{
    machine.files.PutFile(u"C:\\Taken"_s, "precious");
    Area().txtStrtPath.SetText(u"C:\\Taken"_s);
    List({u"x"_s});
    PressCreate();
    EXPECT_EQ(machine.files.Bytes(u"C:\\Taken"_s), "precious");
    EXPECT_EQ(Status(), finished);
}

TEST_F(FolderCreation, FailureOfNumber75IsToldInABox)
{
    machine.events.At(1, [] { throw Failure(FailureNumber::PathFileAccessError); });
    List({u"x"_s});
    machine.dialogs.ExpectBox(
        {u"Path/File access error, with err number 75"_s, u"Tressel"_s, BoxIcon::Exclamation});
    PressCreate();
    EXPECT_TRUE(machine.dialogs.AllCame());
    EXPECT_EQ(Status(), finished);
}

TEST_F(FolderCreation, OtherFailuresShowNoBox)
{
    machine.events.At(1, [] { throw Failure(FailureNumber::DiskNotReady); });
    List({u"x"_s, u"y"_s});
    PressCreate();
    EXPECT_TRUE(Folders().isEmpty());
}

TEST_F(FolderCreation, EntriesBeyond16BitsEndTheRunAtTheirIndex)
{
    QStringList entries;
    for (int entry = 0; entry < 32769; ++entry)
        entries += QString::number(entry);
    Area().LstItem.SetItems(entries);
    QStringList texts;
    Area().lblStatusLine.Change.Also([&] { texts += Status(); });
    PressCreate();
    EXPECT_TRUE(texts.contains(u"Finished with ERROR, Total of 32768 folders created"_s));
    EXPECT_TRUE(machine.files.Exists(u"C:\\Work\\32767"_s));
    EXPECT_FALSE(machine.files.Exists(u"C:\\Work\\32768"_s));
}

TEST_F(FolderCreation, SecondPressInTheMiddleRunsNestedAndSharesItsState)
{
    List({u"a"_s, u"b"_s});
    machine.events.At(10, [this] { PressCreate(); });
    PressCreate();
    // The nested run comes while "b" is mended and makes "b"; it finds "a" there, mends nothing and
    // raises the number. "b" then exists when its own turn comes.
    EXPECT_EQ(application.session.RunNumber, 3);
    EXPECT_EQ(Folders(), (QStringList{u"a"_s, u"a (1)"_s, u"b"_s}));
}

TEST_F(FolderCreation, ListThatShrinksInTheMiddleEndsTheRun)
{
    List({u"a"_s, u"b"_s, u"c"_s});
    machine.events.At(1, [this] { Area().LstItem.Clear(); });
    PressCreate();
    EXPECT_EQ(Folders(), QStringList{u"a"_s});
}

TEST_F(FolderCreation, ExitInTheMiddleKeepsWhatWasMade)
{
    List({u"a"_s, u"b"_s, u"c"_s});
    machine.events.At(10, [this] { Form().btnGBToolbarExit.UserClicks(); });
    EXPECT_THROW(PressCreate(), ProcessEnded);
    EXPECT_EQ(Folders(), QStringList{u"a"_s});
}

TEST_F(FolderCreation, TreeShowsTheSizeOfTheListWhateverWasMade)
{
    machine.files.FailAt(Operation::MakeFolder, u"C:\\Work"_s, 0, FailureNumber::DiskFull);
    List({u"a"_s, u"b"_s});
    PressCreate();
    EXPECT_EQ(Area().TVList.Nodes().at(0).text, u"Total 2 Main Folders Created"_s);
    EXPECT_EQ(Area().TVList.Nodes().at(1).image, 6);
}

TEST_F(FolderCreation, TrailingBlanksAndDotsArePassedOn)
{
    List({u"a "_s, u"b."_s});
    machine.journal.Clear();
    PressCreate();
    const QStringList tried = machine.journal.About(u"MakeFolder"_s);
    EXPECT_TRUE(tried.contains(u"C:\\Work\\a "_s));
    EXPECT_TRUE(tried.contains(u"C:\\Work\\b."_s));
}

TEST_F(FolderCreation, SeparatorAtTheStartTriesAnEmptyLevel)
{
    List({u"\\x"_s});
    machine.journal.Clear();
    PressCreate();
    EXPECT_EQ(machine.journal.About(u"MakeFolder"_s),
              (QStringList{u"C:\\Work"_s, u"C:\\Work\\"_s, u"C:\\Work\\\\x"_s}));
}

TEST_F(FolderCreation, ClickIsHeardFirst)
{
    machine.journal.Clear();
    PressCreate();
    EXPECT_EQ(machine.journal.About(u"Play"_s), QStringList{u"C:\\Tressel\\click.wav"_s});
    application.frmOption().OptSound.Select(1);
    PressCreate();
    EXPECT_EQ(machine.journal.Count(u"Play"_s), 1);
}

TEST_F(FolderCreation, TellsEachEntryAndEachFolderThatCameOfIt)
{
    machine.files.PutFolder(u"C:\\Work\\old"_s);
    machine.files.PutFolder(u"C:\\Work\\What_"_s);
    machine.files.PutFile(u"C:\\Work\\file"_s, "x");
    List({u"a\\b"_s, u"old"_s, u"What?"_s, u"file"_s, u"file\\below"_s});
    PressCreate();
    EXPECT_EQ(told.lines,
              (QStringList{
                  u"started 5"_s,
                  u"next C:\\Work\\a\\b"_s,
                  u"made C:\\Work\\a"_s,
                  u"made C:\\Work\\a\\b"_s,
                  u"next C:\\Work\\old"_s,
                  u"made C:\\Work\\a\\b (1)"_s,
                  u"already there C:\\Work\\old"_s,
                  u"next C:\\Work\\What?"_s,
                  u"already there C:\\Work\\What_"_s,
                  u"next C:\\Work\\file"_s,
                  u"failed C:\\Work\\file 75"_s,
                  u"next C:\\Work\\file\\below"_s,
                  // The reason is that of the level that is in the way.
                  u"failed C:\\Work\\file\\below 75"_s,
              }));
}

TEST_F(FolderCreation, TellsOfTheEntryThatEndsTheRun)
{
    Area().chkExtension.SetChecked(true);
    List({u"one.txt"_s, u"abc"_s, u"two.txt"_s});
    PressCreate();
    EXPECT_EQ(told.lines,
              (QStringList{u"started 3"_s, u"next C:\\Work\\one.txt"_s, u"made C:\\Work\\one"_s,
                           u"next C:\\Work\\abc"_s, u"failed C:\\Work\\abc 5"_s}));
}

TEST_F(FolderCreation, ASuffixThatIsThereTooIsNoSecondFolder)
{
    machine.files.PutFolder(u"C:\\Work\\a"_s);
    machine.files.PutFolder(u"C:\\Work\\a (1)"_s);
    application.session.LastFixedName = u"a"_s;
    List({u"a"_s});
    PressCreate();
    EXPECT_EQ(told.Of(u"already there"_s), QStringList{u"C:\\Work\\a"_s});
    EXPECT_TRUE(told.Of(u"made"_s).isEmpty());
    EXPECT_TRUE(told.Of(u"failed"_s).isEmpty());
}

} // namespace
