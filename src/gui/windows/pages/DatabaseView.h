// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

class QWidget;

namespace tressel {

/// The page that takes names from a database: its file, its tables and its fields.
QWidget *MakeDatabaseView();

} // namespace tressel
