// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "settings/HiveTree.h"

#include <QStringList>

namespace tressel {

namespace {

QString Tidied(const QString &key)
{
    return key.split(QChar(u'\\'), Qt::SkipEmptyParts).join(QChar(u'\\'));
}

} // namespace

std::optional<HiveValue> HiveTree::Read(const QString &key, const QString &name) const
{
    const auto values = keys.find(Tidied(key));
    if (values == keys.end())
        return {};
    const auto value = values->second.find(name);
    if (value == values->second.end())
        return {};
    return value->second;
}

void HiveTree::MakeKey(const QString &key)
{
    keys.try_emplace(Tidied(key));
}

void HiveTree::Write(const QString &key, const QString &name, const HiveValue &value)
{
    keys[Tidied(key)].insert_or_assign(name, value);
}

void HiveTree::Take(const HiveTree &changes)
{
    for (const auto &[key, values] : changes.keys) {
        MakeKey(key);
        for (const auto &[name, value] : values)
            Write(key, name, value);
    }
}

std::optional<HiveValue> MemorySettingsHive::Read(Root root, const QString &key, const QString &name)
{
    return Tree(root).Read(key, name);
}

bool MemorySettingsHive::Write(Root root, const QString &key, const QString &name, const HiveValue &value)
{
    if (root == Root::Machine)
        return false;
    user.Write(key, name, value);
    return true;
}

} // namespace tressel
