// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "widgets/ProgramIcons.h"

#include <QFile>

// Drawings in a library stay out of the program unless they are asked for, which works only outside of
// any namespace.
static void LinkIcons()
{
    Q_INIT_RESOURCE(icons);
}

namespace tressel {

using namespace Qt::StringLiterals;

QString IconPath(const QString &name)
{
    [[maybe_unused]] static const bool linked = (LinkIcons(), true);
    return u":/icons/"_s + name + u".svg"_s;
}

QIcon ProgramIcon(const QString &name)
{
    const QString path = IconPath(name);
    return QFile::exists(path) ? QIcon(path) : QIcon();
}

} // namespace tressel
