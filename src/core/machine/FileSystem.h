// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/Failure.h"

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QString>

#include <algorithm>
#include <memory>
#include <optional>
#include <span>

namespace tressel {

enum class EntryKind {
    File,
    Folder,
    Link, ///< a symbolic link, whatever it points to
    Other, ///< a device, pipe or socket
};

/// One entry of a folder, as a listing delivers it.
struct FolderEntry {
    QString name;
    EntryKind kind = EntryKind::File;
    bool hidden = false;
    qint64 length = 0; ///< bytes of a file, if it was asked for
};

/// Whether a listing looks at each file for its length, which takes several times as long.
enum class Lengths { LeftOut, Wanted };

/// What is known of one path.
struct FileStatus {
    EntryKind kind = EntryKind::File;
    qint64 length = 0; ///< bytes of a file, 0 for all else
    bool readOnly = false;
    bool hidden = false;
    QDateTime modified;
    quint64 volume = 0; ///< a number that all on the same volume share
    quint64 names = 1; ///< how many names (hard links) the file has
};

enum class Links {
    Follow, ///< speak of what a link points to
    Keep, ///< speak of the link itself
};

/// What to open a file for. None of them ever makes a folder, and none but Streaming waits for another
/// program or takes anything but a regular file, which is looked at when it is open; all else fails with 75.
enum class OpenFor {
    Reading, ///< the file must exist
    Streaming, ///< reading whatever it is, a pipe or a device too: for what somebody names at this moment
    Writing, ///< made or emptied
    Appending, ///< made if it isn't there
    Changing, ///< read and write in place; the file must exist, and a link is refused with 75
    Creating, ///< must not exist; fails with 58 if it does
};

enum class Sharing {
    Shared,
    Exclusive, ///< fails with 70 at once if another holds the file exclusively
};

/// A piece of a file, and where it stands on its medium; all in bytes.
struct Extent {
    quint64 offset = 0; ///< from the start of the file
    quint64 place = 0; ///< from the start of the medium
    quint64 length = 0;
    bool operator==(const Extent &) const = default;
};

/// An open file. Closed by its destructor; Close reports what a destructor can't.
class OpenFile {
public:
    virtual ~OpenFile() = default;

    /// Up to `maximum` bytes from the present position; fewer only at the end of the file, none behind it.
    /// Fails with 5 for a negative number, with 7 if there is no room for so many.
    virtual QByteArray Read(qint64 maximum) = 0;
    /// The same into room that the caller has for them. How many bytes came.
    virtual qint64 ReadInto(std::span<char> room)
    {
        const QByteArray bytes = Read(static_cast<qint64>(room.size()));
        std::copy(bytes.cbegin(), bytes.cend(), room.begin());
        return bytes.size();
    }
    /// Writes all of the bytes at the present position. Fails with 61 on a full disc.
    virtual void Write(const QByteArray &bytes) = 0;
    /// A short way for who copies: writes up to `maximum` bytes that the source has from its present position
    /// on, which the system needn't bring into the program. How many; none where there is no such way,
    /// behind the end of the source, and where something fails: reading and writing then tell what.
    virtual qint64 TakeFrom(OpenFile & /*source*/, qint64 /*maximum*/) { return 0; }
    virtual qint64 Position() const = 0;
    /// Fails with 5 for a negative position.
    virtual void Seek(qint64 position) = 0;
    virtual qint64 Length() const = 0;
    /// Cuts the file, or lets it grow by zeros; the position stays. Fails with 5 for a negative length, with
    /// 61 on a full disc.
    virtual void Resize(qint64 length) = 0;
    /// Has the system write everything down to the medium.
    virtual void Flush() = 0;
    /// What is read next comes from the medium itself, as far as the system lets it.
    virtual void ForgetCached() { }
    /// Where the file's bytes stand, by their offsets, without its holes. Nothing where that can't be told,
    /// or where they aren't the file's alone or stand there in another form, packed, encrypted
    /// or in a journal too.
    virtual std::optional<QList<Extent>> Extents() const { return {}; }
    /// Whether what is written to the file goes through a journal, where nobody can tell what is left of it.
    virtual bool IsInJournal() const { return false; }
    /// Does nothing for a file that is closed; all else fails with 52 then.
    virtual void Close() = 0;
    /// Takes over rights and time of change of another file of the same file system, as far as they can be
    /// given; where the rights can't, nobody but the owner gets any.
    virtual void TakeAttributesOf(const OpenFile & /*other*/) { }
};

/// New contents on their way into the place of a file's. They are gathered beside the old file; until Commit
/// ends without a failure the old contents stand whole, and without a Commit nothing is left of the new ones.
class ReplacingFile {
public:
    virtual ~ReplacingFile() = default;

    /// Adds to the new contents. Fails with 61 on a full disc.
    virtual void Write(const QByteArray &bytes) = 0;
    /// The short way of an OpenFile.
    virtual qint64 TakeFrom(OpenFile & /*source*/, qint64 /*maximum*/) { return 0; }
    /// Has everything written down to the medium and puts it in place; called once. Fails with 58 if nothing
    /// may be replaced and something has come meanwhile.
    virtual void Commit() = 0;
};

/// What becomes of something that is there already.
enum class IfThere { Replace, Refuse };

/// A folder open for reading, for walks that must not hold a whole listing in memory.
class FolderReader {
public:
    virtual ~FolderReader() = default;
    /// The next entry in the order of the file system, nothing at the end. Never "." or "..".
    virtual std::optional<FolderEntry> Next() = 0;
};

/// Holds a folder for as long as it lives; see FileSystem::Hold.
class FolderHold {
public:
    virtual ~FolderHold() = default;
};

/// A volume that a person would recognise as a drive.
struct Volume {
    QString root; ///< path of its root, with the separator at its end
    QString label; ///< may be empty
    bool isFloppy = false; ///< a floppy disc drive
};

/// The disc, in single steps: anything of several steps is a function over this interface.
///
/// Paths are text in the form of the platform; on a platform whose names are bytes, a byte that is no
/// UTF-8 travels as the lone surrogate U+DC80 + (byte - 0x80) and comes back as the same byte.
/// Failures: 53 a file is missing and its folder is there, 76 a folder of the path is missing, 75 a
/// folder that exists is made, one that isn't empty is removed, a folder is opened as a file, a name is
/// too long, or the system refuses access; 5 a path that can't be a path; 52 an empty path or a closed file;
/// 58 a target exists; 61 a full disc; 57 a device error; 70 a file held by another; 71 a medium that isn't
/// there.
class FileSystem {
public:
    virtual ~FileSystem() = default;

    /// The character between the levels of a path.
    virtual QChar Separator() const = 0;

    /// Holds a folder that somebody named, which need not be there yet, for as long as the answer lives;
    /// links in the path to it are followed. Every step of this file system whose path is this folder's with
    /// more behind it then starts from the folder as it was first met, and goes through no link, also not
    /// through one that somebody puts there meanwhile: such a path fails with 75, and so does one with ".."
    /// in it. A link at the end is no folder to list and no file to open; Status alone looks behind it if
    /// asked to. Every run holds what it works below.
    [[nodiscard]] virtual std::unique_ptr<FolderHold> Hold(const QString &folder) = 0;

    /// Nothing if the path can't be reached for whatever reason.
    virtual std::optional<FileStatus> Status(const QString &path, Links links) = 0;

    /// All entries of a folder, or of the folder that a link names, but "." and "..", sorted by name without
    /// regard to case.
    virtual QList<FolderEntry> List(const QString &folder, Lengths lengths = Lengths::LeftOut) = 0;
    /// The same one by one, in the order of the file system.
    virtual std::unique_ptr<FolderReader> Read(const QString &folder, Lengths lengths = Lengths::LeftOut) = 0;

    /// Makes one folder, whose parent must exist. Reports its failure instead of throwing it, since
    /// most callers try levels that exist.
    [[nodiscard]] virtual std::optional<Failure> TryMakeFolder(const QString &path) = 0;
    /// A short way for those who would try each level of a path: makes the folder if all levels above it
    /// are there. True if it was made; false leaves everything as it was, and a file system that has no
    /// such way says false without trying.
    virtual bool MadeAtOnce(const QString &) { return false; }
    /// Removes one empty folder; never follows a link.
    [[nodiscard]] virtual std::optional<Failure> TryRemoveFolder(const QString &path) = 0;
    /// Removes one file or link; never a folder.
    virtual void RemoveFile(const QString &path) = 0;
    /// Gives a file, link or folder another path on the same volume. Never overwrites: 58 if the target
    /// exists, unless it is the same name in other capitals. 52 if `to` ends in the separator, so that its
    /// last name is empty; 5 if a folder would come below itself; 75 for another volume.
    virtual void Rename(const QString &from, const QString &to) = 0;

    virtual std::unique_ptr<OpenFile> Open(const QString &path, OpenFor purpose,
                                           Sharing sharing = Sharing::Shared) = 0;

    /// Has the system write down to the medium which entries a folder has.
    virtual void FlushFolder(const QString &folder) = 0;

    /// Starts to put other contents in place of a file's, or to make the file. A link at the end is followed,
    /// as far as the system lets it be. The file keeps its rights, and a file of several names keeps them
    /// all. Fails with 75 for what is no file or can't be written; with Refuse 58 if anything is there.
    virtual std::unique_ptr<ReplacingFile> Replace(const QString &path, IfThere ifThere) = 0;

    /// The path in a link, as it was made. Fails with 75 for what is no link.
    virtual QString LinkTarget(const QString &path) = 0;
    /// Makes a link to a path that need not exist. Fails with 58 if something is there.
    virtual void MakeLink(const QString &path, const QString &target) = 0;

    /// Takes the write protection off a file, or puts it on. A link has none of its own and stays as it is.
    virtual void SetReadOnly(const QString &path, bool readOnly) = 0;

    /// The mounted volumes, the system's root first.
    virtual QList<Volume> Volumes() = 0;
    /// The label of the volume that holds the path, which need not exist; empty if it has none. Fails with
    /// 71 if there is no such volume.
    virtual QString VolumeLabel(const QString &path) = 0;
    /// Bytes that can still be written to the volume that holds the path, which need not exist.
    virtual qint64 FreeSpace(const QString &path) = 0;
};

} // namespace tressel

Q_DECLARE_TYPEINFO(tressel::FolderEntry, Q_RELOCATABLE_TYPE);
