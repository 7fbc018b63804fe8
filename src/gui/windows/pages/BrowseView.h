// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

class QWidget;

namespace tressel {

/// The page for browsing: drives, folders and files, which share what height there is.
QWidget *MakeBrowseView();

} // namespace tressel
