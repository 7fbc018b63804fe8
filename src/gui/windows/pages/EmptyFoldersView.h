// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

class QWidget;

namespace tressel {

/// The page of empty folders: where to search, and what was found.
QWidget *MakeEmptyFoldersView();

} // namespace tressel
