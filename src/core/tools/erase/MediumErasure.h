// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/FileSystem.h"

#include <QByteArray>

#include <functional>

namespace tressel {

/// What is known of the place that an overwritten file's bytes had on the medium.
enum class Overwritten {
    InPlace, ///< the new bytes stand where the old ones stood
    Elsewhere, ///< the file system put new bytes at other places: the old ones may still be there
    Journalled, ///< in a journal too: the new bytes, and so perhaps the old ones before them
    Unknown, ///< the file system doesn't tell, or keeps bytes packed, shared or encrypted
};

/// Erases a file so that as little as can be remains on the medium, and says how much that is: each pass is
/// down on the medium before the next, the last one is read back, and the name goes too. Slower and stricter
/// than the page's run, for a command line.
class MediumErasure {
public:
    /// `betweenBlocks` is called with the bytes of each block written or read back, and may throw to stop.
    MediumErasure(FileSystem &files, int passes, bool keepsName, std::function<void(qint64)> betweenBlocks);

    /// Why a path may not be erased, in a sentence; nothing if it may. Touches nothing. A file of several
    /// names is refused unless `allNames`: its bytes are gone under all of them.
    static std::optional<QString> WhyNot(FileSystem &files, const QString &path, bool allNames);

    /// Overwrites the file, gives it a name that tells nothing, cuts it, removes it and has its folder
    /// written down. Fails with 70 for a file that another program holds, with 57 if what is read back isn't
    /// what was written, and with 75 if another file has come in its place, which stays; after a failure the
    /// file is still there, as far as it was overwritten, under its own name. If that can't be given back,
    /// the failure says what it is called.
    Overwritten Erase(const QString &path);
    /// True if what the last file's name stands for has lost something of its contents.
    bool HasBegun() const { return hasBegun; }

private:
    void WritePass(OpenFile &file, qint64 length);
    void ReadBack(OpenFile &file, qint64 length);
    QString TakeName(const QString &path);
    void Remove(OpenFile &file, const QString &path);
    void RefuseAnother(const QString &path);
    void GiveNameBack(const QString &present, const QString &path, const Failure &why);

    FileSystem &files;
    int passes;
    bool keepsName;
    std::function<void(qint64)> betweenBlocks;
    bool hasBegun = false;
    QByteArray block; ///< what a pass writes, again and again
};

} // namespace tressel
