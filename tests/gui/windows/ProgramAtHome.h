// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/posix/PosixProgram.h"
#include "machine/posix/PosixSystemFacts.h"
#include "settings/FileHive.h"
#include "settings/Settings.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace tressel {

/// The program as it is built: a process of its own in a home of its own, without a display.
class ProgramAtHome {
public:
    ProgramAtHome()
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("HOME"), home.path());
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), home.path());
        environment.insert(QStringLiteral("XDG_DATA_HOME"), home.path());
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        process.setProcessEnvironment(environment);
    }
    ~ProgramAtHome()
    {
        process.kill();
        process.waitForFinished();
    }

    /// Writes a setting before the start.
    void Put(const KeyEntry &key, const QString &text)
    {
        FileHive hive(Folder(), facts);
        Settings(hive, executable, u'/').Write(key, text);
        hive.Flush();
    }
    /// What the disc holds for a key now; its default if there is nothing.
    QString Stored(const KeyEntry &key)
    {
        FileHive hive(Folder(), facts);
        return Settings(hive, executable, u'/').ReadText(key);
    }
    QByteArray SettingsFile() const
    {
        QFile file(Folder() + QStringLiteral("/settings"));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    bool Start(const QStringList &arguments = {})
    {
        process.start(QStringLiteral(TRESSEL_PROGRAM), arguments);
        return process.waitForStarted();
    }
    bool Runs() const { return process.state() == QProcess::Running; }
    /// Whether SIGTERM would come as an event, and not end the process at once.
    bool TakesSignals() const
    {
        QFile status(QStringLiteral("/proc/%1/status").arg(process.processId()));
        if (!status.open(QIODevice::ReadOnly))
            return false;
        const QByteArray text = status.readAll();
        constexpr int numberLength = 16;
        const QByteArray mark = "SigCgt:\t";
        const QByteArray caught = text.mid(text.indexOf(mark) + mark.size(), numberLength);
        constexpr quint64 bitOfSigterm = 1ULL << 14;
        return (caught.toULongLong(nullptr, 16) & bitOfSigterm) != 0;
    }

    QString Folder() const { return home.path() + QStringLiteral("/tressel"); }

    QTemporaryDir home;
    QProcess process;

private:
    PosixSystemFacts facts;
    PosixProgram executable{QByteArray(TRESSEL_PROGRAM), 0, nullptr, {}};
};

} // namespace tressel
