// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/emptyfolders/EmptyFoldersPage.h"

#include "base/Numbers.h"
#include "base/Steps.h"
#include "base/Version.h"
#include "machine/Clipboard.h"
#include "machine/Dialogs.h"
#include "machine/Events.h"
#include "machine/Paths.h"
#include "machine/Program.h"
#include "machine/Shell.h"
#include "settings/Settings.h"
#include "tools/ClickSound.h"
#include "tools/ListItemTip.h"
#include "tools/RunWatch.h"
#include "tools/WorkArea.h"

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

/// The use of an object was denied: no step of the file system fails with it today.
constexpr auto objectPermissionDenied = static_cast<FailureNumber>(419);

} // namespace

EmptyFoldersPage::EmptyFoldersPage(const ToolContext &context)
    : page(context.form, u"FrameXPMenu(5)"_s)
    , DrvListRemove(context.form, u"DrvListRemove"_s, context.machine.files)
    , DirListRemove(context.form, u"DirListRemove"_s, context.machine.files)
    , ListRemove(context.form, u"ListRemove"_s)
    , btnGBToolbarSearch(context.form, u"btnGBToolbarSearch"_s, u"Find Dir"_s)
    , btnGBToolbarOpenDir(context.form, u"btnGBToolbarOpenDir"_s, u"Open Dir"_s)
    , btnGBToolbarDelDir(context.form, u"btnGBToolbarDelDir"_s, u"Del current"_s)
    , btnGBToolbarDeleteAll(context.form, u"btnGBToolbarDeleteAll"_s, u"Delete All"_s)
    , btnGBToolbarCopy(context.form, u"btnGBToolbarCopy"_s, u"Clipboard"_s)
    , machine(context.machine)
    , clickSound(context.clickSound)
    , settings(context.settings)
    , watch(context.watch)
    , area(context.area)
    // A drive that isn't ready is no one's to mend here.
    , choice(DrvListRemove, DirListRemove, FolderChoice::Unready::Fails)
    , search(context, *this)
{
    PlaceIcons();
    SetFoundButtonsEnabled(false);
    TieHandlers();
}

void EmptyFoldersPage::TieHandlers()
{
    ListRemove.Click.Handle([this] { area.lblStatusLine.SetCaption(GetSelectedFolder()); });
    ListRemove.DoubleClick.Handle([this] { ListRemove_DoubleClick(); });
    ListRemove.MouseMove.Handle([this](int row) { ShowListItemTip(ListRemove, row); });
    btnGBToolbarSearch.Click.Handle([this] { btnGBToolbarSearch_Click(); });
    btnGBToolbarOpenDir.Click.Handle([this] { btnGBToolbarOpenDir_Click(); });
    btnGBToolbarDelDir.Click.Handle([this] { btnGBToolbarDelDir_Click(); });
    btnGBToolbarDeleteAll.Click.Handle([this] { btnGBToolbarDeleteAll_Click(); });
    btnGBToolbarCopy.Click.Handle([this] { btnGBToolbarCopy_Click(); });
}

void EmptyFoldersPage::PlaceIcons()
{
    btnGBToolbarSearch.PlaceIcon(Picture(u"search"_s));
    btnGBToolbarOpenDir.PlaceIcon(Picture(u"open-folder"_s));
    btnGBToolbarDelDir.PlaceIcon(Picture(u"delete-one"_s));
    btnGBToolbarDeleteAll.PlaceIcon(Picture(u"delete-all"_s));
    btnGBToolbarCopy.PlaceIcon(Picture(u"clipboard"_s));
}

void EmptyFoldersPage::Restore(Steps &steps)
{
    steps.Do([&] { choice.GoTo(settings.ReadText(keys::SearchPath)); });
}

void EmptyFoldersPage::Save()
{
    settings.Write(keys::SearchPath, DirListRemove.Path());
}

void EmptyFoldersPage::ResetFoundList()
{
    SetFoundButtonsEnabled(false);
    ListRemove.Clear();
    area.lblStatusLine.SetCaption(u"Ready"_s);
}

void EmptyFoldersPage::SetFoundButtonsEnabled(bool enabled)
{
    for (IsButton *button :
         {&btnGBToolbarOpenDir, &btnGBToolbarDelDir, &btnGBToolbarDeleteAll, &btnGBToolbarCopy})
        button->SetEnabled(enabled);
}

void EmptyFoldersPage::btnGBToolbarSearch_Click()
{
    clickSound.Play();
    area.lblStatusLine.SetCaption(u"I'm Working"_s);
    // One button starts and stops: its caption says what it does next.
    if (btnGBToolbarSearch.Caption() == u"Stop"_s)
        StopSearch();
    else
        Search(WithSeparator(machine.files, DirListRemove.Path()));
}

void EmptyFoldersPage::StopSearch()
{
    search.stopFlag = EmptyFolderSearch::stop;
    area.lblStatusLine.SetCaption(u"Cancel by user"_s);
    area.lblStatusLine.SetCaption(u"Found "_s + QString::number(ListRemove.ListCount()));
}

void EmptyFoldersPage::Search(const QString &root)
{
    ResetFoundList();
    search.stopFlag = EmptyFolderSearch::runOn;
    btnGBToolbarSearch.SetCaption(u"Stop"_s);
    area.lblStatusLine.SetCaption(u"I'm Working"_s);
    bool canRead = true;
    try {
        machine.files.Read(root);
    } catch (const Failure &failure) {
        canRead = false;
        watch.Failed(root, failure);
        machine.dialogs.Show(
            {u"Cannot access "_s + root + u'.', u"Error accessing drive"_s, BoxIcon::Critical});
    }
    searchedBelow = root;
    if (canRead) {
        const auto hold = machine.files.Hold(root);
        search.FindEmptyFolders(root);
    }
    EndSearch(root);
}

void EmptyFoldersPage::EndSearch(const QString &root)
{
    machine.events.SetBusyPointer(false);
    btnGBToolbarSearch.SetCaption(u"Find Dir"_s);
    search.stopFlag = EmptyFolderSearch::runOn;
    const bool foundSome = ListRemove.ListCount() > 0;
    if (foundSome)
        SetFoundButtonsEnabled(true);
    // Kept: a root that has gone by now is no one's to mend here; the failure leaves the event.
    DirListRemove.SetPath(root);
    if (!foundSome) {
        area.lblStatusLine.SetCaption(u"I'm Finished"_s);
        machine.dialogs.Show({u"No empty directories found."_s, u"Finished"_s, BoxIcon::Information});
    }
}

void EmptyFoldersPage::btnGBToolbarDeleteAll_Click()
{
    clickSound.Play();
    const MessageBox question{u"Are you sure you want to delete all empty folders"_s, ApplicationTitle,
                              BoxIcon::None, BoxButtons::YesNo};
    if (machine.dialogs.Show(question) == BoxAnswer::Yes) {
        try {
            DeleteListed();
        } catch (const Failure &) {
            // The folder that can't be removed and all after it stay listed, and nobody is told.
            return;
        }
    } else {
        area.lblStatusLine.SetCaption(u"I'm Finished"_s);
    }
    // Kept: also where the answer was No and the list stays.
    SetFoundButtonsEnabled(false);
}

void EmptyFoldersPage::DeleteListed()
{
    area.lblStatusLine.SetCaption(u"I'm Working"_s);
    const auto hold = machine.files.Hold(searchedBelow);
    watch.Started(ListRemove.ListCount());
    std::int16_t removed = 0;
    while (ListRemove.ListCount() > 0) {
        machine.events.LetEventsRun();
        watch.Next(ListRemove.Item(0));
        RemoveFolder(ListRemove.Item(0));
        DirListRemove.Refresh();
        ListRemove.RemoveItem(0);
        removed = ToInt16(removed + 1.0);
        area.lblStatusLine.SetCaption(u"Found "_s + QString::number(removed));
    }
    // Kept: the number of the removed doesn't stay on show.
    area.lblStatusLine.SetCaption(u"Found 0"_s);
}

void EmptyFoldersPage::RemoveFolder(const QString &folder)
{
    const auto failure = machine.files.TryRemoveFolder(folder);
    if (!failure) {
        watch.Did(Outcome::Removed, folder);
        return;
    }
    watch.Failed(folder, *failure);
    // Kept: this one is passed over, as if the folder had gone.
    if (failure->number != objectPermissionDenied)
        throw *failure;
}

void EmptyFoldersPage::btnGBToolbarDelDir_Click()
{
    clickSound.Play();
    const QString folder = GetSelectedFolder();
    if (folder.isEmpty()) {
        AskForSelection();
        ListRemove.SetListIndex(0);
        return;
    }
    const MessageBox question{u"Are you sure you want to delete "_s + folder + u'?', u"Remove Directory"_s,
                              BoxIcon::Question, BoxButtons::YesNo};
    if (machine.dialogs.Show(question) != BoxAnswer::Yes)
        return;
    try {
        DeleteSelected(folder);
    } catch (const Failure &) {
        // The folder stays listed, and nobody is told.
    }
}

void EmptyFoldersPage::DeleteSelected(const QString &folder)
{
    const auto hold = machine.files.Hold(searchedBelow);
    RemoveFolder(folder);
    DirListRemove.Refresh();
    const int index = ListRemove.ListIndex();
    const bool isFirstOfSeveral = ListRemove.ListCount() > 1 && index == 0;
    ListRemove.SetListIndex(isFirstOfSeveral ? 1 : index - 1);
    ListRemove.RemoveItem(index);
    if (ListRemove.ListCount() == 0) {
        area.lblStatusLine.SetCaption(u"Found 0"_s);
        ResetFoundList();
    }
}

void EmptyFoldersPage::btnGBToolbarOpenDir_Click()
{
    clickSound.Play();
    const QString folder = GetSelectedFolder();
    if (folder.isEmpty())
        AskForSelection();
    else
        OpenFolder(folder);
}

void EmptyFoldersPage::ListRemove_DoubleClick()
{
    // Kept: the button is marked as pressed, which presses nothing and which a plain button doesn't show.
    if (btnGBToolbarOpenDir.IsEnabled())
        btnGBToolbarOpenDir.SetValue(true);
    OpenFolder(GetSelectedFolder());
}

void EmptyFoldersPage::OpenFolder(const QString &folder)
{
    machine.shell.Open(folder, machine.program.Folder());
}

void EmptyFoldersPage::AskForSelection()
{
    machine.dialogs.Show({u"Please select a directory."_s, u"Error"_s, BoxIcon::Information});
}

void EmptyFoldersPage::btnGBToolbarCopy_Click()
{
    clickSound.Play();
    QString text;
    // Kept: counted in 16 bits; a longer list fails here, and the clipboard keeps what it has.
    for (std::int16_t index = 0; index < ListRemove.ListCount(); index = ToInt16(index + 1.0)) {
        machine.events.LetEventsRun();
        text += ListRemove.Item(index) + u"\r\n"_s;
        area.lblStatusLine.SetCaption(u"Total Directory Copy to clipboard is:  "_s
                                      + QString::number(index + 1));
    }
    machine.clipboard.SetText(text);
}

} // namespace tressel
