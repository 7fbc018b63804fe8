// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/FolderWalk.h"

#include "machine/FileSystem.h"

namespace tressel {

FolderWalk::FolderWalk(FileSystem &files, const QString &folder, const QStringList &names)
    : hold(files.Hold(folder))
    , separator(files.Separator())
    , path(folder)
{
    Enter(names);
}

FolderWalk::~FolderWalk() = default;

std::optional<QString> FolderWalk::Next()
{
    while (!levels.empty() && levels.back().next == levels.back().names.size())
        levels.pop_back();
    if (levels.empty())
        return {};
    Level &level = levels.back();
    path.truncate(level.length);
    path += level.names.at(level.next++);
    return path;
}

void FolderWalk::Enter(const QStringList &names)
{
    if (!path.endsWith(separator))
        path += separator;
    levels.push_back({path.size(), names});
}

} // namespace tressel
