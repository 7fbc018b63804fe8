// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

class QWidget;

namespace tressel {

/// Opens the small window that tells the button's name and version. It deletes itself when closed.
void ShowButtonAboutBox(QWidget &owner);

} // namespace tressel
