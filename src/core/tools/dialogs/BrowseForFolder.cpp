// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/dialogs/BrowseForFolder.h"

#include "base/Numbers.h"
#include "machine/Dialogs.h"
#include "machine/FileSystem.h"
#include "machine/Paths.h"

namespace tressel {

using namespace Qt::StringLiterals;

QString BrowseForFolder(Dialogs &dialogs, FileSystem &files, const QString &Title, const QString &StartPath)
{
    // A root that is nothing but the separator stays: without it there would be no place to start at.
    QString start = StartPath;
    if (start.size() > 1 && start.endsWith(files.Separator()))
        start.chop(1);
    static_cast<void>(ToInt16(static_cast<double>(start.size())));
    const QString prompt = Title.isEmpty() ? u"Please, Select a folder."_s : Title;
    const QString chosen = dialogs.ChooseFolder(prompt, start).value_or(QString());
    // The root of a drive is known by the separator at its end.
    const QString asRoot = chosen.isEmpty() ? chosen : WithSeparator(files, chosen);
    return IsDriveRoot(files, asRoot) ? asRoot : chosen;
}

QString BrowseFromPresent(Dialogs &dialogs, FileSystem &files, const QString &title, const QString &present)
{
    return BrowseForFolder(dialogs, files, title, FolderExists(files, present) ? present : QString());
}

} // namespace tressel
