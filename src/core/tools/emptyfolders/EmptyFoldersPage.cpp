// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/emptyfolders/EmptyFoldersPage.h"

#include "base/Steps.h"
#include "settings/Settings.h"
#include "tools/WorkArea.h"

namespace tressel {

using namespace Qt::StringLiterals;

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
    , settings(context.settings)
    , area(context.area)
    // A drive that isn't ready is no one's to mend here.
    , choice(DrvListRemove, DirListRemove, FolderChoice::Unready::Fails)
{
    PlaceIcons();
    btnGBToolbarSearch.SetEnabled(false);
    btnGBToolbarOpenDir.SetEnabled(false);
    btnGBToolbarDelDir.SetEnabled(false);
    btnGBToolbarDeleteAll.SetEnabled(false);
    btnGBToolbarCopy.SetEnabled(false);
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
    for (IsButton *button :
         {&btnGBToolbarOpenDir, &btnGBToolbarDelDir, &btnGBToolbarDeleteAll, &btnGBToolbarCopy})
        button->SetEnabled(false);
    ListRemove.Clear();
    area.lblStatusLine.SetCaption(u"Ready"_s);
}

} // namespace tressel
