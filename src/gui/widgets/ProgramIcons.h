// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QIcon>
#include <QString>

namespace tressel {

/// Where the drawing of one of the program's own icons is, whether there is one or not.
QString IconPath(const QString &name);

/// One of the program's own icons, sharp at any size; empty if there is none of that name.
QIcon ProgramIcon(const QString &name);

} // namespace tressel
