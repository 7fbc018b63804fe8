// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/CheckBox.h"
#include "controls/Label.h"
#include "controls/ListBox.h"
#include "controls/TextBox.h"
#include "controls/TreeView.h"

namespace tressel {

/// The part of the main window that stands beside every page and that all tools work on: the path row,
/// the tree with the list of names, and the status line.
class WorkArea {
public:
    explicit WorkArea(Form &form);

    Label lblTitle;
    TextBox txtStrtPath;
    CheckBox chkExtension;
    CheckBox chkButtonBar;
    TreeView TVList;
    ListBox LstItem;
    Label lblStatusLine;
};

} // namespace tressel
