// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/posix/Descriptor.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace tressel {

/// The file that a hive is kept in, on the disc: one file in a folder of the user's own.
class HiveFile {
public:
    /// Tells one state of the file from another: each write changes one of these.
    struct Stamp {
        quint64 device = 0;
        quint64 number = 0; ///< of the file on its device
        qint64 seconds = 0; ///< when it was written
        qint64 nanoseconds = 0;
        qint64 length = 0;
        bool operator==(const Stamp &) const = default;
    };
    enum class State { Absent, Readable, TooLarge, Unreadable };
    struct Content {
        State state = State::Absent;
        QByteArray bytes{};
    };

    /// An empty folder means that there is none to keep anything in.
    explicit HiveFile(QString folder);

    QString Folder() const { return folder; }
    QString Path() const;
    /// Of the file as it is now, nothing without one.
    std::optional<Stamp> Now() const;
    /// Takes the whole file in, if it is a regular file of at most 16 MiB.
    Content Read() const;

    /// Makes the folder if it isn't there, takes away what rights others have in it, and locks it for this
    /// process as long as the lock lives. The system takes a lock off however a process ends. Nothing if
    /// another holds it and doesn't let go within so many milliseconds. A file system that knows no such
    /// locks is used without: there two instances that write in the same moment can lose a value.
    /// Fails where there is no folder.
    std::optional<Descriptor> Lock(int milliseconds) const;
    /// These two are for who has the lock. Replace puts other contents in place of the file's; SetAside keeps
    /// the bytes of a damaged one in a file beside it. Both fail as FileSystem::Replace does.
    void Replace(const QByteArray &bytes) const;
    void SetAside(const QByteArray &bytes) const;

private:
    QString folder;
};

} // namespace tressel
