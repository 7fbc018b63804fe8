// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/AbsolutePath.h"

#include "machine/Paths.h"

#include <QStringList>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

/// As many as systems follow before they give a path up.
constexpr int mostLinks = 40;

/// How many characters of a path are its root: "C:" on a platform with drive letters, else "/"; 0 for a
/// relative one.
qsizetype LengthOfRoot(const FileSystem &files, const QString &path)
{
    const QChar separator = files.Separator();
    if (path.startsWith(separator))
        return 1;
    const bool hasDrive = separator == u'\\' && path.size() > 1 && path.at(1) == u':';
    return hasDrive ? 2 : 0;
}

/// Goes a path level by level.
class Resolver {
public:
    Resolver(FileSystem &fileSystem, Links lastName)
        : files(fileSystem)
        , last(lastName)
    {
    }

    QString Resolve(const QString &path, const QString &from)
    {
        if (path.isEmpty())
            throw Failure(FailureNumber::BadFileName);
        root = WithSeparator(files, from.left(LengthOfRoot(files, from)));
        Add(path);
        if (LengthOfRoot(files, path) == 0)
            Add(from);
        while (!coming.isEmpty())
            Enter(coming.takeLast());
        return root + reached.join(files.Separator());
    }

private:
    /// Puts the levels of a path before those that are still to come. One from the root starts there; without
    /// a drive of its own it is on the present one.
    void Add(const QString &path)
    {
        const qsizetype length = LengthOfRoot(files, path);
        if (length > 0)
            reached.clear();
        if (length > 1)
            root = WithSeparator(files, path.left(length));
        QStringList levels = path.mid(length).split(files.Separator());
        while (!levels.isEmpty())
            coming += levels.takeLast();
    }

    void Enter(const QString &level)
    {
        if (level.isEmpty() || level == u"."_s)
            return;
        if (level == u".."_s) {
            if (!reached.isEmpty())
                reached.removeLast();
            return;
        }
        reached += level;
        if (last == Links::Keep && coming.isEmpty())
            return;
        const QString path = root + reached.join(files.Separator());
        const auto status = files.Status(path, Links::Keep);
        if (!status || status->kind != EntryKind::Link)
            return;
        if (++links > mostLinks)
            throw Failure(FailureNumber::PathFileAccessError);
        reached.removeLast();
        Add(files.LinkTarget(path));
    }

    FileSystem &files;
    Links last;
    QString root;
    QStringList reached; ///< levels without links and ".."
    QStringList coming; ///< levels not yet looked at, the next one at the end
    int links = 0;
};

} // namespace

QString AbsolutePath(FileSystem &files, const QString &path, const QString &from, Links last)
{
    return Resolver(files, last).Resolve(path, from);
}

} // namespace tressel
