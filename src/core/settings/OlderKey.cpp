// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "settings/OlderKey.h"

#include "base/Text.h"
#include "machine/TextFile.h"
#include "settings/KeyPaths.h"

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype BufferBytes = 1024;
constexpr std::uint32_t ExpandableText = 2;

/// What fits into the buffer, as text that isn't null.
QString Fetched(const QByteArray &bytes)
{
    if (bytes.size() > BufferBytes)
        return {};
    return UpToNul(u""_s + DecodeText(bytes, NameBytes::Raw));
}

QString Fetched(const QString &text)
{
    if (EncodeText(text, NameBytes::Raw).size() > BufferBytes)
        return {};
    return UpToNul(u""_s + text);
}

} // namespace

QString LegacyGetValue(SettingsHive &hive, const QString &name)
{
    const auto stored = hive.Read(SettingsHive::Root::User, OlderKeyPath.toString(), name);
    if (!stored)
        return {};
    if (const auto *text = std::get_if<QString>(&*stored))
        return Fetched(*text);
    if (const auto *number = std::get_if<std::uint32_t>(&*stored))
        return QString::number(static_cast<std::int32_t>(*number));
    const auto &other = std::get<OtherKindValue>(*stored);
    return other.kind == ExpandableText ? Fetched(other.bytes) : QString();
}

bool LegacySetValue(SettingsHive &hive, const QString &name, const QString &value)
{
    // Kept: an empty text can't be stored, it becomes a blank.
    return hive.Write(SettingsHive::Root::User, OlderKeyPath.toString(), name,
                      value.isEmpty() ? u" "_s : value);
}

QString LegacyGetOrSet(SettingsHive &hive, const QString &name, const QString &defaultValue)
{
    const QString stored = LegacyGetValue(hive, name);
    if (!stored.isEmpty())
        return stored;
    LegacySetValue(hive, name, defaultValue);
    return defaultValue;
}

} // namespace tressel
