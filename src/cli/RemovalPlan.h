// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QSet>
#include <QString>

namespace tressel {

class Console;
class FileSystem;
class Tally;

/// Says which empty folders a run would remove, as if those before had gone, and tells a tally.
class RemovalPlan {
public:
    RemovalPlan(Console &console, Tally &tally);

    /// What RemoveFolderPathTelling would do with a path.
    void Remove(const QString &path);

private:
    bool WouldGo(const QString &folder);
    void TellRest(const QString &path);
    /// True if there is something in the folder that isn't about to go, or nobody knows.
    bool HoldsSomething(const QString &folder);
    bool LooksForWhatStays(const QString &folder);

    Console &console;
    FileSystem &files;
    Tally &tally;
    QSet<QString> gone;
    QHash<QString, QString> stays; ///< by the folder, what was seen to stay in it
};

} // namespace tressel
