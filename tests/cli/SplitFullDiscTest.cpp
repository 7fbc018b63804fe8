// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// A real disc in memory that is full at each write of a cut, and of a join, in turn.

#include "CommandStage.h"
#include "support/Census.h"
#include "support/OwnMounts.h"
#include "support/TemporaryFolder.h"
#include "support/WatchedDisc.h"

#include <QCryptographicHash>

#include <fcntl.h>
#include <unistd.h>

using namespace tressel;
using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

namespace {

/// How much of a write the disc still takes.
enum class Room { None, Some };

class SplitFullDisc : public CommandStage {
protected:
    SplitFullDisc()
    {
        workingFolder = folder.Path();
        disc = &watched;
    }

    /// Pieces of the copy that differ from each other.
    static QByteArray Contents(qsizetype length)
    {
        QByteArray bytes(length, Qt::Uninitialized);
        for (qsizetype index = 0; index < length; ++index)
            bytes[index] = static_cast<char>(index * 7 + index / 251);
        return bytes;
    }
    void Put(const QByteArray &name, const QByteArray &bytes) const
    {
        std::ofstream(folder.Native(name).toStdString(), std::ios::binary)
            .write(bytes.constData(), bytes.size());
    }
    auto Here() const { return CensusOf(folder.Path().toStdString()); }

    /// Has the disc full at one of the writes of the next command: another program takes all the room then.
    void FillAtWrite(int number, Room room)
    {
        watched.before = [this, number, room](const DiscStep &step) {
            if (step.operation != Operation::WriteBytes || ++writes != number)
                return;
            struckPath = step.path;
            constexpr qint64 page = 4096;
            TakeRoom(room == Room::Some && step.bytes > 2 * page ? page : 0);
        };
    }
    void TakeRoom(qint64 left) const
    {
        const int file = open(folder.Native(taker).constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
        const auto room = static_cast<qint64>(fs::space(folder.Path().toStdString()).available) - left;
        if (posix_fallocate(file, 0, room) != 0)
            std::abort();
        close(file);
    }
    /// In the child: runs a command on the disc. True if it failed at what it was writing, said so, told
    /// `count` and left all as it was; or if it ended well, its writes being fewer.
    bool LeavesAll(const std::function<void()> &prepare, const QStringList &words, const QByteArray &count)
    {
        if (!MountMemory(folder.Native(""), discLength))
            return false;
        prepare();
        const auto before = Here();
        const Ended ended = Run(words);
        if (struckPath.isEmpty())
            return ended.status == 0;
        std::ofstream(mark) << "struck";
        return fs::remove(folder.Native(taker).toStdString()) && Here() == before && ended.status == 1
            && ended.out == count && ended.err.endsWith(struckPath.toUtf8() + ": Disk full\n")
            && ended.err.count('\n') == 1;
    }
    void ExpectAllLeftAtEachWrite(const std::function<void()> &prepare, const QStringList &words,
                                  int leastWrites, const QByteArray &count)
    {
        for (const Room room : {Room::None, Room::Some}) {
            int number = 0;
            do {
                fs::remove(mark);
                FillAtWrite(++number, room);
                const auto holds = HoldsAmongOwnMounts([&] { return LeavesAll(prepare, words, count); });
                if (!holds)
                    GTEST_SKIP() << "This system lets nobody have mounts of their own.";
                EXPECT_TRUE(*holds) << "at write " << number << ", room " << static_cast<int>(room);
            } while (fs::exists(mark));
            EXPECT_GE(number - 1, leastWrites);
        }
    }

    static constexpr qint64 discLength = 8 << 20;
    const QByteArray taker = "taken by another";
    const TemporaryFolder folder;
    const TemporaryFolder outside; ///< of the mount
    const fs::path mark = outside.Native("struck").toStdString(); ///< there if the disc was filled in a run
    WatchedDisc watched;
    int writes = 0;
    QString struckPath;
};

/// Two steps of the short way, five of reading and writing.
constexpr qsizetype part = 1'100'000;

TEST_F(SplitFullDisc, ACutLeavesNothingOfItsOwn)
{
    const auto prepare = [this] {
        Put("a", Contents(3 * part - 1));
        Put("b.1", "of another");
    };
    ExpectAllLeftAtEachWrite(prepare, {u"split"_s, u"a"_s, u"--count"_s, u"3"_s}, 6, "made 0 parts\n");
}

TEST_F(SplitFullDisc, ACutWithOtherFilesLeavesNothingOfItsOwn)
{
    const auto prepare = [this] { Put("a", Contents(2 * part)); };
    ExpectAllLeftAtEachWrite(prepare,
                             {u"split"_s, u"a"_s, u"--count"_s, u"2"_s, u"--batch"_s, u"--checksums"_s}, 12,
                             "made 0 parts, 0 other files\n");
}

TEST_F(SplitFullDisc, AJoinLeavesThePartsAndTheOldFile)
{
    const auto prepare = [this] {
        for (const char *name : {"a.1", "a.2"})
            Put(name, Contents(part));
        Put("a.3", Contents(10000)); // More than the page that the part before has begun.
        Put("a", "old");
    };
    ExpectAllLeftAtEachWrite(prepare, {u"join"_s, u"a"_s, u"--force"_s, u"--delete-parts"_s}, 5,
                             "joined 0 parts, deleted 0 files\n");
}

TEST_F(SplitFullDisc, AJoinThatLooksAtChecksumsLeavesTheParts)
{
    const auto prepare = [this] {
        for (const char *name : {"a.1", "a.2"})
            Put(name, Contents(part));
        Put("a.sha256",
            QCryptographicHash::hash(Contents(part), QCryptographicHash::Sha256).toHex() + "  a.1\n");
    };
    ExpectAllLeftAtEachWrite(prepare, {u"join"_s, u"a"_s}, 7, "joined 0 parts\n");
}

} // namespace
