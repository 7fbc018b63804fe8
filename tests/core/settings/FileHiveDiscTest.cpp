// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// The hive's file where discs, folders and other programs don't do as one would like.

#include "core/settings/FileHiveFixture.h"
#include "support/EnvironmentVariable.h"
#include "support/FullDisc.h"
#include "support/TemporaryFolder.h"
#include "support/Text.h"

#include <QElapsedTimer>
#include <QFileInfo>

#include <fcntl.h>
#include <pwd.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

QByteArray Native(const QString &path)
{
    return QFile::encodeName(path);
}

mode_t ModeOf(const QString &path)
{
    struct stat status = {};
    EXPECT_EQ(stat(Native(path).constData(), &status), 0);
    return status.st_mode & 07777;
}

TEST_F(FileHiveTest, TheFolderIsTheUsersAlone)
{
    FileHive hive(folder, facts);
    Put(hive, u"a"_s, 1U);
    hive.Flush();
    EXPECT_EQ(ModeOf(folder), 0700U);
    // One that an earlier version left open is closed before it is locked.
    ASSERT_EQ(chmod(Native(folder).constData(), 0755), 0);
    Put(hive, u"a"_s, 2U);
    hive.Flush();
    EXPECT_EQ(ModeOf(folder), 0700U);
}

TEST_F(FileHiveTest, WhatCouldNotBeReadWhenItWasNeededIsNeverReplaced)
{
    ASSERT_TRUE(QDir().mkpath(path));
    FileHive hive(folder, facts);
    EXPECT_EQ(hive.Read(SettingsHive::Root::User, u"Software\\Some Maker"_s, u"a"_s), std::nullopt);
    ASSERT_TRUE(QDir().rmdir(path));
    const QByteArray stored = "[Software\\Some Maker]\n\"a\"=\"1\"\n";
    Make(path, stored);
    // The default that stood for the stored value.
    Put(hive, u"a"_s, u"0"_s);
    EXPECT_EQ(hive.FlushAtEnd(),
              u"The settings file could not be read before, and stays as it is: "_s + path);
    EXPECT_EQ(BytesOf(path), stored);
}

TEST_F(FileHiveTest, AFullDiscLeavesTheOldFile)
{
    Make(path, "[Software\\Some Maker]\n\"a\"=\"1\"\n");
    const QByteArray before = BytesOf(path);
    FileHive hive(folder, facts);
    Put(hive, u"b"_s, QString(10'000, u'x'));
    {
        const FullDisc disc(4096);
        hive.Flush();
        EXPECT_TRUE(hive.FlushAtEnd().startsWith(u"Disk full"_s));
    }
    EXPECT_EQ(BytesOf(path), before);
    EXPECT_EQ(Names(), QStringList{u"settings"_s});
    hive.Flush();
    EXPECT_EQ(Stored(u"b"_s), HiveValue(QString(10'000, u'x')));
    EXPECT_EQ(hive.FlushAtEnd(), QString());
}

TEST_F(FileHiveTest, WhatAKilledProcessLeftIsUsedUp)
{
    Make(path, "");
    Make(folder + u"/.tressel-settings.tmp"_s, "half of the");
    FileHive hive(folder, facts);
    Put(hive, u"a"_s, 1U);
    hive.Flush();
    EXPECT_EQ(Stored(u"a"_s), HiveValue(1U));
    EXPECT_EQ(Names(), QStringList{u"settings"_s});
}

TEST_F(FileHiveTest, WhatAnotherProcessWroteIsSeenAtOnce)
{
    FileHive first(folder, facts);
    FileHive second(folder, facts);
    EXPECT_FALSE(Get(first, u"report"_s));
    Put(first, u"own"_s, 7U);
    Put(second, u"report"_s, u"made"_s);
    Put(second, u"own"_s, 8U);
    second.Flush();
    EXPECT_EQ(Get(first, u"report"_s), HiveValue(u"made"_s));
    EXPECT_EQ(Get(first, u"own"_s), HiveValue(7U));
}

TEST_F(FileHiveTest, AFileThatIsTooLargeIsToldAndLeftAlone)
{
    Make(path, "[Software\\Some Maker]\n\"a\"=\"1\"\n");
    constexpr off_t justTooLong = 16 * 1024 * 1024 + 1;
    ASSERT_EQ(truncate(Native(path).constData(), justTooLong), 0);
    FileHive hive(folder, facts);
    EXPECT_FALSE(Get(hive, u"a"_s));
    Put(hive, u"b"_s, 1U);
    hive.Flush();
    EXPECT_EQ(hive.FlushAtEnd(), u"The settings file is larger than 16 MiB and stays as it is: "_s + path);
    EXPECT_EQ(QFileInfo(path).size(), justTooLong);
    EXPECT_EQ(Get(hive, u"b"_s), HiveValue(1U));
}

TEST_F(FileHiveTest, AHeldLockIsWaitedForOnceAndToldAtTheEnd)
{
    QDir().mkpath(folder);
    const int lock = open(Native(folder).constData(), O_RDONLY | O_DIRECTORY);
    ASSERT_EQ(flock(lock, LOCK_EX | LOCK_NB), 0);
    FileHive hive(folder, facts);
    Put(hive, u"a"_s, 1U);
    hive.Flush();
    QElapsedTimer timer;
    timer.start();
    for (int click = 0; click < 10; ++click)
        hive.Flush();
    EXPECT_LT(timer.elapsed(), 250);
    EXPECT_EQ(hive.FlushAtEnd(), u"Another program holds the settings folder "_s + folder + u'.');
    EXPECT_GE(timer.elapsed(), 1000);
    close(lock);
    EXPECT_EQ(hive.FlushAtEnd(), QString());
    EXPECT_EQ(Stored(u"a"_s), HiveValue(1U));
}

TEST_F(FileHiveTest, AFolderWhoseNameIsNoUtf8IsUsedAsItIs)
{
    const TemporaryFolder place;
    const QByteArray home = place.Native("caf\xE9");
    const EnvironmentVariable config("XDG_CONFIG_HOME", home);
    FileHive hive(FileHive::DefaultFolder(), facts);
    Put(hive, u"a"_s, 1U);
    hive.Flush();
    struct stat status = {};
    EXPECT_EQ(stat((home + "/tressel/settings").constData(), &status), 0);
    EXPECT_EQ(Get(*std::make_unique<FileHive>(FileHive::DefaultFolder(), facts), u"a"_s), HiveValue(1U));
    EXPECT_EQ(QDir(place.Path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 0)
        << "a second folder beside it";
}

TEST_F(FileHiveTest, TheDefaultFolderIsInTheUsersConfiguration)
{
    const EnvironmentVariable config("XDG_CONFIG_HOME", "/some/config");
    EXPECT_EQ(FileHive::DefaultFolder(), u"/some/config/tressel"_s);
}

TEST_F(FileHiveTest, AFolderOfConfigurationMustBeAWholePath)
{
    const EnvironmentVariable config("XDG_CONFIG_HOME", "some/config");
    const EnvironmentVariable home("HOME", "/home/me/");
    EXPECT_EQ(FileHive::DefaultFolder(), u"/home/me/.config/tressel"_s);
}

TEST_F(FileHiveTest, WithoutAHomeNothingGoesToTheRoot)
{
    const EnvironmentVariable config("XDG_CONFIG_HOME", "");
    const EnvironmentVariable home("HOME", "");
    const passwd *const user = getpwuid(getuid());
    ASSERT_TRUE(user);
    EXPECT_EQ(FileHive::DefaultFolder(), QString::fromUtf8(user->pw_dir) + u"/.config/tressel"_s);
    const EnvironmentVariable nowhere("HOME", "not/a/whole/path");
    EXPECT_EQ(FileHive::DefaultFolder(), QString());
}

TEST_F(FileHiveTest, WithoutAFolderEverythingStaysInMemory)
{
    FileHive hive(QString(), facts);
    Put(hive, u"a"_s, 1U);
    hive.Flush();
    EXPECT_EQ(Get(hive, u"a"_s), HiveValue(1U));
    EXPECT_EQ(hive.FlushAtEnd(), u"There is no home folder to keep the settings in."_s);
}

} // namespace
