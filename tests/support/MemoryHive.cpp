// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "support/MemoryHive.h"

namespace tressel {

using namespace Qt::StringLiterals;

std::optional<HiveValue> MemoryHive::Read(Root root, const QString &key, const QString &name)
{
    journal.Note(u"ReadSetting"_s, key + u'\\' + name);
    return Get(root, key, name);
}

bool MemoryHive::Write(Root root, const QString &key, const QString &name, const HiveValue &value)
{
    journal.Note(u"WriteSetting"_s, key + u'\\' + name, ValueText(value));
    return canWrite && hive.Write(root, key, name, value);
}

void MemoryHive::Flush()
{
    journal.Note(u"FlushSettings"_s);
}

void MemoryHive::Put(Root root, const QString &key, const QString &name, const HiveValue &value)
{
    hive.Tree(root).Write(key, name, value);
}

std::optional<HiveValue> MemoryHive::Get(Root root, const QString &key, const QString &name)
{
    return hive.Tree(root).Read(key, name);
}

QString MemoryHive::Text(const QString &key, const QString &name)
{
    const std::optional<HiveValue> value = Get(Root::User, key, name);
    return value ? ValueText(*value) : QString();
}

QStringList MemoryHive::Dump()
{
    QStringList lines;
    for (const auto &[key, values] : hive.Tree(Root::User).AllKeys()) {
        for (const auto &[name, value] : values)
            lines += key + u'\\' + name + u'=' + ValueText(value);
    }
    return lines;
}

QString ValueText(const HiveValue &value)
{
    if (const auto *text = std::get_if<QString>(&value))
        return text->isNull() ? u""_s : *text;
    if (const auto *number = std::get_if<std::uint32_t>(&value))
        return QString::number(*number);
    const auto &other = std::get<OtherKindValue>(value);
    return QString::number(other.kind) + u':' + QString::fromLatin1(other.bytes.toHex());
}

} // namespace tressel
