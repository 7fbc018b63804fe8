// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "settings/MainStore.h"

#include "base/Text.h"

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

QString WithoutBlanksAtEnd(const QString &text)
{
    qsizetype length = text.size();
    while (length > 0 && text[length - 1] == u' ')
        --length;
    return text.left(length);
}

StoreStatus Store(SettingsHive &hive, SettingsHive::Root root, const QString &subkey, const QString &name,
                  const HiveValue &value)
{
    return hive.Write(root, subkey, name, value) ? StoreStatus::Done : StoreStatus::AccessDenied;
}

} // namespace

Value GetKeyValue(SettingsHive &hive, SettingsHive::Root root, const QString &subkey, const QString &name,
                  const Value &defaultValue)
{
    const std::optional<HiveValue> stored = hive.Read(root, subkey, name);
    if (!stored)
        return defaultValue;
    if (const auto *text = std::get_if<QString>(&*stored))
        return UpToNul(WithoutBlanksAtEnd(*text));
    if (const auto *number = std::get_if<std::uint32_t>(&*stored))
        return static_cast<std::int32_t>(*number);
    return defaultValue;
}

StoreStatus SetKeyString(SettingsHive &hive, SettingsHive::Root root, const QString &subkey,
                         const QString &name, const QString &value)
{
    return Store(hive, root, subkey, name, value.isNull() ? u""_s : value);
}

StoreStatus SetKeyDword(SettingsHive &hive, SettingsHive::Root root, const QString &subkey,
                        const QString &name, std::int32_t value)
{
    return Store(hive, root, subkey, name, static_cast<std::uint32_t>(value));
}

QString GetKeyString(SettingsHive &hive, SettingsHive::Root root, const QString &subkey, const QString &name)
{
    const std::optional<HiveValue> stored = hive.Read(root, subkey, name);
    const auto *text = stored ? std::get_if<QString>(&*stored) : nullptr;
    return text ? UpToNul(*text) : u""_s;
}

} // namespace tressel
