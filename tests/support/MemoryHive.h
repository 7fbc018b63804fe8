// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "settings/HiveTree.h"
#include "support/Journal.h"

#include <QStringList>

namespace tressel {

/// A settings tree in memory.
class MemoryHive : public SettingsHive {
public:
    explicit MemoryHive(Journal &journal)
        : journal(journal)
    {
    }

    /// Journal: "ReadSetting" about key and name, with "\" between; no entry for the value.
    std::optional<HiveValue> Read(Root root, const QString &key, const QString &name) override;
    /// Journal: "WriteSetting" about key and name, the value as detail. The machine's root can't be written.
    bool Write(Root root, const QString &key, const QString &name, const HiveValue &value) override;
    /// Journal: "FlushSettings".
    void Flush() override;

    /// Puts a value there without a word in the journal, below the machine's root too.
    void Put(Root root, const QString &key, const QString &name, const HiveValue &value);
    /// What is there, without a word in the journal.
    std::optional<HiveValue> Get(Root root, const QString &key, const QString &name);
    /// The same as text below the user's root: a number in decimal, null if nothing is there.
    QString Text(const QString &key, const QString &name);
    /// All values below the user's root, as "key\name=value", sorted.
    QStringList Dump();

    bool canWrite = true; ///< false: each Write fails

private:
    Journal &journal;
    MemorySettingsHive hive;
};

/// A value as text: a string as it is, a number in decimal, other kinds as "kind:hex".
QString ValueText(const HiveValue &value);

} // namespace tressel
