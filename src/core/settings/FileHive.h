// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/SettingsHive.h"
#include "settings/HiveTree.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace tressel {

class SystemFacts;

/// The hive in a text file of the user (settings/HiveText.h says how it looks), with the facts about the
/// system as its machine-wide root.
///
/// The file is read at the first read and not looked at again before a flush. Writes are held back until
/// then. A flush reads the file anew under a lock, puts the names written here on top and replaces the
/// file as a whole; so two instances keep each other's other values, and of one value the later stays.
/// Whoever reads the file at whatever moment finds it as it was before a flush or as it is after.
///
/// - A damaged file: what is well formed is taken. Before the file is replaced, it is kept beside it as
///   "settings.damaged", "settings.damaged-2" and so on; if it can't be, nothing is written.
/// - A file that is there and can't be read, or is no file: nothing is taken, and nothing is ever written.
/// - A link to a file: the file it points to is replaced, the link stays.
/// - Nothing can be written, or another holds the lock for long: the values stay in memory and the next
///   flush tries again.
class FileHive : public SettingsHive {
public:
    /// The folder need not exist; the first flush makes it.
    FileHive(QString settingsFolder, const SystemFacts &systemFacts);

    /// The user's own folder for settings of this program.
    static QString DefaultFolder();

    bool HasKey(Root root, const QString &key) override;
    std::optional<HiveValue> Read(Root root, const QString &key, const QString &name) override;
    /// True once the value is held in memory, false for the machine's root.
    bool Write(Root root, const QString &key, const QString &name, const HiveValue &value) override;
    void Flush() override;

private:
    enum class FileState { Absent, Sound, Damaged, Unreadable };
    struct FileContent {
        FileState state = FileState::Absent;
        QByteArray bytes{};
        HiveTree tree{};
    };

    QString FilePath() const;
    FileContent ReadFile() const;
    HiveTree &Held();
    bool ReplaceFile(const HiveTree &wanted) const;
    /// True if these bytes are kept beside the file afterwards.
    bool SetAside(const QByteArray &bytes) const;

    QString folder;
    const SystemFacts &facts;
    std::optional<HiveTree> held;
    HiveTree changes;
};

} // namespace tressel
