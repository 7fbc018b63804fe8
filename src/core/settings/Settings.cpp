// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "settings/Settings.h"

#include "base/Version.h"
#include "machine/FileSystem.h"
#include "machine/Machine.h"
#include "machine/Program.h"
#include "machine/SettingsHive.h"
#include "settings/ApplicationStore.h"
#include "settings/KeyPaths.h"
#include "settings/MainStore.h"
#include "settings/OlderKey.h"

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

QString SettingsRoot()
{
    return u"Software\\"_s + MakerPrefix.toString() + ApplicationTitle;
}

SettingsHive::Root RootOf(KeyPlace place)
{
    return place == KeyPlace::SystemFacts ? SettingsHive::Root::Machine : SettingsHive::Root::User;
}

/// Key path of a place in the main store.
QString SubkeyOf(KeyPlace place)
{
    switch (place) {
    case KeyPlace::Main:
        return SettingsRoot() + u"\\Main"_s;
    case KeyPlace::Options:
        return SettingsRoot() + u"\\Options"_s;
    default:
        return SystemFactsKeyPath.toString();
    }
}

/// Application and section of a place in the application store.
struct ApplicationPlace {
    QString application;
    QString section;
};

ApplicationPlace ApplicationPlaceOf(KeyPlace place, const Program &program)
{
    if (place == KeyPlace::Program)
        return {program.ExecutableName(), u"Options"_s};
    return {MakerPrefix.toString() + ApplicationTitle, u"Settings"_s};
}

} // namespace

Settings::Settings(SettingsHive &settingsHive, const Program &runningProgram, QChar separator)
    : hive(settingsHive)
    , program(runningProgram)
    , pathSeparator(separator)
{
}

Settings::Settings(const Machine &machine)
    : Settings(machine.hive, machine.program, machine.files.Separator())
{
}

Value Settings::DefaultOf(const KeyEntry &key, KeyReader reader) const
{
    const bool isLater = reader == KeyReader::Later && key.laterDefault;
    const KeyDefault &value = isLater ? *key.laterDefault : key.byDefault;
    switch (value.kind) {
    case KeyDefault::Kind::Number:
        return value.number;
    case KeyDefault::Kind::ProgramFolder:
        return value.text.isEmpty() ? program.Folder()
                                    : program.Folder() + pathSeparator + value.text.toString();
    default:
        return value.text.toString();
    }
}

Value Settings::Read(const KeyEntry &key, KeyReader reader) const
{
    const Value defaultValue = DefaultOf(key, reader);
    const QString name = key.StoredName();
    switch (key.place) {
    case KeyPlace::Program:
    case KeyPlace::Splitter: {
        const auto [application, section] = ApplicationPlaceOf(key.place, program);
        return GetApplicationSetting(hive, application, section, name, ToText(defaultValue));
    }
    case KeyPlace::OlderKey:
        return LegacyGetOrSet(hive, name, ToText(defaultValue));
    case KeyPlace::SystemFacts:
        // A fact without a default of its own is text or nothing.
        if (key.byDefault.text.isEmpty())
            return GetKeyString(hive, RootOf(key.place), SubkeyOf(key.place), name);
        [[fallthrough]];
    default:
        return GetKeyValue(hive, RootOf(key.place), SubkeyOf(key.place), name, defaultValue);
    }
}

QString Settings::ReadText(const KeyEntry &key, KeyReader reader) const
{
    return ToText(Read(key, reader));
}

std::int32_t Settings::ReadInt32(const KeyEntry &key, KeyReader reader) const
{
    return ToInt32(Read(key, reader));
}

bool Settings::ReadBoolean(const KeyEntry &key, KeyReader reader) const
{
    return ToBoolean(Read(key, reader));
}

void Settings::Write(const KeyEntry &key, const QString &text)
{
    if (key.kind == KeyKind::Number) {
        Write(key, ToInt32(text));
        return;
    }
    const QString name = key.StoredName();
    switch (key.place) {
    case KeyPlace::Program:
    case KeyPlace::Splitter: {
        const auto [application, section] = ApplicationPlaceOf(key.place, program);
        SaveApplicationSetting(hive, application, section, name, text);
        return;
    }
    case KeyPlace::OlderKey:
        LegacySetValue(hive, name, text);
        return;
    default:
        SetKeyString(hive, RootOf(key.place), SubkeyOf(key.place), name, text);
    }
}

void Settings::Write(const KeyEntry &key, std::int32_t number)
{
    if (key.kind == KeyKind::Text)
        Write(key, QString::number(number));
    else
        SetKeyDword(hive, RootOf(key.place), SubkeyOf(key.place), key.StoredName(), number);
}

void Settings::WriteBoolean(const KeyEntry &key, bool isTrue)
{
    if (key.kind == KeyKind::Text)
        Write(key, isTrue ? u"True"_s : u"False"_s);
    else
        Write(key, isTrue ? -1 : 0);
}

void Settings::Flush()
{
    hive.Flush();
}

} // namespace tressel
