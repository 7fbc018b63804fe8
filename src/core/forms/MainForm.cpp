// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "forms/MainForm.h"

#include "machine/Dialogs.h"
#include "machine/Paths.h"
#include "machine/Shell.h"

namespace tressel {

using namespace Qt::StringLiterals;

MainForm::MainForm(const Machine &onMachine, Settings &stored, Session &shared, const LiveOptions &liveOptions)
    : Form(u"frmMain"_s)
    , machine(onMachine)
    , settings(stored)
    , session(shared)
    , options(liveOptions)
    , clickSound(machine.sound, machine.files, machine.program, options.OptSound)
    , FrmeToolbar(*this, u"FrmeToolbar"_s)
    , btnGBToolbarCreate(*this, u"btnGBToolbarCreate"_s, u"Create"_s)
    , btnGBToolbarLoadList(*this, u"btnGBToolbarLoadList"_s, u"Load List"_s)
    , btnGBToolbarBrowse(*this, u"btnGBToolbarBrowse"_s, u"Browse"_s)
    , btnGBToolbarExit(*this, u"btnGBToolbarExit"_s, u"Exit"_s)
    , area(*this)
    , tree(area, machine.events, session)
    , listFile(area, tree, machine.files, machine.events, machine.dialogs, settings, session)
    , browse(area, machine.files, tree, listFile, session)
    , textLists(area, machine.files, machine.dialogs, clickSound, listFile, session)
    , creation(area, browse.DirList, machine.files, machine.events, machine.dialogs, session)
    , numbered(*this, browse.DirList, options, clickSound, machine.files, machine.events, settings)
    , listing(area, machine, clickSound, listFile, settings, session)
{
    SetCaption(u"Tressel"_s);
    TieToolbar();
    TiePathRow();
    Load.Handle([this] { LoadForm(); });
    Unloading.Handle([this](bool &refused) { UnloadForm(refused); });
    Unloaded.Handle([this] { EndProgram(); });
}

void MainForm::TieToolbar()
{
    btnGBToolbarCreate.Click.Handle([this] { btnGBToolbarCreate_Click(); });
    btnGBToolbarLoadList.Click.Handle([this] { btnGBToolbarLoadList_Click(); });
    btnGBToolbarBrowse.Click.Handle([this] { btnGBToolbarBrowse_Click(); });
    btnGBToolbarExit.Click.Handle([this] { btnGBToolbarExit_Click(); });
}

void MainForm::TiePathRow()
{
    area.chkExtension.Click.Handle([this] { chkExtension_Click(); });
    area.txtStrtPath.Drop.Handle([this](const QStringList &paths) {
        if (!paths.isEmpty())
            area.txtStrtPath.SetText(paths.first());
    });
    area.TVList.NodeClick.Handle([this](int node) {
        const QString text = area.TVList.Nodes().at(node).text;
        SetCaption(text);
        // What isn't there yet can't be opened, and nobody is told.
        machine.shell.Open(EntryToPath(machine.files, text), area.txtStrtPath.Text());
    });
}

void MainForm::btnGBToolbarCreate_Click()
{
    clickSound.Play();
    session.DestinationPath = area.txtStrtPath.Text();
    creation.CreateFolders();
    tree.ShowCreatedTree();
    // Kept: a run that failed ends with this text too.
    area.lblStatusLine.SetCaption(u"Finished, folders created successfully"_s);
    numbered.DirBox.Refresh();
    browse.DirList.Refresh();
}

void MainForm::btnGBToolbarLoadList_Click()
{
    clickSound.Play();
    browse.LoadAllNames();
}

void MainForm::btnGBToolbarBrowse_Click()
{
    clickSound.Play();
    const QString present = area.txtStrtPath.Text();
    const QString start = FolderExists(machine.files, present) ? present : QString();
    const auto folder = machine.dialogs.ChooseFolder(u"Select Destination Folder..."_s, start);
    if (folder && !folder->isEmpty())
        area.txtStrtPath.SetText(*folder);
}

void MainForm::btnGBToolbarExit_Click()
{
    clickSound.Play();
    Unload();
}

void MainForm::chkExtension_Click()
{
    // Each flag is tested on its own, after what the one before has done.
    if (session.ListFromReport)
        listing.OpenResult();
    if (session.ListFromTextFile) {
        listFile.LoadList();
        // Kept: the tree is built twice.
        tree.RefreshFolderTree();
    }
    if (session.ListFromFileList)
        listFile.LoadList();
}

} // namespace tressel
