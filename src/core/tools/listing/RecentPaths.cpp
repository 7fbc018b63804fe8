// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/listing/RecentPaths.h"

#include "base/Steps.h"
#include "settings/Settings.h"

#include <algorithm>

namespace tressel {

RecentPaths::RecentPaths(ComboBox &combo, Settings &stored)
    : CboFilePath(combo)
    , settings(stored)
{
}

void RecentPaths::LoadRecentPaths()
{
    CboFilePath.Clear();
    for (int index = keys::RecentPath.first; index <= keys::RecentPath.last; ++index) {
        QString path;
        Steps steps;
        steps.Do([&] { path = settings.ReadText(keys::RecentPath.At(index)); });
        if (path.isEmpty()) {
            CboFilePath.SetText(CboFilePath.Items().value(0));
            return;
        }
        CboFilePath.AddItem(path);
    }
}

void RecentPaths::SaveRecentPath()
{
    const QString path = CboFilePath.Text();
    if (Holds(path))
        return;
    Steps steps;
    // One goes for the one that comes. Kept: paths that were dropped may have made the list longer than
    // is stored, and it stays that long.
    if (CboFilePath.ListCount() > keys::RecentPath.last)
        steps.Do([&] { CboFilePath.RemoveItem(0); });
    if (!path.isEmpty())
        CboFilePath.AddItem(path);
    const int stored = std::min(CboFilePath.ListCount() - 1, keys::RecentPath.last);
    for (int index = keys::RecentPath.first; index <= stored; ++index)
        steps.Do([&] { settings.Write(keys::RecentPath.At(index), CboFilePath.Item(index)); });
}

void RecentPaths::AddDropped(const QString &path)
{
    if (!path.isEmpty() && !Holds(path))
        CboFilePath.AddItem(path);
}

bool RecentPaths::Holds(const QString &path) const
{
    return CboFilePath.Items().contains(path, Qt::CaseInsensitive);
}

} // namespace tressel
