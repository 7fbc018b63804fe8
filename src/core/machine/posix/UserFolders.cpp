// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/posix/UserFolders.h"

#include <QtGlobal>

#include <pwd.h>
#include <unistd.h>

namespace tressel {

QByteArray HomeFolder()
{
    QByteArray home = qgetenv("HOME");
    if (home.isEmpty()) {
        const passwd *const user = getpwuid(getuid());
        home = user ? QByteArray(user->pw_dir) : QByteArray();
    }
    while (home.endsWith('/'))
        home.chop(1);
    return home;
}

QByteArray UserDataFolder()
{
    const QByteArray data = qgetenv("XDG_DATA_HOME");
    return data.startsWith('/') ? data : HomeFolder() + "/.local/share";
}

} // namespace tressel
