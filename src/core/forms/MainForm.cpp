// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "forms/MainForm.h"

#include "forms/FormContext.h"
#include "forms/OptionForm.h"
#include "machine/Dialogs.h"
#include "machine/Paths.h"
#include "machine/Shell.h"
#include "tools/ClickSound.h"
#include "tools/dialogs/BrowseForFolder.h"

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

// The window as it was drawn, in twips.
constexpr int designWidth = 13470;
constexpr int designHeight = 19275;
constexpr int narrowest = 8120;
constexpr int lowest = 6825;
constexpr int barWidth = 8 * 15;

} // namespace

MainForm::MainForm(const FormContext &program, OptionForm &allOptions)
    : Form(u"frmMain"_s)
    , machine(program.machine)
    , settings(program.settings)
    , session(program.session)
    , optionForm(allOptions)
    , catalogue(program.catalogue)
    , options(allOptions.Live())
    , clickSound(program.clickSound)
    , FrmeToolbar(*this, u"FrmeToolbar"_s)
    , btnGBToolbarCreate(*this, u"btnGBToolbarCreate"_s, u"Create"_s)
    , btnGBToolbarLoadList(*this, u"btnGBToolbarLoadList"_s, u"Load List"_s)
    , btnGBToolbarBrowse(*this, u"btnGBToolbarBrowse"_s, u"Browse"_s)
    , btnGBToolbarOption(*this, u"btnGBToolbarOption"_s, u"Option"_s)
    , btnGBToolbarUpdate(*this, u"btnGBToolbarUpdate"_s, u"Update"_s)
    , btnGBToolbarAbout(*this, u"btnGBToolbarAbout"_s, u"About"_s)
    , btnGBToolbarExit(*this, u"btnGBToolbarExit"_s, u"Exit"_s)
    , FrmeSep{Frame(*this, u"FrmeSep(0)"_s), Frame(*this, u"FrmeSep(1)"_s)}
    , area(*this)
    , context{*this, area, machine, settings, session, options, clickSound, program.watch}
    , tree(context)
    , listFile(context, tree)
    , EyeDropper1(*this, u"EyeDropper1"_s)
    , Picture3(*this, u"Picture3"_s)
    , browse(context, tree, listFile)
    , FrameXPMenu6(*this, u"FrameXPMenu(6)"_s)
    , textLists(context, listFile)
    , listing(context, listFile)
    , erase(context)
    , creation(context, browse.DirList)
    , numbered(context, browse.DirList)
    , splitter(context)
    , database(context, tree)
    , emptyFolders(context)
    , rename(context)
    , FrameXPMenu3(*this, u"FrameXPMenu(3)"_s)
    , Picture4(*this, u"Picture4"_s)
    , PicStrip(*this, u"PicStrip"_s)
    , PicHold(*this, u"PicHold"_s)
    , PicStatus(*this, u"PicStatus"_s)
    , update(context, program.version)
    , FrameXPMenu{&browse.page,   &rename.page,       &numbered.page, &FrameXPMenu3,
                  &database.page, &emptyFolders.page, &FrameXPMenu6,  &splitter.page}
{
    SetFirstValues();
    PlaceIcons();
    TieToolbar();
    TiePathRow();
    TieTree();
    TieListing();
    TieSideBar();
    TieLayout();
    optionForm.Serve(*this);
    Load.Handle([this] { LoadForm(); });
    Activate.Handle([this] { update.CheckForUpdate(); });
    QueryUnload.Handle([this](bool &) { SaveSecondStore(); });
    Unloading.Handle([this](bool &refused) { UnloadForm(refused); });
    Unloaded.Handle([this] { EndProgram(); });
}

void MainForm::SetFirstValues()
{
    SetCaption(u"Tressel"_s);
    SetSize(designWidth, designHeight);
    SetLeastSize(narrowest, lowest);
    PicStrip.SetWidth(barWidth);

    Picture4.SetVisible(false);
}

void MainForm::PlaceIcons()
{
    const std::array<std::pair<IsButton &, const char16_t *>, 7> toolbar{{
        {btnGBToolbarCreate, u"create"},
        {btnGBToolbarLoadList, u"load-list"},
        {btnGBToolbarBrowse, u"browse"},
        {btnGBToolbarOption, u"option"},
        {btnGBToolbarUpdate, u"update"},
        {btnGBToolbarAbout, u"about"},
        {btnGBToolbarExit, u"exit"},
    }};
    for (const auto &[button, icon] : toolbar)
        button.PlaceIcon(Picture(QString::fromUtf16(icon)));
}

void MainForm::TieToolbar()
{
    btnGBToolbarCreate.Click.Handle([this] { btnGBToolbarCreate_Click(); });
    btnGBToolbarLoadList.Click.Handle([this] { btnGBToolbarLoadList_Click(); });
    btnGBToolbarBrowse.Click.Handle([this] { btnGBToolbarBrowse_Click(); });
    btnGBToolbarUpdate.Click.Handle([this] { btnGBToolbarUpdate_Click(); });
    btnGBToolbarAbout.Click.Handle([this] { btnGBToolbarAbout_Click(); });
    btnGBToolbarOption.Click.Handle([this] { btnGBToolbarOption_Click(); });
    btnGBToolbarExit.Click.Handle([this] { btnGBToolbarExit_Click(); });
}

void MainForm::TiePathRow()
{
    area.chkExtension.Click.Handle([this] { chkExtension_Click(); });
    area.txtStrtPath.Drop.Handle([this](const QStringList &paths) { txtStrtPath_Drop(paths); });
}

void MainForm::TieTree()
{
    area.TVList.NodeClick.Handle([this](int node) { TVList_NodeClick(node); });
}

void MainForm::TieListing()
{
    listing.SaveRenameSettings.Handle([this] { rename.SaveRenameSettings(); });
    listing.ResetEmptyFolderPage.Handle([this] { emptyFolders.ResetFoundList(); });
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
    const QString folder = BrowseFromPresent(machine.dialogs, machine.files,
                                             u"Select Destination Folder..."_s, area.txtStrtPath.Text());
    if (!folder.isEmpty())
        area.txtStrtPath.SetText(folder);
}

void MainForm::btnGBToolbarUpdate_Click()
{
    clickSound.Play();
    update.OpenDownloadPage();
}

void MainForm::btnGBToolbarAbout_Click()
{
    clickSound.Play();
    AboutWanted.Raise();
}

void MainForm::btnGBToolbarOption_Click()
{
    clickSound.Play();
    optionForm.Show();
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

void MainForm::txtStrtPath_Drop(const QStringList &paths)
{
    if (!paths.isEmpty())
        area.txtStrtPath.SetText(paths.first());
}

void MainForm::TVList_NodeClick(int node)
{
    const QString text = area.TVList.Nodes().at(node).text;
    SetCaption(text);
    // What isn't there yet can't be opened, and nobody is told.
    const QString start = area.txtStrtPath.Text();
    if (const auto folder = FolderBelow(machine.files, start, text))
        machine.shell.Open(*folder, start);
}

} // namespace tressel
