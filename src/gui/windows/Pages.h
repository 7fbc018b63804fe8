// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

class QWidget;

namespace tressel {

// The pages of the main window: widgets and their layout, one function a page. The widgets bear the names
// of the controls that they show.

QWidget *MakeBrowsePage();
QWidget *MakeRenamePage();
QWidget *MakeNumberedPage();
QWidget *MakeDatabasePage();
QWidget *MakeEmptyFoldersPage();
/// Text lists, listings and erasing.
QWidget *MakeTextPage();
QWidget *MakeSplitterPage();

} // namespace tressel
