// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "core/settings/FileHiveFixture.h"
#include "settings/HiveText.h"
#include "support/Text.h"

#include <QElapsedTimer>

#include <csignal>
#include <functional>
#include <grp.h>
#include <poll.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

constexpr uid_t Nobody = 65534;

/// Runs in a process of its own, which ends with 0 if `body` says so.
pid_t Started(const std::function<bool()> &body)
{
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(body() ? 0 : 1);
    return child;
}

int StatusOf(pid_t child)
{
    int status = -1;
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    return status;
}

/// For a test of refusals, which root doesn't meet.
bool GiveUpRoot()
{
    return ::geteuid() != 0
        || (::setgroups(0, nullptr) == 0 && ::setgid(Nobody) == 0 && ::setuid(Nobody) == 0);
}

/// Flushes one complete state after the other, each told on the pipe before it is begun.
[[noreturn]] void WriteForever(FileHive &hive, const QString &key, int pipe)
{
    for (std::uint32_t state = 1;; ++state) {
        constexpr auto user = SettingsHive::Root::User;
        hive.Write(user, key, u"first"_s, state);
        hive.Write(user, key, u"middle"_s, QString(20000 + static_cast<int>(state % 7) * 1000, u'x'));
        hive.Write(user, key, u"last"_s, state);
        const char byte = 0;
        if (::write(pipe, &byte, 1) != 1)
            ::_exit(1);
        hive.Flush();
    }
}

TEST_F(FileHiveTest, AKillAtAnyMomentLeavesACompleteState)
{
    QElapsedTimer timer;
    timer.start();
    for (int round = 0; round < 40 && timer.elapsed() < 1000; ++round) {
        int ends[2];
        ASSERT_EQ(::pipe(ends), 0);
        const pid_t child = Started([&] {
            FileHive hive(folder, facts);
            WriteForever(hive, key, ends[1]);
            return false;
        });
        ::close(ends[1]);
        // The first round waits until a whole state is down: what comes after it is told when it is.
        for (int told = 0; told < (round == 0 ? 2 : 1); ++told) {
            char byte = 0;
            ASSERT_EQ(::read(ends[0], &byte, 1), 1);
        }
        // From the first step of a flush on, each round a little later.
        timespec moment{0, round * 300'000L};
        ::ppoll(nullptr, 0, &moment, nullptr);
        ::kill(child, SIGKILL);
        const int status = StatusOf(child);
        ::close(ends[0]);
        ASSERT_TRUE(WIFSIGNALED(status));

        EXPECT_FALSE(HiveFromText(BytesOf(path)).isDamaged);
        ASSERT_TRUE(Stored(u"first"_s));
        EXPECT_EQ(Stored(u"first"_s), Stored(u"last"_s));
    }
    // The lock of a killed process is no lock.
    FileHive hive(folder, facts);
    Put(hive, u"first"_s, 0U);
    hive.Flush();
    EXPECT_EQ(Stored(u"first"_s), HiveValue(0U));
}

TEST_F(FileHiveTest, TwoProcessesThatWriteAtOnceLoseNothing)
{
    constexpr int count = 8;
    const auto write = [this](const QString &prefix) {
        FileHive hive(folder, facts);
        for (int number = 0; number < count; ++number) {
            Put(hive, prefix + QString::number(number), 1U);
            hive.Flush();
        }
        // A flush that found the lock taken for long has kept its values.
        QElapsedTimer timer;
        timer.start();
        while (!Stored(prefix + QString::number(count - 1)) && timer.elapsed() < 10000)
            hive.Flush();
        return true;
    };
    const pid_t child = Started([&] { return write(u"a"_s); });
    write(u"b"_s);
    EXPECT_EQ(StatusOf(child), 0);
    for (int number = 0; number < count; ++number) {
        EXPECT_EQ(Stored(u"a"_s + QString::number(number)), HiveValue(1U));
        EXPECT_EQ(Stored(u"b"_s + QString::number(number)), HiveValue(1U));
    }
}

TEST_F(FileHiveTest, AFolderThatCantBeWrittenIsReadAndSilentlyNotWritten)
{
    Make(path, "[Software\\Some Maker]\n\"a\"=\"1\"\n");
    ASSERT_EQ(::chmod(QFile::encodeName(root.path()).constData(), 0755), 0);
    ASSERT_EQ(::chmod(QFile::encodeName(folder).constData(), 0555), 0);
    const pid_t child = Started([&] {
        if (!GiveUpRoot())
            return false;
        QElapsedTimer timer;
        timer.start();
        FileHive hive(folder, facts);
        const bool isRead = Get(hive, u"a"_s) == HiveValue(u"1"_s);
        Put(hive, u"a"_s, u"2"_s);
        hive.Flush();
        FileHive elsewhere(folder + u"/below"_s, facts);
        Put(elsewhere, u"a"_s, u"2"_s);
        elsewhere.Flush();
        return isRead && Get(hive, u"a"_s) == HiveValue(u"2"_s) && timer.elapsed() < 5000;
    });
    EXPECT_EQ(StatusOf(child), 0);
    EXPECT_EQ(Stored(u"a"_s), HiveValue(u"1"_s));
    EXPECT_EQ(Names(), QStringList{u"settings"_s});
    ::chmod(QFile::encodeName(folder).constData(), 0755);
}

TEST_F(FileHiveTest, AFileThatCantBeReadIsNotReplaced)
{
    Make(path, "[Software\\Some Maker]\n\"a\"=\"1\"\n");
    ASSERT_EQ(::chmod(QFile::encodeName(root.path()).constData(), 0755), 0);
    ASSERT_EQ(::chmod(QFile::encodeName(folder).constData(), 0777), 0);
    ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), 0), 0);
    const pid_t child = Started([&] {
        FileHive hive(folder, facts);
        if (!GiveUpRoot() || Get(hive, u"a"_s))
            return false;
        Put(hive, u"b"_s, 2U);
        hive.Flush();
        return Get(hive, u"b"_s) == HiveValue(2U);
    });
    EXPECT_EQ(StatusOf(child), 0);
    ::chmod(QFile::encodeName(path).constData(), 0600);
    EXPECT_EQ(Stored(u"a"_s), HiveValue(u"1"_s));
    EXPECT_FALSE(Stored(u"b"_s));
}

} // namespace
