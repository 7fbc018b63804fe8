// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "settings/ApplicationStore.h"

#include "base/Text.h"

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

/// The application's and the section's name as one level each, so that no two pairs meet in one key.
QString Level(const QString &name)
{
    return QString(name).replace(u"%"_s, u"%25"_s).replace(u"\\"_s, u"%5C"_s);
}

QString KeyPath(const QString &application, const QString &section)
{
    return u"Software\\Application Settings\\"_s + Level(application) + u"\\"_s + Level(section);
}

} // namespace

QString GetApplicationSetting(SettingsHive &hive, const QString &application, const QString &section,
                              const QString &key, const QString &defaultValue)
{
    const auto stored = hive.Read(SettingsHive::Root::User, KeyPath(application, section), key);
    const auto *text = stored ? std::get_if<QString>(&*stored) : nullptr;
    return text ? UpToNul(*text) : defaultValue;
}

void SaveApplicationSetting(SettingsHive &hive, const QString &application, const QString &section,
                            const QString &key, const QString &value)
{
    hive.Write(SettingsHive::Root::User, KeyPath(application, section), key, value.isNull() ? u""_s : value);
}

} // namespace tressel
