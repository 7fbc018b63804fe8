// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/folders/BrowsePage.h"

#include "base/Steps.h"
#include "language/FolderPaths.h"
#include "language/Session.h"
#include "settings/Settings.h"
#include "tools/WorkArea.h"
#include "tools/folders/FolderListFile.h"
#include "tools/folders/FolderTree.h"

namespace tressel {

using namespace Qt::StringLiterals;

BrowsePage::BrowsePage(const ToolContext &context, FolderTree &folderTree, FolderListFile &textFile)
    : page(context.form, u"FrameXPMenu(0)"_s)
    , DrvList(context.form, u"DrvList"_s, context.machine.files)
    , DirList(context.form, u"DirList"_s, context.machine.files)
    , FileList(context.form, u"FileList"_s, context.machine.files)
    , settings(context.settings)
    , area(context.area)
    , tree(folderTree)
    , listFile(textFile)
    , session(context.session)
    , choice(DrvList, DirList, FolderChoice::Unready::IsLeftAgain)
{
    DrvList.SetToolTip(u" List of drivelist "_s);
    DirList.SetToolTip(u" List of dirlist "_s);
    FileList.SetToolTip(u" List of filelist "_s);

    DirList.Click.Handle([this] { DirList_Click(); });
    DirList.Change.Handle([this] { DirList_Change(); });
    FileList.DoubleClick.Handle([this] { FileList_DoubleClick(); });
}

void BrowsePage::LoadAllNames()
{
    area.LstItem.Clear();
    session.RunNumber = 1;
    // Kept: the names come in as they stand, also where "Remove Ext" is checked.
    for (const QString &name : FileList.Items())
        area.LstItem.AddItem(EntryOfName(name));
    tree.RefreshFolderTree();
    area.lblStatusLine.SetCaption(u"Finished"_s);
    listFile.SaveList();
}

void BrowsePage::Restore(Steps &steps)
{
    steps.Do([&] { choice.GoTo(settings.ReadText(keys::LastDBPath)); });
    steps.Do([&] { FileList.SetPath(DirList.Path()); });
}

void BrowsePage::Save()
{
    settings.Write(keys::LastDBPath, DirList.Path());
}

void BrowsePage::DirList_Click()
{
    Steps steps;
    steps.Do([&] { FileList.SetPath(DirList.SelectedPath()); });
}

void BrowsePage::DirList_Change()
{
    Steps steps;
    steps.Do([&] { FileList.SetPath(DirList.Path()); });
}

void BrowsePage::FileList_DoubleClick()
{
    const QString name = FileList.FileName();
    area.LstItem.AddItem(EntryOfName(name));
    tree.RefreshFolderTree();
    area.lblStatusLine.SetCaption(u"File ''"_s + name + u"'' added to list"_s);
    session.ListFromReport = false;
    session.ListFromTextFile = false;
    session.ListFromFileList = true;
    // Out to the file and back: the loader is what takes an extension off the name. Kept: before a list
    // file was chosen both fail, and the list stays empty.
    listFile.SaveList();
    listFile.LoadList();
}

} // namespace tressel
