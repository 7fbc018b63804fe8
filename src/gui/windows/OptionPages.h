// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

class QWidget;

namespace tressel {

/// All pages of the options dialog in one place and of one size. The form says which of them are seen; the
/// colours lie in front of the others.
QWidget *MakeOptionPages();

} // namespace tressel
