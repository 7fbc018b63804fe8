// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "support/MemoryHive.h"

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

QString WithoutEndSeparators(QString key)
{
    while (key.endsWith(u'\\'))
        key.chop(1);
    return key;
}

QString Folded(const QString &key)
{
    return WithoutEndSeparators(key).toCaseFolded();
}

} // namespace

bool MemoryHive::HasKey(Root root, const QString &key)
{
    journal.Note(u"HasKey"_s, key);
    const QString wanted = Folded(key);
    // A key is there as soon as something below it is.
    const Keys &keys = In(root);
    const auto next = keys.lowerBound(wanted);
    if (next != keys.end() && next.key() == wanted)
        return true;
    const auto below = keys.lowerBound(wanted + u'\\');
    return below != keys.end() && below.key().startsWith(wanted + u'\\');
}

std::optional<HiveValue> MemoryHive::Read(Root root, const QString &key, const QString &name)
{
    journal.Note(u"ReadSetting"_s, key + u'\\' + name);
    return Get(root, key, name);
}

bool MemoryHive::Write(Root root, const QString &key, const QString &name, const HiveValue &value)
{
    journal.Note(u"WriteSetting"_s, key + u'\\' + name, ValueText(value));
    if (root == Root::Machine || !canWrite)
        return false;
    Put(root, key, name, value);
    return true;
}

void MemoryHive::Flush()
{
    journal.Note(u"FlushSettings"_s);
}

void MemoryHive::Put(Root root, const QString &key, const QString &name, const HiveValue &value)
{
    Keys &keys = root == Root::User ? user : machine;
    Key &place = keys[Folded(key)];
    if (place.path.isNull())
        place.path = WithoutEndSeparators(key);
    const QString folded = name.toCaseFolded();
    if (const auto known = place.values.find(folded); known != place.values.end())
        known->value = value;
    else
        place.values.insert(folded, {name, value});
}

std::optional<HiveValue> MemoryHive::Get(Root root, const QString &key, const QString &name) const
{
    const Keys &keys = In(root);
    const auto place = keys.find(Folded(key));
    if (place == keys.end())
        return {};
    const auto value = place->values.find(name.toCaseFolded());
    return value == place->values.end() ? std::nullopt : std::optional(value->value);
}

QString MemoryHive::Text(const QString &key, const QString &name) const
{
    const std::optional<HiveValue> value = Get(Root::User, key, name);
    return value ? ValueText(*value) : QString();
}

QStringList MemoryHive::Dump() const
{
    QStringList lines;
    for (const Key &key : user) {
        for (const Value &value : key.values)
            lines += key.path + u'\\' + value.name + u'=' + ValueText(value.value);
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
