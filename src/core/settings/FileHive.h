// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/SettingsHive.h"
#include "settings/HiveFile.h"
#include "settings/HiveTree.h"

#include <QString>

#include <optional>

namespace tressel {

class SystemFacts;

/// The hive in a text file of the user (settings/HiveText.h says how it looks), with the facts about the
/// system as its machine-wide root.
///
/// The file is read at the first read, and anew where another process has replaced it since. Writes are held
/// back until a flush. A flush reads the file under a lock, puts the names written here on top and replaces
/// the file as a whole; so two instances keep each other's other values, and of one value the later stays.
/// Whoever reads the file at whatever moment finds it as it was before a flush or as it is after.
///
/// - A damaged file: what is well formed is taken. Before the file is replaced, it is kept beside it as
///   "settings.damaged", "settings.damaged-2" and so on; if it can't be, nothing is written.
/// - A file that is there and can't be read, is no file or is larger than 16 MiB: nothing is taken, and
///   nothing is ever written, also if it can be read later on.
/// - A link to a file: the file it points to is replaced, the link stays.
/// - Nothing can be written, or another holds the lock: the values stay in memory and the next flush tries
///   again. The first flush that meets a lock waits for it a moment, those after it don't; the one at the end
///   waits for some seconds.
class FileHive : public SettingsHive {
public:
    /// The folder need not exist; the first flush makes it. Without one, everything stays in memory.
    FileHive(QString settingsFolder, const SystemFacts &systemFacts);

    /// The user's own folder for settings of this program; empty without a home.
    static QString DefaultFolder();

    std::optional<HiveValue> Read(Root root, const QString &key, const QString &name) override;
    /// True once the value is held in memory, false for the machine's root.
    bool Write(Root root, const QString &key, const QString &name, const HiveValue &value) override;
    void Flush() override;
    /// The flush before the process ends. What couldn't be saved, and why, in a sentence for people; empty if
    /// everything is down.
    QString FlushAtEnd();

private:
    bool FlushWithin(int milliseconds);
    void Merge();
    HiveTree &Held();

    HiveFile file;
    const SystemFacts &facts;
    std::optional<HiveTree> held;
    std::optional<HiveFile::Stamp> stampOfHeld;
    HiveTree changes;
    bool hasMissedValues = false; ///< a read failed, so that defaults stand for what the user has stored
    bool lockWasHeld = false; ///< by another, at the last flush
    QString problem; ///< why the last flush wrote nothing
};

} // namespace tressel
