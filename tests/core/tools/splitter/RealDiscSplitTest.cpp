// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// The page's runs on the real disc: names and things that the memory machine can't have.

#include "SplitterFixture.h"
#include "machine/TextFile.h"
#include "machine/WholeFile.h"
#include "support/AsNobody.h"
#include "support/FullDisc.h"
#include "support/OwnMounts.h"
#include "support/TemporaryFolder.h"
#include "support/WatchedDisc.h"

#include <sys/stat.h>
#include <unistd.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

class RealDiscSplit : public testing::Test {
protected:
    Machine MachineOnDisc() { return machine.With(files); }
    QString Path(const QString &name) const { return folder.Path() + u'/' + name; }
    void Put(const QString &name, const QByteArray &contents)
    {
        ReplaceContents(files, Path(name), contents);
    }
    QByteArray Read(const QString &name) { return files.Open(Path(name), OpenFor::Reading)->Read(1 << 20); }
    QStringList Names()
    {
        QStringList names;
        for (const FolderEntry &entry : files.List(folder.Path()))
            names += entry.name;
        return names;
    }
    /// Puts a file that is there into the page and chooses it in the list.
    void Choose(const QString &name)
    {
        tool.page.cboFileName.Clear();
        tool.page.cboFileName.AddItem(Path(name));
        tool.page.cboFileName.UserSelects(0);
    }
    void ExpectReadError() { machine.dialogs.ExpectBox(u"Split Count: Read Error"_s); }

    const TemporaryFolder folder;
    MemoryMachine machine;
    WatchedDisc files;
    SplitterTool tool{MachineOnDisc()};
};

TEST_F(RealDiscSplit, EachLengthAndNameComesBack)
{
    const QString odd = u"raw"_s + QChar(0xDCFF) + u".bin"_s;
    for (const QString &name : {u"plain.bin"_s, u"with blank"_s, u"it's \"100%\""_s, u"a\\b"_s, odd}) {
        for (const qsizetype length : {1, 1023, 1024, 1025, 3072, 5000}) {
            const QByteArray contents = QByteArray("0123456789abcdefg").repeated(300).left(length);
            Put(name, contents);
            Choose(name);
            tool.page.chkDeleteParts.SetChecked(true);
            tool.Split();
            ASSERT_EQ(tool.Status(), u"Finished"_s);
            EXPECT_TRUE(Read(name + u".bat"_s)
                            .contains("REN \"" + EncodeText(name, NameBytes::Raw) + ".1\" \""
                                      + EncodeText(name, NameBytes::Raw) + "\"\r\n"));
            files.RemoveFile(Path(name));
            tool.Join();
            EXPECT_EQ(Read(name), contents);
            EXPECT_EQ(Names(), QStringList{name});
        }
        files.RemoveFile(Path(name));
    }
}

TEST_F(RealDiscSplit, AnEmptyFileGivesTheBatchFileAlone)
{
    Put(u"e"_s, {});
    Choose(u"e"_s);
    tool.Split();
    EXPECT_EQ(Names(), (QStringList{u"e"_s, u"e.bat"_s}));
}

TEST_F(RealDiscSplit, APartHoldsWhatWasReadThoughTheFileIsCutBeforeItIsWritten)
{
    const QByteArray contents = QByteArray("0123456789").repeated(300);
    Put(u"s"_s, contents);
    Choose(u"s"_s);
    bool isCut = false;
    files.before = [&](const DiscStep &step) {
        if (step.operation != Operation::WriteBytes || isCut)
            return;
        isCut = true;
        EXPECT_EQ(step.path, Path(u"s.1"_s));
        EXPECT_EQ(truncate(folder.Native("s").constData(), 100), 0);
    };
    tool.Split();
    EXPECT_TRUE(isCut);
    EXPECT_EQ(tool.Status(), u"Finished"_s);
    EXPECT_EQ(Names(), (QStringList{u"s"_s, u"s.1"_s, u"s.bat"_s}));
    EXPECT_EQ(Read(u"s.1"_s), contents.first(1024));
}

TEST_F(RealDiscSplit, PartNamesThatDoNotFitLeaveNothing)
{
    const QString name(254, u'n');
    Put(name, "contents");
    Choose(name);
    tool.Split();
    EXPECT_EQ(tool.Count(), u"Split Count: Write Error"_s);
    EXPECT_EQ(Names(), QStringList{name});
}

TEST_F(RealDiscSplit, APipeAndADeviceAreReadErrors)
{
    ASSERT_EQ(mkfifo(folder.Native("pipe").constData(), 0600), 0);
    ASSERT_EQ(symlink("/dev/zero", folder.Native("device").constData()), 0);
    for (const QString &name : {u"pipe"_s, u"device"_s}) {
        Choose(name);
        ExpectReadError();
        tool.Split();
    }
    EXPECT_EQ(Names(), (QStringList{u"device"_s, u"pipe"_s}));
}

TEST_F(RealDiscSplit, PartsOfALinkStandBesideIt)
{
    ASSERT_FALSE(files.TryMakeFolder(Path(u"far"_s)));
    Put(u"far/b"_s, "12345");
    ASSERT_EQ(symlink("far/b", folder.Native("link").constData()), 0);
    Choose(u"link"_s);
    tool.Split();
    EXPECT_EQ(Read(u"link.1"_s), "12345");
    EXPECT_EQ(files.List(Path(u"far"_s)).size(), 1);
}

TEST_F(RealDiscSplit, ALinkInAPartsPlaceGoesAndItsTargetStays)
{
    Put(u"letter"_s, "mine");
    Put(u"a"_s, "12345");
    ASSERT_EQ(symlink("letter", folder.Native("a.1").constData()), 0);
    ASSERT_EQ(symlink("nowhere", folder.Native("a.bat").constData()), 0);
    Choose(u"a"_s);
    tool.Split();
    EXPECT_EQ(Read(u"letter"_s), "mine");
    EXPECT_EQ(Read(u"a.1"_s), "12345");
    EXPECT_EQ(Names(), (QStringList{u"a"_s, u"a.1"_s, u"a.bat"_s, u"letter"_s}));
}

TEST_F(RealDiscSplit, AFileThatCannotBeWrittenIsAReadError)
{
    Put(u"a"_s, "12345");
    ASSERT_EQ(chmod(folder.Native("a").constData(), 0444), 0);
    ASSERT_EQ(chmod(folder.Native("").constData(), 0777), 0);
    Choose(u"a"_s);
    const bool wasTold = HoldsAsNobody([this] {
        ExpectReadError();
        tool.Split();
        return tool.Count() == u"Split Count: Read Error"_s && machine.dialogs.AllCame();
    });
    EXPECT_TRUE(wasTold);
    EXPECT_EQ(Names(), QStringList{u"a"_s});
}

TEST_F(RealDiscSplit, AFullDiscAtEachWriteCleansNothing)
{
    constexpr int part = 40 << 10;
    const QByteArray contents = QByteArray("0123456789abcdef").repeated(3 * part / 16);
    for (int failing = 1; failing <= 3; ++failing) {
        tool.page.cmbSplitSize.SetText(u"40"_s);
        const auto holds = HoldsAmongOwnMounts([&] {
            // Room for the file, the parts before this one, and half of it.
            if (!MountMemory(folder.Native(""), contents.size() + (failing - 1) * part + part / 2))
                return false;
            Put(u"a"_s, contents);
            Choose(u"a"_s);
            tool.Split();
            QStringList left{u"a"_s};
            for (int made = 1; made <= failing; ++made)
                left += u"a."_s + QString::number(made);
            bool areWhole = Read(u"a"_s) == contents;
            for (int made = 1; made < failing; ++made)
                areWhole = areWhole && Read(left.at(made)) == contents.mid((made - 1) * part, part);
            return tool.Count() == u"Split Count: Write Error"_s && tool.Status() == u"Wait working..."_s
                && areWhole && Names() == left;
        });
        if (!holds)
            GTEST_SKIP() << "This system lets nobody have mounts of their own.";
        EXPECT_TRUE(*holds) << failing;
    }
}

TEST_F(RealDiscSplit, AFullDiscUnderTheBatchFileIsToldAndTheRunEnds)
{
    const QByteArray contents(40 << 10, 'a');
    const auto holds = HoldsAmongOwnMounts([&] {
        if (!MountMemory(folder.Native(""), 2 * contents.size()))
            return false;
        Put(u"a"_s, contents);
        Choose(u"a"_s);
        tool.page.cmbSplitSize.SetText(u"40"_s);
        machine.dialogs.ExpectBox(u"Unable to copy a.2 to  A:\\a.2"_s);
        tool.Split();
        return machine.dialogs.AllCame() && tool.Count() == u"Split Count: Finished (1 Files)"_s
            && Read(u"a.1"_s) == contents;
    });
    if (!holds)
        GTEST_SKIP() << "This system lets nobody have mounts of their own.";
    EXPECT_TRUE(*holds);
}

TEST_F(RealDiscSplit, AFullDiscUnderAJoinLeavesItsPartsAndWhatWasWritten)
{
    for (const QString &name : {u"a.1"_s, u"a.2"_s, u"a.3"_s})
        Put(name, QByteArray(3000, name.back().toLatin1()));
    tool.page.cboFileName.UserEdits(Path(u"a"_s));
    {
        const FullDisc full(5000);
        tool.Join();
    }
    EXPECT_EQ(tool.Count(), u"Join Count: Write Error"_s);
    EXPECT_EQ(Read(u"a"_s), QByteArray(3000, '1') + QByteArray(2000, '2'));
    EXPECT_EQ(Names(), (QStringList{u"a"_s, u"a.1"_s, u"a.2"_s, u"a.3"_s}));
}

TEST_F(RealDiscSplit, LongPartsComeTogetherAlsoWhereTheDiscHasNoShortWay)
{
    // Each longer than a step of the short way, and no multiple of one.
    const QByteArray contents = QByteArray("0123456789abcdef!").repeated(300000);
    for (const bool hasShortWay : {true, false}) {
        Put(u"a.1"_s, contents);
        Put(u"a.2"_s, contents.mid(1000));
        tool.page.cboFileName.UserEdits(Path(u"a"_s));
        files.hasShortWay = hasShortWay;
        tool.Join();
        EXPECT_EQ(tool.Count(), u"File Count: Finished (2 Files)"_s);
        EXPECT_TRUE(files.Open(Path(u"a"_s), OpenFor::Reading)->Read(1 << 30)
                    == contents + contents.mid(1000));
        files.RemoveFile(Path(u"a"_s));
    }
}

TEST_F(RealDiscSplit, TheSourceMayGrowAndShrinkInMidRun)
{
    const QByteArray contents = QByteArray("0123456789").repeated(250);
    Put(u"a"_s, contents);
    Choose(u"a"_s);
    machine.events.At(1, [&] { files.Open(Path(u"a"_s), OpenFor::Appending)->Write("more"); });
    tool.Split();
    EXPECT_EQ(Read(u"a.1"_s) + Read(u"a.2"_s) + Read(u"a.3"_s), contents + "more");
    machine.events.At(1, [&] { files.Open(Path(u"a"_s), OpenFor::Changing)->Resize(1500); });
    tool.Split();
    EXPECT_EQ(tool.Count(), u"Split Count: Finished (2 Files)"_s);
    EXPECT_EQ(Read(u"a.1"_s) + Read(u"a.2"_s), contents.left(1500));
}

TEST_F(RealDiscSplit, AFolderInAPartsPlaceIsAWriteErrorAndStays)
{
    Put(u"a"_s, QByteArray(2500, 'a'));
    ASSERT_FALSE(files.TryMakeFolder(Path(u"a.2"_s)));
    Put(u"a.2/inside"_s, "mine");
    Choose(u"a"_s);
    tool.Split();
    EXPECT_EQ(tool.Count(), u"Split Count: Write Error"_s);
    EXPECT_EQ(Read(u"a.2/inside"_s), "mine");
    EXPECT_EQ(Names(), (QStringList{u"a"_s, u"a.1"_s, u"a.2"_s}));
}

TEST_F(RealDiscSplit, TheProcessKeepsItsFolder)
{
    std::array<char, 4096> before{};
    ASSERT_TRUE(getcwd(before.data(), before.size()));
    Put(u"a"_s, "12345");
    Choose(u"a"_s);
    tool.Split();
    std::array<char, 4096> after{};
    ASSERT_TRUE(getcwd(after.data(), after.size()));
    EXPECT_EQ(before, after);
    EXPECT_EQ(tool.session.CurrentFolder, folder.Path() + u'/');
}

} // namespace
