// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// Renames on the real disc: names and entries that the memory machine can't have.

#include "RenameFixture.h"
#include "machine/posix/PosixFileSystem.h"
#include "support/AsNobody.h"
#include "support/CaselessDisc.h"
#include "support/TemporaryFolder.h"

#include <QMap>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

/// Names, byte for byte, and the things that bear them.
using Entries = QMap<QByteArray, ino_t>;

class RealDiscRename : public testing::Test {
protected:
    RealDiscRename()
    {
        tool.page.txtCurrentPath.SetText(folder.Path());
        tool.page.optCase.Select(RenamePage::Uppercase);
    }

    Machine MachineOnDisc() { return machine.With(files); }
    void Put(const QByteArray &name)
    {
        const int file = open(folder.Native(name).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
        ASSERT_GE(file, 0) << name.constData();
        close(file);
    }
    Entries List() const
    {
        Entries entries;
        DIR *const open = opendir(folder.Native("").constData());
        while (const dirent *entry = readdir(open)) {
            const QByteArray name = entry->d_name;
            if (name != "." && name != "..")
                entries.insert(name, entry->d_ino);
        }
        closedir(open);
        return entries;
    }
    QByteArrayList Names() const { return List().keys(); }
    /// All that was there is there, under whatever name.
    void ExpectNothingLost(const Entries &before)
    {
        QList<ino_t> was = before.values();
        QList<ino_t> is = List().values();
        std::sort(was.begin(), was.end());
        std::sort(is.begin(), is.end());
        EXPECT_EQ(is, was);
    }
    void ExpectUnlocked() { EXPECT_TRUE(tool.page.btnGBRename.IsEnabled()); }
    void Replace(const QString &from, const QString &to)
    {
        tool.page.txtReplaceFrom.SetText(from);
        tool.page.txtReplaceTo.SetText(to);
        tool.page.btnGBReplace.UserClicks();
    }

    TemporaryFolder folder;
    PosixFileSystem files;
    MemoryMachine machine;
    RenameTool tool{MachineOnDisc()};
};

TEST_F(RealDiscRename, NamesOfAllKinds)
{
    const QList<std::pair<QByteArray, QByteArray>> rows{
        {"plain.txt", "PLAIN.TXT"},
        {"caf\xE9 \xFFx", "CAF\xE9 \xFFX"},
        {".profile", ".PROFILE"},
        {"stra\xC3\x9F"
         "e",
         "STRASSE"},
        {"k\xC4\xB1r\xC4\xB1k", "KIRIK"},
        {"e\xCC\x81te\xCC\x81", "E\xCC\x81TE\xCC\x81"},
        {"two\nlines", "TWO\nLINES"},
        {"back\\slash", "BACK\\SLASH"},
        {" blanks ", " BLANKS "},
        {"a:b*c?d\"e<f>g|h", "A:B*C?D\"E<F>G|H"},
        {QByteArray(254, 'l'), QByteArray(254, 'L')},
    };
    QByteArrayList newNames;
    for (const auto &[name, newName] : rows) {
        Put(name);
        newNames += newName;
    }
    std::sort(newNames.begin(), newNames.end());
    const Entries before = List();
    tool.page.btnGBRename.UserClicks();
    EXPECT_EQ(Names(), newNames);
    EXPECT_EQ(tool.Status(), RenameTool::Total(static_cast<int>(rows.size())));
    ExpectNothingLost(before);
}

TEST_F(RealDiscRename, AllThatIsNoFolderIsAFileAndALinkIsRenamedItself)
{
    ASSERT_EQ(mkdir(folder.Native("target").constData(), 0755), 0);
    ASSERT_EQ(symlink("target", folder.Native("tofolder").constData()), 0);
    ASSERT_EQ(symlink("nowhere", folder.Native("dangling").constData()), 0);
    ASSERT_EQ(symlink("self", folder.Native("self").constData()), 0);
    ASSERT_EQ(mkfifo(folder.Native("pipe").constData(), 0644), 0);
    Put("file");
    const Entries before = List();
    tool.page.btnGBRename.UserClicks();
    EXPECT_EQ(Names(), (QByteArrayList{"DANGLING", "FILE", "PIPE", "SELF", "target", "tofolder"}));
    tool.page.optRename.Select(RenamePage::Folders);
    tool.page.btnGBRename.UserClicks();
    EXPECT_EQ(Names(), (QByteArrayList{"DANGLING", "FILE", "PIPE", "SELF", "TARGET", "TOFOLDER"}));
    ExpectNothingLost(before);
}

TEST_F(RealDiscRename, TheLongestNameHasNoRoomForTheUnderscore)
{
    const QByteArray longest(255, 'l');
    Put("a");
    Put(longest);
    Put("z");
    tool.page.btnGBRename.UserClicks();
    ExpectUnlocked();
    EXPECT_EQ(Names(), (QByteArrayList{"A", longest, "z"}));
    EXPECT_EQ(tool.Status(), RenameTool::Total(1));
}

TEST_F(RealDiscRename, ANameThatGrowsBeyondItsBytesStays)
{
    const QByteArray sharp = QByteArray("\xC3\x9F").repeated(127);
    Put(sharp);
    Replace(u"ß"_s, u"sss"_s);
    EXPECT_EQ(Names(), QByteArrayList{sharp});
    ExpectUnlocked();
}

TEST_F(RealDiscRename, TwoNamesThatDifferInCaseAloneDontMeet)
{
    Put("a");
    Put("A");
    const Entries before = List();
    tool.page.btnGBRename.UserClicks();
    ExpectUnlocked();
    EXPECT_EQ(List(), (Entries{{"A", before.value("A")}, {"A_", before.value("a")}}));
    EXPECT_EQ(tool.watch.lines.last(), u"Failed %1/A_ 58"_s.arg(folder.Path()));
}

TEST_F(RealDiscRename, ATakenDetourLeavesBoth)
{
    Put("a");
    Put("A_");
    const Entries before = List();
    tool.page.btnGBRename.UserClicks();
    ExpectUnlocked();
    EXPECT_EQ(List(), before);
}

TEST_F(RealDiscRename, ANameThatComesOutEmptyOrAsDotsStaysAtItsFirstRename)
{
    for (const QString &to : {u""_s, u"."_s, u".."_s}) {
        Put("a");
        const Entries before = List();
        Replace(u"a"_s, to);
        ExpectUnlocked();
        EXPECT_EQ(Names(), QByteArrayList{to.toUtf8() + '_'});
        ExpectNothingLost(before);
        ASSERT_EQ(unlink(folder.Native(to.toUtf8() + '_').constData()), 0);
    }
}

TEST_F(RealDiscRename, ATakenExtensionLeavesTheUnderscore)
{
    for (const char *name : {"a.jpg", "a.png", "b.jpg", "c.jpg"})
        Put(name);
    ASSERT_EQ(symlink("nowhere", folder.Native("b.gif").constData()), 0);
    const Entries before = List();
    tool.page.optExtensions.Select(RenamePage::Specific);
    tool.page.txtSpecificExtFrom.SetText(u"jpg"_s);
    tool.page.txtSpecificExtTo.SetText(u"gif"_s);
    tool.page.btnGBExtension.UserClicks();
    EXPECT_EQ(Names(), (QByteArrayList{"a.gif", "a.png", "b.gif", "b.gif_", "c.gif"}));
    EXPECT_EQ(tool.Status(), RenameTool::Total(5));
    ExpectNothingLost(before);
}

TEST_F(RealDiscRename, APathThatIsAFileOrHalfACharacter)
{
    Put("file");
    tool.page.txtCurrentPath.SetText(folder.Path() + u"/file"_s);
    machine.dialogs.ExpectBox(u"Error: Path does not exist"_s);
    tool.page.btnGBRename.UserClicks();
    tool.page.txtCurrentPath.SetText(u"/tmp/"_s + QChar(char16_t(0xD800)));
    machine.dialogs.ExpectBox(u"Error: The path contains illegal character(s)\r\n \\ / : * ? \" < > |"_s);
    tool.page.btnGBRename.UserClicks();
    ExpectUnlocked();
}

TEST_F(RealDiscRename, AFileThatVanishesEndsTheRun)
{
    for (const char *name : {"a", "b", "c"})
        Put(name);
    machine.events.At(2, [this] { unlink(folder.Native("b").constData()); });
    tool.page.btnGBRename.UserClicks();
    ExpectUnlocked();
    EXPECT_EQ(Names(), (QByteArrayList{"A", "c"}));
    EXPECT_EQ(tool.watch.lines.last(), u"Failed %1/b 53"_s.arg(folder.Path()));
}

TEST_F(RealDiscRename, AFolderThatGoesMeanwhileEndsTheRun)
{
    Put("a");
    Put("b");
    machine.events.At(2, [this] {
        unlink(folder.Native("A").constData());
        unlink(folder.Native("b").constData());
        rmdir(folder.Native("").constData());
        mkdir(folder.Native("").constData(), 0700);
    });
    tool.page.btnGBRename.UserClicks();
    ExpectUnlocked();
    EXPECT_TRUE(Names().isEmpty());
}

TEST_F(RealDiscRename, TwoWindowsOnOneFolderLoseNothing)
{
    for (const char *name : {"a.x", "b.x", "c.x", "d.x"})
        Put(name);
    const Entries before = List();
    RenameTool other(MachineOnDisc());
    other.page.txtCurrentPath.SetText(folder.Path());
    other.page.optCase.Select(RenamePage::Uppercase);
    machine.events.At(2, [&] { other.page.btnGBRename.UserClicks(); });
    tool.page.txtExtensionsChangeAllTo.SetText(u"y"_s);
    tool.page.optExtensions.Select(RenamePage::All);
    tool.page.btnGBExtension.UserClicks();
    ExpectUnlocked();
    EXPECT_EQ(Names(), (QByteArrayList{"A.Y", "B.X", "C.X", "D.X"}));
    ExpectNothingLost(before);
}

TEST_F(RealDiscRename, CancelInEachRun)
{
    for (IsButton *button : {&tool.page.btnGBRename, &tool.page.btnGBExtension, &tool.page.btnGBReplace}) {
        for (const char *name : {"a.x", "b.x"})
            Put(name);
        tool.page.optExtensions.Select(RenamePage::All);
        tool.page.txtExtensionsChangeAllTo.SetText(u"X"_s);
        tool.page.txtReplaceFrom.SetText(u"x"_s);
        tool.page.txtReplaceTo.SetText(u"X"_s);
        tool.page.optCase.Select(RenamePage::Uppercase);
        machine.events.At(1, [this] { tool.page.btnGBCancel.UserClicks(); });
        button->UserClicks();
        ExpectUnlocked();
        const QByteArrayList names = Names();
        EXPECT_EQ(names.last(), "b.x");
        EXPECT_EQ(names.first().toLower(), "a.x");
        EXPECT_NE(names.first(), "a.x");
        for (const QByteArray &name : names)
            unlink(folder.Native(name).constData());
    }
}

/// The page where "a" and "A" are one name.
class RenameWithoutCase : public RealDiscRename, public testing::WithParamInterface<CaselessDisc> { };

TEST_P(RenameWithoutCase, AChangeOfCaseAloneReachesTheNames)
{
    const auto holds = HoldsWithoutCase(GetParam(), folder.Native("").chopped(1), [this] {
        for (const char *name : {"abc", "Long name 1.Mp3", "UPPER"})
            Put(name);
        tool.page.btnGBRename.UserClicks();
        return Names() == QByteArrayList{"ABC", "LONG NAME 1.MP3", "UPPER"}
        && tool.Status() == RenameTool::Total(3) && tool.page.btnGBRename.IsEnabled();
    });
    if (!holds)
        GTEST_SKIP() << "This system can't mount such a disc.";
    EXPECT_TRUE(*holds);
}

INSTANTIATE_TEST_SUITE_P(Disc, RenameWithoutCase,
                         testing::Values(CaselessDisc::InMemory, CaselessDisc::Fat,
                                         CaselessDisc::FatInUserSpace));

TEST_F(RealDiscRename, AFolderWithoutRightsKeepsItsNames)
{
    if (!IsRoot())
        GTEST_SKIP() << "only root can give itself up";
    Put("a");
    const Entries before = List();
    for (const mode_t mode : {0555, 0311, 0000}) {
        ASSERT_EQ(chmod(folder.Native("").constData(), mode), 0);
        EXPECT_TRUE(HoldsAsNobody([this] {
            tool.page.btnGBRename.UserClicks();
            return tool.page.btnGBRename.IsEnabled()
                && tool.watch.lines.last().startsWith(u"Failed "_s + folder.Path())
                && tool.watch.lines.last().endsWith(u" 75"_s) && tool.Status() == RenameTool::Total(0);
        })) << mode;
    }
    ASSERT_EQ(chmod(folder.Native("").constData(), 0700), 0);
    EXPECT_EQ(List(), before);
}

} // namespace
