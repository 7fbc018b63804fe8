// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/erase/MediumErasure.h"

#include "machine/posix/PosixFileSystem.h"
#include "support/Census.h"
#include "support/MemoryMachine.h"
#include "support/TemporaryFolder.h"
#include "support/Text.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

/// What a failed erasure says; empty if it didn't fail.
QString WhyFailed(MediumErasure erasure, const QString &path)
{
    try {
        erasure.Erase(path);
        return {};
    } catch (const Failure &failure) {
        return failure.description;
    }
}

const QString another =
    u"Another file has come in its place meanwhile and stays; the one that was there is overwritten"_s;

TEST(MediumErasure, AFailureBehindTheNewNameGivesTheOldOneBack)
{
    for (const Operation operation : {Operation::ResizeFile, Operation::CloseFile, Operation::RemoveFile}) {
        MemoryMachine memory;
        memory.files.PutFile(u"C:\\Work\\f"_s, "secret");
        memory.files.FailAt(operation, u"C:\\Work"_s, 1, FailureNumber::DeviceIoError);
        EXPECT_EQ(WhyFailed({memory.files, 1, false, [](qint64) {}}, u"C:\\Work\\f"_s),
                  u"Device I/O error"_s);
        EXPECT_EQ(memory.files.Tree(u"C:\\Work"_s), QStringList{u"f"_s});
        EXPECT_FALSE(memory.files.Bytes(u"C:\\Work\\f"_s).contains("secret"));
    }
}

TEST(MediumErasure, AFailureUnderTheOldNameTellsNoOther)
{
    MemoryMachine memory;
    memory.files.PutFile(u"C:\\Work\\f"_s, "secret");
    memory.files.FailAt(Operation::RemoveFile, u"C:\\Work\\f"_s, 1, FailureNumber::PathFileAccessError);
    EXPECT_EQ(WhyFailed({memory.files, 1, true, [](qint64) {}}, u"C:\\Work\\f"_s),
              u"Path/File access error"_s);
}

class MediumErasureOnDisc : public testing::Test {
protected:
    void Put(const QByteArray &name, const QByteArray &bytes) const
    {
        const int file = open(folder.Native(name).constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
        EXPECT_EQ(write(file, bytes.constData(), static_cast<size_t>(bytes.size())), bytes.size());
        close(file);
    }
    QString Path(const QString &name) const { return folder.Path() + u'/' + name; }
    auto Census() const { return CensusOf(folder.Path().toStdString()); }

    const TemporaryFolder folder;
    PosixFileSystem files;
};

TEST_F(MediumErasureOnDisc, AFileThatIsSavedAnewMeanwhileStaysUnderItsName)
{
    for (const bool keepsName : {false, true}) {
        Put("f", "secret");
        const auto saveAnew = [this](qint64) {
            Put("new", "mine");
            rename(folder.Native("new").constData(), folder.Native("f").constData());
        };
        EXPECT_EQ(WhyFailed({files, 1, keepsName, saveAnew}, Path(u"f"_s)), another);
        EXPECT_EQ(Census(), (std::map<std::string, std::string>{{"f", "file mine"}}));
        unlink(folder.Native("f").constData());
    }
}

TEST_F(MediumErasureOnDisc, ALinkThatIsPutInItsPlaceStaysAndSoDoesItsTarget)
{
    Put("f", "secret");
    Put("letter", "mine");
    const auto putLink = [this, isThere = false](qint64) mutable {
        if (std::exchange(isThere, true))
            return;
        unlink(folder.Native("f").constData());
        EXPECT_EQ(symlink("letter", folder.Native("f").constData()), 0);
    };
    EXPECT_EQ(WhyFailed({files, 1, false, putLink}, Path(u"f"_s)), another);
    EXPECT_EQ(Census(),
              (std::map<std::string, std::string>{{"f", "link to letter"}, {"letter", "file mine"}}));
}

TEST_F(MediumErasureOnDisc, EachPassIsInTheFileAndTheLastIsAtRandom)
{
    Put("f", QByteArray(10000, 'a'));
    ASSERT_EQ(link(folder.Native("f").constData(), folder.Native("second").constData()), 0);
    QList<QByteArray> seen;
    MediumErasure erasure(files, 2, false, [&](qint64 bytes) {
        EXPECT_EQ(bytes, 10000);
        seen += files.Open(Path(u"second"_s), OpenFor::Reading)->Read(20000);
    });
    erasure.Erase(Path(u"f"_s));
    // Two passes, and the reading back of the second.
    ASSERT_EQ(seen.size(), 3);
    EXPECT_EQ(seen.at(0).size(), 10000);
    EXPECT_NE(seen.at(0), QByteArray(10000, 'a'));
    EXPECT_NE(seen.at(0), seen.at(1));
    EXPECT_EQ(seen.at(1), seen.at(2));
    EXPECT_EQ(Census(), (std::map<std::string, std::string>{{"second", "file "}}));
}

} // namespace
