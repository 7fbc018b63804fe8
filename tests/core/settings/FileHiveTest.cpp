// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "core/settings/FileHiveFixture.h"
#include "settings/HiveText.h"
#include "support/Text.h"

#include <QElapsedTimer>
#include <QFileInfo>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

constexpr auto User = SettingsHive::Root::User;

TEST_F(FileHiveTest, ReadingMakesNothing)
{
    FileHive hive(folder, facts);
    EXPECT_FALSE(Get(hive, u"a"_s));
    hive.Flush();
    EXPECT_FALSE(QFileInfo::exists(root.filePath(u"config"_s)));
}

TEST_F(FileHiveTest, ValuesOfAllKindsSurviveTheProcess)
{
    FileHive hive(folder, facts);
    const HiveValue values[] = {u""_s, QString(u"a\0b"_s), QString(QChar(u'\xDCB2')),
                                0U,    0xFFFFFFFFU,        OtherKindValue{2, "x"}};
    for (std::size_t number = 0; number < std::size(values); ++number)
        Put(hive, QString::number(number), values[number]);
    hive.Flush();
    for (std::size_t number = 0; number < std::size(values); ++number)
        EXPECT_EQ(Stored(QString::number(number)), values[number]);
    EXPECT_EQ(Names(), QStringList{u"settings"_s});
}

TEST_F(FileHiveTest, WritesAreGatheredUntilTheFlush)
{
    FileHive hive(folder, facts);
    Put(hive, u"a"_s, 1U);
    Put(hive, u"b"_s, 2U);
    EXPECT_EQ(Get(hive, u"A"_s), HiveValue(1U));
    EXPECT_FALSE(QFileInfo::exists(path));
    hive.Flush();
    EXPECT_EQ(Stored(u"a"_s), HiveValue(1U));
    EXPECT_EQ(Stored(u"b"_s), HiveValue(2U));
}

TEST_F(FileHiveTest, AFlushWithoutAChangeLeavesTheFileAlone)
{
    Make(path, "; my remark\n[Software\\Some Maker]\n\"a\"=dword:00000001\n");
    const QByteArray before = BytesOf(path);
    FileHive hive(folder, facts);
    Put(hive, u"a"_s, 1U);
    hive.Flush();
    EXPECT_EQ(BytesOf(path), before);
}

TEST_F(FileHiveTest, TwoInstancesKeepEachOthersValuesAndTheLastToWriteWins)
{
    FileHive first(folder, facts);
    FileHive second(folder, facts);
    EXPECT_FALSE(Get(first, u"a"_s));
    EXPECT_FALSE(Get(second, u"a"_s));
    Put(first, u"mine"_s, 1U);
    Put(first, u"both"_s, u"first"_s);
    Put(second, u"yours"_s, 2U);
    Put(second, u"BOTH"_s, u"second"_s);
    second.Flush();
    first.Flush();
    EXPECT_EQ(Stored(u"mine"_s), HiveValue(1U));
    EXPECT_EQ(Stored(u"yours"_s), HiveValue(2U));
    EXPECT_EQ(Stored(u"both"_s), HiveValue(u"first"_s));
    EXPECT_EQ(Get(first, u"yours"_s), HiveValue(2U));
}

TEST_F(FileHiveTest, ValuesOnceFlushedAreNotWrittenAgain)
{
    FileHive first(folder, facts);
    FileHive second(folder, facts);
    Put(first, u"a"_s, 1U);
    first.Flush();
    Put(second, u"a"_s, 2U);
    second.Flush();
    Put(first, u"b"_s, 3U);
    first.Flush();
    EXPECT_EQ(Stored(u"a"_s), HiveValue(2U));
}

TEST_F(FileHiveTest, NamesKeepTheirFirstSpelling)
{
    FileHive hive(folder, facts);
    Put(hive, u"FilePath"_s, u"1"_s);
    hive.Flush();
    FileHive again(folder, facts);
    Put(again, u"FILEPATH"_s, u"2"_s);
    again.Flush();
    EXPECT_TRUE(BytesOf(path).contains("\"FilePath\"=\"2\""));
    EXPECT_FALSE(BytesOf(path).contains("FILEPATH"));
}

TEST_F(FileHiveTest, ADamagedFileIsUsedAsFarAsItIsSoundAndKeptBeside)
{
    const QByteArray damaged[] = {
        "[Software\\Some Maker]\n\"good\"=\"1\"\n\"bad\"=\"cut of",
        "[Software\\Some Maker]\n\"good\"=\"1\"\n" + QByteArray("\0\xff\xfe\x01", 4),
        "[Software\\Some Maker]\n\"good\"=\"1\"\n\"bad\"=qword:01\n",
        "[Software\\Some Maker]\n\"good\"=\"1\"\n\"bad\"=\"\\q\"\n",
    };
    QStringList expected{u"settings"_s};
    for (const QByteArray &bytes : damaged) {
        SCOPED_TRACE(bytes.toStdString());
        Make(path, bytes);
        FileHive hive(folder, facts);
        EXPECT_EQ(Get(hive, u"good"_s), HiveValue(u"1"_s));
        EXPECT_FALSE(Get(hive, u"bad"_s));
        EXPECT_EQ(BytesOf(path), bytes);
        Put(hive, u"new"_s, 5U);
        hive.Flush();
        EXPECT_EQ(Stored(u"good"_s), HiveValue(u"1"_s));
        EXPECT_EQ(Stored(u"new"_s), HiveValue(5U));
        EXPECT_FALSE(HiveFromText(BytesOf(path)).isDamaged);
        const QString aside =
            expected.size() == 1 ? u"settings.damaged"_s : u"settings.damaged-%1"_s.arg(expected.size());
        EXPECT_EQ(BytesOf(folder + u'/' + aside), bytes);
        expected.append(aside);
        EXPECT_EQ(Names(), expected);
    }
    EXPECT_EQ(BytesOf(path + u".damaged"_s), damaged[0]);
}

TEST_F(FileHiveTest, TheSameDamageIsKeptOnce)
{
    Make(path, "nonsense\n");
    Make(path + u".damaged"_s, "nonsense\n");
    FileHive hive(folder, facts);
    Put(hive, u"a"_s, 1U);
    hive.Flush();
    EXPECT_EQ(Names(), (QStringList{u"settings"_s, u"settings.damaged"_s}));
}

TEST_F(FileHiveTest, ADamagedFileThatCantBeKeptIsNotReplaced)
{
    Make(path, "nonsense\n");
    Make(path + u".damaged"_s, "other nonsense\n");
    for (int number = 2; number <= 100; ++number)
        QDir(folder).mkpath(u"settings.damaged-%1"_s.arg(number));
    FileHive hive(folder, facts);
    Put(hive, u"a"_s, 1U);
    hive.Flush();
    EXPECT_EQ(BytesOf(path), "nonsense\n");
    EXPECT_EQ(BytesOf(path + u".damaged"_s), "other nonsense\n");
    EXPECT_EQ(Get(hive, u"a"_s), HiveValue(1U));
}

TEST_F(FileHiveTest, AnEmptyFileIsAnEmptyStore)
{
    Make(path, "");
    FileHive hive(folder, facts);
    EXPECT_FALSE(Get(hive, u"a"_s));
    Put(hive, u"a"_s, 1U);
    hive.Flush();
    EXPECT_EQ(Stored(u"a"_s), HiveValue(1U));
    EXPECT_EQ(Names(), QStringList{u"settings"_s});
}

TEST_F(FileHiveTest, ALinkStaysAndItsTargetIsReplaced)
{
    const QString target = root.filePath(u"dotfiles/tressel-settings"_s);
    Make(target, "[Software\\Some Maker]\n\"old\"=\"1\"\n");
    QDir().mkpath(folder);
    ASSERT_TRUE(QFile::link(u"../../dotfiles/tressel-settings"_s, path));
    FileHive hive(folder, facts);
    EXPECT_EQ(Get(hive, u"old"_s), HiveValue(u"1"_s));
    Put(hive, u"new"_s, 2U);
    hive.Flush();
    EXPECT_TRUE(QFileInfo(path).isSymLink());
    EXPECT_FALSE(QFileInfo(target).isSymLink());
    EXPECT_TRUE(BytesOf(target).contains("\"new\"=dword:00000002"));
    EXPECT_TRUE(BytesOf(target).contains("\"old\"=\"1\""));
    EXPECT_EQ(QDir(QFileInfo(target).path()).entryList(QDir::Files), QStringList{u"tressel-settings"_s});
}

TEST_F(FileHiveTest, ALinkToAFileThatIsNotThereYetMakesIt)
{
    QDir().mkpath(folder);
    QDir().mkpath(root.filePath(u"dotfiles"_s));
    ASSERT_TRUE(QFile::link(root.filePath(u"dotfiles/new"_s), path));
    FileHive hive(folder, facts);
    Put(hive, u"a"_s, 1U);
    hive.Flush();
    EXPECT_TRUE(QFileInfo(path).isSymLink());
    EXPECT_TRUE(BytesOf(root.filePath(u"dotfiles/new"_s)).contains("\"a\""));
}

TEST_F(FileHiveTest, WhatIsNoFileIsNeitherReadNorReplaced)
{
    QDir().mkpath(folder);
    const QByteArray name = QFile::encodeName(path);
    const auto expectUntouched = [&] {
        FileHive hive(folder, facts);
        EXPECT_FALSE(Get(hive, u"a"_s));
        Put(hive, u"a"_s, 1U);
        hive.Flush();
        EXPECT_EQ(Get(hive, u"a"_s), HiveValue(1U));
        EXPECT_FALSE(QFileInfo(path).isFile());
    };
    // Opening a pipe would hang this test.
    ASSERT_EQ(::mkfifo(name.constData(), 0600), 0);
    expectUntouched();
    QFile::remove(path);
    QDir().mkdir(path);
    expectUntouched();
    QDir().rmdir(path);
    QFile::link(u"/dev/null"_s, path);
    expectUntouched();
    EXPECT_TRUE(QFileInfo(path).isSymLink());
}

TEST_F(FileHiveTest, AFileWhereTheFolderShouldBeIsLeftAlone)
{
    Make(root.filePath(u"config"_s), "mine");
    FileHive hive(folder, facts);
    Put(hive, u"a"_s, 1U);
    hive.Flush();
    EXPECT_EQ(Get(hive, u"a"_s), HiveValue(1U));
    EXPECT_EQ(BytesOf(root.filePath(u"config"_s)), "mine");
}

TEST_F(FileHiveTest, ALockHeldByAnotherDelaysTheWriteToTheNextFlush)
{
    QDir().mkpath(folder);
    const int lock = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY);
    ASSERT_EQ(::flock(lock, LOCK_EX | LOCK_NB), 0);
    FileHive hive(folder, facts);
    Put(hive, u"a"_s, 1U);
    QElapsedTimer timer;
    timer.start();
    hive.Flush();
    EXPECT_LT(timer.elapsed(), 5000);
    EXPECT_FALSE(QFileInfo::exists(path));
    ::close(lock);
    hive.Flush();
    EXPECT_EQ(Stored(u"a"_s), HiveValue(1U));
}

TEST_F(FileHiveTest, TheMachinesRootIsTheSystemsFacts)
{
    FileHive hive(folder, facts);
    const QString factsKey = u"Software\\Microsoft\\Windows NT\\CurrentVersion"_s;
    constexpr auto machineWide = SettingsHive::Root::Machine;
    EXPECT_EQ(hive.Read(machineWide, factsKey.toUpper(), u"ProductName"_s), HiveValue(u"Some System"_s));
    EXPECT_FALSE(hive.Read(machineWide, factsKey, u"CSDVersion"_s));
    EXPECT_FALSE(hive.Read(machineWide, key, u"ProductName"_s));
    EXPECT_FALSE(hive.Write(machineWide, factsKey, u"ProductName"_s, u"x"_s));
    hive.Flush();
    EXPECT_FALSE(QFileInfo::exists(folder));
}

} // namespace
