// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/emptyfolders/EmptyFoldersPage.h"

namespace tressel {

using namespace Qt::StringLiterals;

EmptyFoldersPage::EmptyFoldersPage(Form &form, FileSystem &files)
    : page(form, u"FrameXPMenu(5)"_s)
    , DrvListRemove(form, u"DrvListRemove"_s, files)
    , DirListRemove(form, u"DirListRemove"_s, files)
    , ListRemove(form, u"ListRemove"_s)
    , btnGBToolbarSearch(form, u"btnGBToolbarSearch"_s, u"Find Dir"_s)
    , btnGBToolbarOpenDir(form, u"btnGBToolbarOpenDir"_s, u"Open Dir"_s)
    , btnGBToolbarDelDir(form, u"btnGBToolbarDelDir"_s, u"Del current"_s)
    , btnGBToolbarDeleteAll(form, u"btnGBToolbarDeleteAll"_s, u"Delete All"_s)
    , btnGBToolbarCopy(form, u"btnGBToolbarCopy"_s, u"Clipboard"_s)
{
    // A drive that isn't ready is no one's to mend here: the failure leaves the event.
    DrvListRemove.Change.Handle([this] { DirListRemove.SetPath(DrvListRemove.Drive()); });
    btnGBToolbarSearch.SetEnabled(false);
    btnGBToolbarOpenDir.SetEnabled(false);
    btnGBToolbarDelDir.SetEnabled(false);
    btnGBToolbarDeleteAll.SetEnabled(false);
    btnGBToolbarCopy.SetEnabled(false);
}

void EmptyFoldersPage::ResetFoundList(Label &lblStatusLine)
{
    for (IsButton *button :
         {&btnGBToolbarOpenDir, &btnGBToolbarDelDir, &btnGBToolbarDeleteAll, &btnGBToolbarCopy})
        button->SetEnabled(false);
    ListRemove.Clear();
    lblStatusLine.SetCaption(u"Ready"_s);
}

} // namespace tressel
