// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/SettingsHive.h"

#include <QString>

#include <map>
#include <optional>

namespace tressel {

/// Keys with their named values in memory. Keys and names compare without regard to case and keep the
/// spelling they were first written with. Empty levels of a key path don't count.
class HiveTree {
public:
    struct NameLess {
        bool operator()(const QString &left, const QString &right) const
        {
            return left.compare(right, Qt::CaseInsensitive) < 0;
        }
    };
    using Values = std::map<QString, HiveValue, NameLess>;
    using Keys = std::map<QString, Values, NameLess>;

    std::optional<HiveValue> Read(const QString &key, const QString &name) const;
    void MakeKey(const QString &key);
    /// Makes the key if it isn't there.
    void Write(const QString &key, const QString &name, const HiveValue &value);
    /// Puts everything of the other tree on top of this one.
    void Take(const HiveTree &changes);
    void Clear() { keys.clear(); }

    /// All keys that were made, by their paths.
    const Keys &AllKeys() const { return keys; }
    bool IsEmpty() const { return keys.empty(); }
    bool operator==(const HiveTree &) const = default;

private:
    Keys keys;
};

/// A hive that lives as long as the process.
class MemorySettingsHive : public SettingsHive {
public:
    std::optional<HiveValue> Read(Root root, const QString &key, const QString &name) override;
    bool Write(Root root, const QString &key, const QString &name, const HiveValue &value) override;
    void Flush() override { }

    /// What is below a root; the way to fill the root that can't be written.
    HiveTree &Tree(Root root) { return root == Root::User ? user : machine; }

private:
    HiveTree user;
    HiveTree machine;
};

} // namespace tressel
