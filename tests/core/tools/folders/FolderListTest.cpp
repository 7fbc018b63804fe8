// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "FolderListFixture.h"

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

TEST_F(TextList, CommentsAndEmptyLinesAreSkipped)
{
    Start();
    Load("; a comment\r\n\r\none\n  \ntwo;\r;last");
    EXPECT_EQ(Entries(), (QStringList{u"one"_s, u"  "_s, u"two;"_s}));
    EXPECT_EQ(Status(), u"Finished"_s);
    EXPECT_FALSE(machine.events.IsBusy());
}

TEST_F(TextList, FileOfCommentsGivesTheRootAlone)
{
    Start();
    Load("; nothing\r\n\r\n; here\r\n");
    EXPECT_TRUE(Entries().isEmpty());
    EXPECT_EQ(Area().TVList.Nodes().size(), 1);
    EXPECT_EQ(Area().TVList.Nodes().at(0).text, u"Create 0 Main Folders"_s);
}

TEST_F(TextList, RemoveExtTakesExtensionsOfThreeLetters)
{
    Start();
    Area().chkExtension.SetChecked(true);
    Load("report.txt\narchive.tar.gz\nabcd\na.bc\n.txt\n");
    EXPECT_EQ(Entries(), (QStringList{u"report"_s, u"archive.tar.gz"_s, u"abcd"_s, u"a.bc"_s, u""_s}));
}

TEST_F(TextList, ShortLineWithRemoveExtEndsTheLoadWhereItStands)
{
    Start();
    Area().chkExtension.SetChecked(true);
    Load("one.txt\nabc\ntwo.txt\n");
    EXPECT_EQ(Entries(), QStringList{u"one"_s});
    EXPECT_EQ(Status(), waiting);
    EXPECT_TRUE(machine.events.IsBusy());
    // The flags are set all the same.
    EXPECT_TRUE(HasFlags(false, true, false));
}

TEST_F(TextList, LoadTellsWhereFrom)
{
    Start();
    Load("x\n");
    EXPECT_EQ(Form().Caption(), u"Tressel v5.1450 - Files load from ... C:\\Lists\\names.txt"_s);
    const QString deep = u"C:\\"_s + QString(60, u'd') + u"\\"_s + QString(20, u'f') + u".txt"_s;
    Load("y\n", deep);
    EXPECT_EQ(Form().Caption(), u"Tressel v5.1450 - Files load from ... "_s + deep.right(70));
}

TEST_F(TextList, LoadDialogStartsInTheStoredFolder)
{
    machine.files.PutFolder(u"C:\\Docs"_s);
    application.settings.Write(keys::OpenTXTPath, u"C:\\Docs"_s);
    Start();
    Load("x\n");
    const FileDialogRequest &request = machine.dialogs.FileRequests().first();
    EXPECT_EQ(request.title, u"Open file"_s);
    EXPECT_EQ(request.folder, u"C:\\Docs"_s);
    EXPECT_EQ(request.filter, u"All Files (*.*)|*.*|TXT Files (*.txt)|*.txt|DOC Files (*.doc)|*.doc|"_s);
    EXPECT_EQ(request.filterIndex, 4);
    EXPECT_EQ(request.defaultExtension, u".txt"_s);
    EXPECT_EQ(request.fileName, u"*.txt"_s);
    EXPECT_EQ(Form().textLists.OpenTXTPath, u"C:\\Lists"_s);
}

TEST_F(TextList, CancelChangesNothing)
{
    Start();
    Load("x\n");
    application.session.ListFromTextFile = false;
    machine.dialogs.ExpectOpenFile(std::nullopt);
    Form().textLists.btnGBLoadFile.UserClicks();
    EXPECT_EQ(Entries(), QStringList{u"x"_s});
    EXPECT_EQ(application.session.ListFile, listPath);
    EXPECT_FALSE(application.session.ListFromTextFile);
}

TEST_F(TextList, MissingFileClearsTheListInSilence)
{
    Start();
    Load("x\n");
    machine.dialogs.ExpectOpenFile(u"C:\\Lists\\gone.txt"_s);
    Form().textLists.btnGBLoadFile.UserClicks();
    EXPECT_TRUE(Entries().isEmpty());
    EXPECT_EQ(Status(), waiting);
}

TEST_F(TextList, MissingFolderIsToldInABox)
{
    Start();
    machine.dialogs.ExpectOpenFile(u"C:\\Gone\\names.txt"_s);
    machine.dialogs.ExpectBox(
        {u"Files C:\\Gone\\names.txt not found."_s, u"Tressel"_s, BoxIcon::Exclamation});
    Form().textLists.btnGBLoadFile.UserClicks();
    EXPECT_TRUE(machine.dialogs.AllCame());
}

TEST_F(TextList, FolderAsListFileIsNoListAndNoCrash)
{
    Start();
    machine.files.PutFolder(listPath);
    machine.dialogs.ExpectOpenFile(listPath);
    Form().textLists.btnGBLoadFile.UserClicks();
    EXPECT_TRUE(Entries().isEmpty());
    EXPECT_EQ(Status(), waiting);
}

TEST_F(TextList, WhatIsTooLargeForAListOrNoFileIsToldInABox)
{
    Start();
    const auto boxAbout = [](const QString &path, const QString &reason) {
        return MessageBox{u"The list "_s + path + u" can't be loaded. "_s + reason, u"Tressel"_s,
                          BoxIcon::Exclamation};
    };
    machine.files.PutFile(listPath, QByteArray((64 << 20) + 1, 'x'));
    machine.dialogs.ExpectOpenFile(listPath);
    machine.dialogs.ExpectBox(boxAbout(listPath, u"The file is larger than 64 MiB."_s));
    Form().textLists.btnGBLoadFile.UserClicks();
    EXPECT_TRUE(machine.dialogs.AllCame());
    EXPECT_TRUE(Entries().isEmpty());
    EXPECT_EQ(Status(), waiting);

    const QString pipe = u"C:\\Lists\\pipe"_s;
    machine.files.PutPipe(pipe);
    machine.dialogs.ExpectOpenFile(pipe);
    machine.dialogs.ExpectBox(boxAbout(pipe, u"It is no regular file."_s));
    Form().textLists.btnGBLoadFile.UserClicks();
    application.settings.Write(keys::ReportFile, pipe);
    machine.dialogs.ExpectBox(boxAbout(pipe, u"It is no regular file."_s));
    Form().listFile.LoadReportList();
    EXPECT_TRUE(machine.dialogs.AllCame());
    // The reload at the start says nothing of what it doesn't take.
    Form().listFile.StartList();
}

TEST_F(TextList, ReadFailureInTheMiddleEndsTheLoad)
{
    Start();
    machine.files.FailAt(Operation::ReadBytes, listPath, 1, FailureNumber::DeviceIoError);
    Load("x\n");
    EXPECT_EQ(Status(), waiting);
}

TEST_F(TextList, OtherEncodingsAreRead)
{
    Start();
    Load("\xEF\xBB\xBF\xC3\x89t\xC3\xA9\n");
    EXPECT_EQ(Entries(), QStringList{u"Été"_s});
    Load("\xC9t\xE9 \x80\n");
    EXPECT_EQ(Entries(), QStringList{u"Été €"_s});
    Load(QByteArray("\xFF\xFE\xC9\0t\0\n\0", 8));
    EXPECT_EQ(Entries(), QStringList{u"Ét"_s});
    Load(QByteArray("\xFE\xFF\0\xC9\0t", 6));
    EXPECT_EQ(Entries(), QStringList{u"Ét"_s});
}

TEST_F(TextList, StartTakes32000BytesAndNoMore)
{
    const QByteArray line(QByteArray("12345678\r\n"));
    machine.files.PutFile(listPath, line.repeated(3200));
    application.settings.Write(keys::LastFile, listPath);
    Start();
    EXPECT_EQ(Area().LstItem.ListCount(), 3200);
    EXPECT_TRUE(HasFlags(false, true, false));
}

TEST_F(TextList, LargerFileIsRefusedAtStartOnly)
{
    const QByteArray line(QByteArray("12345678\r\n"));
    machine.files.PutFile(listPath, line.repeated(3200) + "x");
    application.settings.Write(keys::LastFile, listPath);
    Start();
    EXPECT_TRUE(Entries().isEmpty());
    EXPECT_EQ(application.session.ListFile, listPath);
    EXPECT_EQ(Form().Caption(), u"Tressel"_s);

    EXPECT_FALSE(machine.events.IsBusy());

    machine.dialogs.ExpectOpenFile(listPath);
    Form().textLists.btnGBLoadFile.UserClicks();
    EXPECT_EQ(Area().LstItem.ListCount(), 3201);
    EXPECT_THROW(Form().Unload(), ProcessEnded);
    EXPECT_EQ(application.settings.ReadText(keys::LastFile), listPath);
}

TEST_F(TextList, ListFileThatHasGoneIsAnEmptyListAtStart)
{
    machine.files.PutFolder(u"C:\\Lists"_s);
    application.settings.Write(keys::LastFile, listPath);
    Start();
    EXPECT_TRUE(Entries().isEmpty());
}

TEST_F(TextList, ListFileInAFolderThatHasGoneIsToldAtStart)
{
    application.settings.Write(keys::LastFile, listPath);
    machine.dialogs.ExpectBox(u"Files C:\\Lists\\names.txt not found."_s);
    Start();
    EXPECT_TRUE(machine.dialogs.AllCame());
    EXPECT_TRUE(Form().IsVisible());
}

TEST_F(TextList, SaveWritesTheEntriesAndForgetsComments)
{
    Start();
    Load("; comment\none\n\ntwo\n");
    machine.dialogs.ExpectSaveFile(u"C:\\Lists\\saved.txt"_s);
    Form().textLists.btnGBSaveFile.UserClicks();
    EXPECT_EQ(machine.files.Bytes(u"C:\\Lists\\saved.txt"_s), "one\r\ntwo\r\n");
    EXPECT_EQ(Form().Caption(), u"Tressel v5.1450 - saved to ... C:\\Lists\\saved.txt"_s);
    EXPECT_EQ(application.session.ListFile, u"C:\\Lists\\saved.txt"_s);

    const FileDialogRequest &request = machine.dialogs.FileRequests().last();
    EXPECT_EQ(request.title, u"Save file"_s);
    EXPECT_EQ(request.fileName, listPath);
    EXPECT_TRUE(request.askBeforeOverwriting);
}

TEST_F(TextList, SaveAsksASecondTimeBeforeItOverwrites)
{
    Start();
    List({u"new"_s});
    machine.files.PutFile(listPath, "old\r\n");
    const MessageBox question{listPath + u"\n\nAre you sure you want to overwrite this file?"_s,
                              u"Overwrite file"_s, BoxIcon::Question, BoxButtons::YesNo, BoxAnswer::No};
    machine.dialogs.ExpectSaveFile(listPath);
    machine.dialogs.ExpectBox(question, BoxAnswer::No);
    Form().textLists.btnGBSaveFile.UserClicks();
    EXPECT_EQ(machine.files.Bytes(listPath), "old\r\n");
    EXPECT_EQ(application.session.ListFile, u""_s);

    machine.dialogs.ExpectSaveFile(listPath);
    machine.dialogs.ExpectBox(question, BoxAnswer::Yes);
    Form().textLists.btnGBSaveFile.UserClicks();
    EXPECT_EQ(machine.files.Bytes(listPath), "new\r\n");
}

TEST_F(TextList, FullDiscLeavesTheOldFileWhole)
{
    Start();
    Load("old\n");
    // Room for some of the new list, after the old one.
    machine.files.AddDrive(u'C', {}, 6);
    List({u"new"_s, u"and longer"_s});
    const QString caption = Form().Caption();
    Form().listFile.SaveList();
    EXPECT_EQ(machine.files.Bytes(listPath), "old\n");
    EXPECT_EQ(Form().Caption(), caption);
    EXPECT_EQ(Entries(), (QStringList{u"old"_s, u"new"_s, u"and longer"_s}));
    EXPECT_EQ(machine.journal.About(u"CommitFile"_s), QStringList());
    EXPECT_EQ(machine.journal.Count(u"WriteBytes"_s), 1);
}

TEST_F(TextList, SaveIntoAMissingFolderIsSilent)
{
    Start();
    application.session.ListFile = u"C:\\Gone\\names.txt"_s;
    List({u"x"_s});
    Form().listFile.SaveList();
    EXPECT_EQ(Form().Caption(), u"Tressel"_s);
    // Without entries nothing is left to fail, so the end is reached.
    Area().LstItem.Clear();
    Form().listFile.SaveList();
    EXPECT_EQ(Form().Caption(), u"Tressel v5.1450 - saved to ... C:\\Gone\\names.txt"_s);
}

TEST_F(TextList, ReportListDiffersInItsWays)
{
    Start();
    Load("x\n");
    machine.files.PutFile(u"C:\\Rep\\List-01.txt"_s, "a\r\nb\r\n");
    application.settings.Write(keys::ReportFile, u"C:\\Rep\\List-01.txt"_s);
    machine.journal.Clear();
    QStringList texts;
    Area().lblStatusLine.Change.Also([&] { texts += Status(); });
    Form().listFile.LoadReportList();
    EXPECT_EQ(Entries(), (QStringList{u"a"_s, u"b"_s}));
    EXPECT_EQ(application.session.ReportFile, u"C:\\Rep\\List-01.txt"_s);
    EXPECT_EQ(Form().Caption(), u"Tressel v5.1450 - Files load from ... C:\\Lists\\names.txt"_s);
    EXPECT_EQ(texts, (QStringList{waiting, u"Finished"_s}));
    EXPECT_EQ(machine.journal.Count(u"BusyPointer"_s), 0);
}

TEST_F(TextList, ReportInAMissingFolderNamesTheListFile)
{
    Start();
    Load("x\n");
    application.settings.Write(keys::ReportFile, u"C:\\Gone\\r.txt"_s);
    machine.dialogs.ExpectBox(u"Files C:\\Lists\\names.txt not found."_s);
    Form().listFile.LoadReportList();
    EXPECT_TRUE(machine.dialogs.AllCame());
}

TEST_F(TextList, ListIsTheSameAtTheNextStartWithoutItsComments)
{
    Start();
    Load("; comment\none\n\ntwo\n");
    machine.dialogs.ExpectSaveFile(u"C:\\Lists\\saved.txt"_s);
    Form().textLists.btnGBSaveFile.UserClicks();
    EXPECT_THROW(Form().Unload(), ProcessEnded);

    Application next(machine.machine);
    next.Start();
    EXPECT_EQ(next.frmMain().area.LstItem.Items(), (QStringList{u"one"_s, u"two"_s}));
    EXPECT_EQ(machine.files.Bytes(u"C:\\Lists\\saved.txt"_s), "one\r\ntwo\r\n");
}

TEST_F(TextList, EveryButtonIsHeardBeforeItActs)
{
    Start();
    MainForm &form = Form();
    const QList<IsButton *> buttons = {&form.textLists.btnGBLoadFile, &form.textLists.btnGBSaveFile,
                                       &form.btnGBToolbarLoadList, &form.btnGBToolbarBrowse,
                                       &form.btnGBToolbarCreate};
    for (const bool isOn : {true, false}) {
        application.frmOption().OptSound.Select(isOn ? 0 : 1);
        for (IsButton *button : buttons) {
            machine.journal.Clear();
            if (button == buttons.at(0))
                machine.dialogs.ExpectOpenFile(std::nullopt);
            if (button == buttons.at(1))
                machine.dialogs.ExpectSaveFile(std::nullopt);
            if (button == buttons.at(3))
                machine.dialogs.ExpectChooseFolder(std::nullopt);
            button->UserClicks();
            EXPECT_EQ(machine.journal.Count(u"Play"_s), isOn ? 1 : 0) << button->Name().toStdString();
            if (isOn) {
                EXPECT_EQ(machine.journal.Entries().first().what, u"Play"_s) << button->Name().toStdString();
            }
        }
    }
}

TEST_F(TextList, SecondLoadInTheMiddleOfALoadAddsToIt)
{
    Start();
    machine.events.At(2, [this] { Form().listFile.LoadList(); });
    Load("one\ntwo\n");
    // The first load had read one line; the second cleared the list and read both, and then the first
    // went on with its second line.
    EXPECT_EQ(Entries(), (QStringList{u"one"_s, u"two"_s, u"two"_s}));
}

TEST_F(TextList, DropGivesTheFirstPath)
{
    Start();
    Area().txtStrtPath.UserDrops({u"C:\\Dropped"_s, u"C:\\Other"_s});
    EXPECT_EQ(Area().txtStrtPath.Text(), u"C:\\Dropped"_s);
    Area().txtStrtPath.UserDrops({});
    EXPECT_EQ(Area().txtStrtPath.Text(), u"C:\\Dropped"_s);
}

TEST_F(TextList, BrowseButtonTakesTheChosenFolder)
{
    Start();
    machine.dialogs.ExpectChooseFolder(u"C:\\Chosen"_s);
    Form().btnGBToolbarBrowse.UserClicks();
    EXPECT_EQ(Area().txtStrtPath.Text(), u"C:\\Chosen"_s);
    machine.dialogs.ExpectChooseFolder(std::nullopt);
    Form().btnGBToolbarBrowse.UserClicks();
    EXPECT_EQ(Area().txtStrtPath.Text(), u"C:\\Chosen"_s);
    // The first started in a folder that is there, the second one's isn't.
    EXPECT_EQ(machine.dialogs.StartFolders(), (QStringList{u"C:\\Work"_s, u""_s}));
    EXPECT_EQ(machine.journal.About(u"ChooseFolder"_s).first(), u"Select Destination Folder..."_s);
}

TEST_F(TextList, DoubleClickInTheListDoesNothing)
{
    Start();
    List({u"a"_s, u"b"_s});
    Area().LstItem.UserActivates(0);
    EXPECT_EQ(Entries(), (QStringList{u"a"_s, u"b"_s}));
}

} // namespace
