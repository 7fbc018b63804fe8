// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "settings/FileHive.h"

#include "machine/SystemFacts.h"
#include "settings/HiveText.h"
#include "settings/KeyPaths.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>
#include <QThread>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

/// A store of all settings has some ten thousand bytes.
constexpr qint64 LargestFile = 16 * 1024 * 1024;
constexpr int LockMilliseconds = 300;
constexpr int LockPauseMilliseconds = 5;
constexpr int MostSetAside = 100;

bool IsFactsKey(const QString &key)
{
    return SystemFactsKeyPath.compare(key, Qt::CaseInsensitive) == 0;
}

std::optional<QByteArray> BytesOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QByteArray bytes = file.readAll();
    return file.error() == QFile::NoError ? std::optional(std::move(bytes)) : std::nullopt;
}

/// Makes a file that wasn't there, down to the medium; leaves none behind if that fails.
bool MakeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        return false;
    if (file.write(bytes) == bytes.size() && file.flush() && ::fsync(file.handle()) == 0)
        return true;
    file.remove();
    return false;
}

/// The lock of a folder, for as long as it lives. The system takes it off however a process ends; a lock
/// file whose maker was killed before it wrote its number into it would hold up all others.
class FolderLock {
public:
    explicit FolderLock(const QString &folder)
        : handle(::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
    {
    }
    FolderLock(const FolderLock &) = delete;
    FolderLock &operator=(const FolderLock &) = delete;
    ~FolderLock()
    {
        if (handle >= 0)
            ::close(handle);
    }

    /// False if another has the lock and keeps it. A file system that knows no such locks is used
    /// without: there two instances that write in the same moment can lose a value.
    bool Take() const
    {
        const QDeadlineTimer deadline(LockMilliseconds);
        while (::flock(handle, LOCK_EX | LOCK_NB) != 0) {
            if (errno != EWOULDBLOCK && errno != EINTR)
                return handle >= 0;
            if (deadline.hasExpired())
                return false;
            QThread::msleep(LockPauseMilliseconds);
        }
        return true;
    }

private:
    int handle;
};

} // namespace

FileHive::FileHive(QString settingsFolder, const SystemFacts &systemFacts)
    : folder(std::move(settingsFolder))
    , facts(systemFacts)
{
}

QString FileHive::DefaultFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u"/tressel"_s;
}

QString FileHive::FilePath() const
{
    return folder + u"/settings"_s;
}

FileHive::FileContent FileHive::ReadFile() const
{
    const QFileInfo info(FilePath());
    if (!info.exists())
        return {};
    // Only a file is opened: a pipe would make us wait for its other end.
    const auto bytes = info.isFile() && info.size() <= LargestFile ? BytesOf(FilePath()) : std::nullopt;
    if (!bytes)
        return {FileState::Unreadable};
    HiveReading reading = HiveFromText(*bytes);
    return {reading.isDamaged ? FileState::Damaged : FileState::Sound, *bytes, std::move(reading.tree)};
}

HiveTree &FileHive::Held()
{
    if (!held)
        held = ReadFile().tree;
    return *held;
}

bool FileHive::HasKey(Root root, const QString &key)
{
    return root == Root::Machine ? IsFactsKey(key) : Held().HasKey(key);
}

std::optional<HiveValue> FileHive::Read(Root root, const QString &key, const QString &name)
{
    if (root == Root::User)
        return Held().Read(key, name);
    return IsFactsKey(key) ? facts.Fact(name) : std::nullopt;
}

bool FileHive::Write(Root root, const QString &key, const QString &name, const HiveValue &value)
{
    if (root == Root::Machine)
        return false;
    Held().Write(key, name, value);
    changes.Write(key, name, value);
    return true;
}

void FileHive::Flush()
{
    if (changes.IsEmpty() || !QDir().mkpath(folder))
        return;
    const FolderLock lock(folder);
    if (!lock.Take())
        return;
    FileContent content = ReadFile();
    if (content.state == FileState::Unreadable)
        return;
    HiveTree wanted = content.tree;
    wanted.Take(changes);
    if (content.state == FileState::Damaged && !SetAside(content.bytes))
        return;
    const bool isWritten = content.state == FileState::Sound && wanted == content.tree;
    if (!isWritten && !ReplaceFile(wanted))
        return;
    held = std::move(wanted);
    changes.Clear();
}

bool FileHive::ReplaceFile(const HiveTree &wanted) const
{
    const QByteArray bytes = HiveToText(wanted);
    QSaveFile file(FilePath());
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
}

bool FileHive::SetAside(const QByteArray &bytes) const
{
    for (int number = 1; number <= MostSetAside; ++number) {
        const QString path = FilePath() + u".damaged"_s + (number > 1 ? u"-%1"_s.arg(number) : QString());
        if (MakeFile(path, bytes))
            return true;
        if (!QFileInfo::exists(path))
            return false;
        // A flush that set the file aside and then failed has left it here.
        if (QFileInfo(path).isFile() && BytesOf(path) == bytes)
            return true;
    }
    return false;
}

} // namespace tressel
