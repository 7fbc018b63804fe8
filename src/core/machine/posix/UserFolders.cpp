// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/posix/UserFolders.h"

#include <QtGlobal>

#include <pwd.h>
#include <sys/stat.h>
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

QByteArray UserConfigFolder()
{
    const QByteArray config = qgetenv("XDG_CONFIG_HOME");
    if (config.startsWith('/'))
        return config;
    const QByteArray home = HomeFolder();
    return home.startsWith('/') ? home + "/.config" : QByteArray();
}

QByteArray UserDataFolder()
{
    const QByteArray data = qgetenv("XDG_DATA_HOME");
    return data.startsWith('/') ? data : HomeFolder() + "/.local/share";
}

void MakeUserFolder(const QByteArray &folder)
{
    for (qsizetype end = folder.indexOf('/', 1); end >= 0; end = folder.indexOf('/', end + 1))
        mkdir(folder.left(end).constData(), S_IRWXU);
    mkdir(folder.constData(), S_IRWXU);
}

} // namespace tressel
