// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "FolderListFixture.h"

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

class BrowsedFolder : public TextList {
protected:
    BrowsedFolder()
    {
        for (const QString &name : {u"b.txt"_s, u"A.doc"_s, u"plain"_s})
            machine.files.PutFile(u"C:\\Docs\\"_s + name, "x");
        machine.files.PutFolder(u"C:\\Docs\\Sub"_s);
        machine.files.PutFile(u"C:\\Docs\\Sub\\inner.txt"_s, "x");
        machine.files.PutFolder(u"C:\\Lists"_s);
        application.settings.Write(keys::LastDBPath, u"C:\\Docs"_s);
        Start();
    }
};

TEST_F(BrowsedFolder, ShowsItsFilesSorted)
{
    EXPECT_EQ(Form().browse.FileList.Items(), (QStringList{u"A.doc"_s, u"b.txt"_s, u"plain"_s}));
    EXPECT_EQ(Form().browse.DirList.Items(), (QStringList{u"C:\\"_s, u"Docs"_s, u"Sub"_s}));
}

TEST_F(BrowsedFolder, ClickOnAFolderShowsItsFiles)
{
    Form().browse.DirList.UserSelects(2);
    EXPECT_EQ(Form().browse.FileList.Items(), QStringList{u"inner.txt"_s});
    EXPECT_EQ(Form().browse.DirList.Path(), u"C:\\Docs"_s);
    Form().browse.DirList.UserActivates(2);
    EXPECT_EQ(Form().browse.DirList.Path(), u"C:\\Docs\\Sub"_s);
    EXPECT_EQ(Form().browse.FileList.Items(), QStringList{u"inner.txt"_s});
}

TEST_F(BrowsedFolder, ClickOnADriveGivesTheFoldersTheirDrive)
{
    machine.files.AddDrive(u'D', u"Music"_s);
    machine.files.PutFile(u"D:\\song.mp3"_s, "x");
    Form().browse.DrvList.Refresh();
    Form().browse.DrvList.UserSelects(1);
    EXPECT_EQ(Form().browse.DirList.Path(), u"D:\\"_s);
    EXPECT_EQ(Form().browse.FileList.Items(), QStringList{u"song.mp3"_s});
}

TEST_F(BrowsedFolder, DriveWithoutAMediumIsLeftAgain)
{
    machine.files.AddDrive(u'D');
    Form().browse.DrvList.Refresh();
    machine.files.SetReady(u'D', false);
    Form().browse.DrvList.UserSelects(1);
    EXPECT_EQ(Form().browse.DirList.Path(), u"C:\\Docs"_s);
    EXPECT_EQ(Form().browse.DrvList.Drive(), u"C:\\"_s);
}

TEST_F(BrowsedFolder, LoadListTakesAllNamesAsTheyStand)
{
    application.session.ListFile = listPath;
    application.session.RunNumber = 7;
    Area().chkExtension.SetChecked(true);
    Form().btnGBToolbarLoadList.UserClicks();
    EXPECT_EQ(Entries(), (QStringList{u"A.doc"_s, u"b.txt"_s, u"plain"_s}));
    EXPECT_EQ(application.session.RunNumber, 1);
    EXPECT_EQ(machine.files.Bytes(listPath), "A.doc\r\nb.txt\r\nplain\r\n");
    EXPECT_EQ(Status(), u"Finished"_s);
    EXPECT_TRUE(HasFlags(false, true, false));
}

TEST_F(BrowsedFolder, DoubleClickGoesOutToTheFileAndBack)
{
    application.session.ListFile = listPath;
    Area().chkExtension.SetValue(2);
    Area().chkExtension.SetChecked(true);
    Form().browse.FileList.UserActivates(1);
    EXPECT_EQ(Entries(), QStringList{u"b"_s});
    EXPECT_EQ(machine.files.Bytes(listPath), "b.txt\r\n");
    EXPECT_TRUE(HasFlags(false, false, true));
}

TEST_F(BrowsedFolder, DoubleClickTellsTheName)
{
    application.session.ListFile = listPath;
    QStringList texts;
    Area().lblStatusLine.Change.Also([&] { texts += Status(); });
    Form().browse.FileList.UserActivates(1);
    EXPECT_TRUE(texts.contains(u"File ''b.txt'' added to list"_s));
}

TEST_F(BrowsedFolder, SameFileTwiceMakesTwoEntries)
{
    application.session.ListFile = listPath;
    Form().browse.FileList.UserActivates(1);
    Form().browse.FileList.UserActivates(1);
    EXPECT_EQ(Entries(), (QStringList{u"b.txt"_s, u"b.txt"_s}));
}

TEST_F(BrowsedFolder, DoubleClickWithoutAListFileLeavesNothing)
{
    Form().browse.FileList.UserActivates(1);
    EXPECT_TRUE(Entries().isEmpty());
    EXPECT_EQ(Status(), waiting);
    EXPECT_TRUE(machine.events.IsBusy());
}

TEST_F(BrowsedFolder, RemoveExtReloadsFromTheRememberedSource)
{
    Load("one.txt\n");
    Area().chkExtension.UserToggles();
    EXPECT_EQ(Entries(), QStringList{u"one"_s});
    Area().chkExtension.UserToggles();
    EXPECT_EQ(Entries(), QStringList{u"one.txt"_s});

    // From a text file the tree is built twice, from a double clicked file once.
    int rebuilds = 0;
    Area().lblStatusLine.Change.Also([&] { rebuilds += Status() == u"Finished"_s ? 1 : 0; });
    Area().chkExtension.UserToggles();
    EXPECT_EQ(rebuilds, 2);
    Area().chkExtension.UserToggles();
    Area().lblStatusLine.Change.Also([] {});

    application.session.ListFromTextFile = false;
    Area().LstItem.Clear();
    Area().chkExtension.UserToggles();
    EXPECT_TRUE(Entries().isEmpty());

    machine.files.PutFile(u"C:\\Lists\\report.txt"_s, "from.rep\r\n");
    application.settings.Write(keys::ReportFile, u"C:\\Lists\\report.txt"_s);
    Form().listing.ChckValg.SetChecked(false);
    application.session.ListFromReport = true;
    Area().chkExtension.UserToggles();
    EXPECT_EQ(Entries(), QStringList{u"from.rep"_s});
    application.session.ListFromReport = false;
    Area().chkExtension.SetChecked(true);
    application.session.ListFromFileList = true;
    Area().chkExtension.UserToggles();
    EXPECT_EQ(Entries(), QStringList{u"one.txt"_s});
}

} // namespace
