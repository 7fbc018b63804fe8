// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/SystemFacts.h"
#include "settings/FileHive.h"

#include <QDir>
#include <QFile>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

/// Two facts that stand still.
class StillFacts : public tressel::SystemFacts {
public:
    std::optional<QString> Fact(const QString &name) const override
    {
        using namespace Qt::StringLiterals;
        return name == u"ProductName"_s ? std::optional(u"Some System"_s) : std::nullopt;
    }
};

/// A hive on disk in a folder of its own.
class FileHiveTest : public testing::Test {
protected:
    FileHiveTest()
        : folder(root.filePath(QStringLiteral("config/tressel")))
        , path(folder + QStringLiteral("/settings"))
    {
    }

    static QByteArray BytesOf(const QString &file)
    {
        QFile opened(file);
        EXPECT_TRUE(opened.open(QIODevice::ReadOnly)) << file.toStdString();
        return opened.readAll();
    }
    static void Make(const QString &file, const QByteArray &bytes)
    {
        QDir().mkpath(QFileInfo(file).path());
        QFile opened(file);
        ASSERT_TRUE(opened.open(QIODevice::WriteOnly)) << file.toStdString();
        opened.write(bytes);
    }
    QStringList Names() const
    {
        return QDir(folder).entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Name);
    }

    std::optional<tressel::HiveValue> Stored(const QString &name)
    {
        return tressel::FileHive(folder, facts).Read(tressel::SettingsHive::Root::User, key, name);
    }
    static void Put(tressel::SettingsHive &hive, const QString &name, const tressel::HiveValue &value)
    {
        EXPECT_TRUE(hive.Write(tressel::SettingsHive::Root::User, key, name, value));
    }
    static std::optional<tressel::HiveValue> Get(tressel::SettingsHive &hive, const QString &name)
    {
        return hive.Read(tressel::SettingsHive::Root::User, key, name);
    }

    inline static const QString key = QStringLiteral("Software\\Some Maker");
    QTemporaryDir root;
    QString folder;
    QString path;
    StillFacts facts;
};
