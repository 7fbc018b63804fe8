// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "settings/FileHive.h"

#include "base/Failure.h"
#include "machine/NameText.h"
#include "machine/SystemFacts.h"
#include "machine/posix/UserFolders.h"
#include "settings/HiveText.h"
#include "settings/KeyPaths.h"

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

constexpr int lockMilliseconds = 300;
constexpr int lockMillisecondsAtEnd = 3000;

bool IsFactsKey(const QString &key)
{
    return SystemFactsKeyPath.compare(key, Qt::CaseInsensitive) == 0;
}

} // namespace

FileHive::FileHive(QString settingsFolder, const SystemFacts &systemFacts)
    : file(std::move(settingsFolder))
    , facts(systemFacts)
{
}

QString FileHive::DefaultFolder()
{
    const QByteArray config = UserConfigFolder();
    return config.isEmpty() ? QString() : *TextFromUtf8(config, NameBytes::Raw) + u"/tressel"_s;
}

HiveTree &FileHive::Held()
{
    const std::optional<HiveFile::Stamp> stamp = file.Now();
    if (!held || stamp != stampOfHeld) {
        const HiveFile::Content content = file.Read();
        hasMissedValues = hasMissedValues || content.state == HiveFile::State::Unreadable
            || content.state == HiveFile::State::TooLarge;
        held = HiveFromText(content.bytes).tree;
        held->Take(changes);
        stampOfHeld = stamp;
    }
    return *held;
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
    lockWasHeld = !FlushWithin(lockWasHeld ? 0 : lockMilliseconds);
}

QString FileHive::FlushAtEnd()
{
    FlushWithin(lockMillisecondsAtEnd);
    return changes.IsEmpty() ? QString() : problem;
}

/// False if another has the lock and keeps it.
bool FileHive::FlushWithin(int milliseconds)
{
    problem.clear();
    if (changes.IsEmpty())
        return true;
    if (file.Folder().isEmpty()) {
        problem = u"There is no home folder to keep the settings in."_s;
        return true;
    }
    try {
        const auto lock = file.Lock(milliseconds);
        if (lock)
            Merge();
        else
            problem = u"Another program holds the settings folder "_s + file.Folder() + u'.';
        return lock.has_value();
    } catch (const Failure &failure) {
        problem = failure.description + u": "_s + file.Path();
        return true;
    }
}

/// Brings what was written here into the file. The lock must be held.
void FileHive::Merge()
{
    const HiveFile::Content content = file.Read();
    if (content.state == HiveFile::State::TooLarge)
        throw Failure(FailureNumber::DiskFull,
                      u"The settings file is larger than 16 MiB and stays as it is"_s);
    if (content.state == HiveFile::State::Unreadable)
        throw Failure(FailureNumber::PathFileAccessError);
    if (hasMissedValues)
        throw Failure(FailureNumber::PathFileAccessError,
                      u"The settings file could not be read before, and stays as it is"_s);
    HiveReading reading = HiveFromText(content.bytes);
    HiveTree wanted = reading.tree;
    wanted.Take(changes);
    if (reading.isDamaged)
        file.SetAside(content.bytes);
    if (reading.isDamaged || content.state == HiveFile::State::Absent || wanted != reading.tree)
        file.Replace(HiveToText(wanted));
    held = std::move(wanted);
    stampOfHeld = file.Now();
    changes.Clear();
}

} // namespace tressel
