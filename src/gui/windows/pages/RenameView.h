// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

class QWidget;

namespace tressel {

/// The page that renames what stands in a folder.
QWidget *MakeRenameView();

} // namespace tressel
