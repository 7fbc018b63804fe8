// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// Files that nobody wrote on purpose, and a reader that is shut in.

#include "machine/posix/JetDatabases.h"
#include "support/AllObjects.h"
#include "support/JetWriter.h"
#include "support/MemoryEvents.h"
#include "support/SampleDatabase.h"
#include "support/TemporaryFolder.h"
#include "support/Text.h"

#include <QDir>

#include <csignal>
#include <fcntl.h>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <random>
#include <sys/stat.h>
#include <unistd.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

QByteArray Contents(const QByteArray &path)
{
    std::ifstream stream(path.constData(), std::ios::binary);
    return QByteArray::fromStdString({std::istreambuf_iterator<char>(stream), {}});
}

/// A table of many pages, with values that have pages of their own.
QByteArray LargeDatabase()
{
    JetWriter writer;
    WrittenTable table{u"Large"_s,
                       {{u"Number"_s, fieldTypes::Long}, {u"Text"_s}, {u"Memo"_s, fieldTypes::Memo}}};
    for (std::int64_t number = 0; number < 20000; ++number) {
        const QString memo(number % 100 == 0 ? 3000 : 10, u'm');
        table.rows.append({{number, u"Row %1"_s.arg(number), memo}});
    }
    writer.AddTable(table);
    return writer.Bytes();
}

class JetHostile : public testing::Test {
protected:
    QString PutFile(const QByteArray &bytes)
    {
        std::ofstream(file.constData(), std::ios::binary | std::ios::trunc)
            .write(bytes.constData(), bytes.size());
        return path;
    }

    /// Asks all there is to ask of the file. Whatever fails must be one of the failures that files have.
    void AskAll()
    {
        Ask([&] {
            for (const DatabaseObject &object : AllObjects(databases, path))
                AskTable(object.name);
        });
    }
    void AskTable(const QString &table)
    {
        Ask([&] {
            QStringList fields;
            for (const DatabaseField &field : AllFields(databases, path, table)) {
                fields += field.name;
                if (++asked % 9 == 0)
                    Ask([&] { AllValues(databases, path, table, {field.name}); });
            }
            if (!fields.isEmpty() && asked % 2 == 0)
                Ask([&] { EXPECT_EQ(AllValues(databases, path, table, fields).size() % fields.size(), 0); });
        });
    }
    void Ask(const std::function<void()> &question)
    {
        try {
            question();
            ++answers;
        } catch (const Failure &failure) {
            ++failures;
            EXPECT_GE(failure.Number(), 3000) << qPrintable(failure.description);
            EXPECT_TRUE(failure.description.endsWith(u'.')) << qPrintable(failure.description);
        }
    }

    /// The only process that this one has started.
    static pid_t Reader()
    {
        std::ifstream children("/proc/self/task/" + std::to_string(gettid()) + "/children");
        pid_t number = 0;
        children >> number;
        return number;
    }

    TemporaryFolder folder;
    const QByteArray file = folder.Native("a.mdb");
    const QString path = QString::fromUtf8(file);
    Journal journal;
    MemoryEvents events{journal};
    JetDatabases databases{events};
    int asked = 0;
    int answers = 0;
    int failures = 0;
};

TEST_F(JetHostile, AFileCutAtAnyPageIsRefused)
{
    const QByteArray whole = SampleDatabase();
    for (qsizetype length = 0; length < whole.size(); length += 4096) {
        PutFile(whole.first(length));
        AskAll();
        PutFile(whole.first(length + 1));
        AskAll();
    }
    EXPECT_GT(failures, 0);
    // The list of all objects is written last.
    EXPECT_EQ(answers, 0);
}

TEST_F(JetHostile, AnAnswerFromAFileThatWasCutIsWholeOrAFailure)
{
    const QByteArray whole = LongDatabase(300);
    PutFile(whole);
    const QString table = u"Rows"_s;
    const QStringList field{u"Name"_s};
    const qsizetype objects = AllObjects(databases, path).size();
    const QList<DatabaseValue> values = AllValues(databases, path, table, field);
    ASSERT_EQ(values.size(), 300);
    constexpr qsizetype page = 4096;
    for (qsizetype length = whole.size() - page; length > 0; length -= page) {
        for (const qsizetype more : {qsizetype{0}, qsizetype{1}, page / 4, page - 1}) {
            PutFile(whole.first(length + more));
            Ask([&] { EXPECT_EQ(AllObjects(databases, path).size(), objects) << length + more; });
            Ask([&] { EXPECT_EQ(AllValues(databases, path, table, field), values) << length + more; });
        }
    }
    EXPECT_GT(failures, 0);
}

TEST_F(JetHostile, ASparseFileOfAGigabyteIsRefusedOrRead)
{
    const qsizetype gigabyte = 1 << 30;
    PutFile({});
    ASSERT_EQ(truncate(file.constData(), gigabyte), 0);
    AskAll();
    EXPECT_EQ(failures, 1);
    PutFile(SampleDatabase());
    ASSERT_EQ(truncate(file.constData(), gigabyte), 0);
    AskAll();
    EXPECT_EQ(failures, 1);
    EXPECT_GT(answers, 3);
}

TEST_F(JetHostile, AFileMayChangeShrinkAndVanishWhileItIsRead)
{
    const QByteArray whole = LargeDatabase();
    const auto read = [&](const std::function<void()> &meanwhile) {
        PutFile(whole);
        Ask([&] {
            const auto reader = databases.Read(path, u"Large"_s, {u"Memo"_s});
            reader->Next();
            meanwhile();
            while (reader->Next()) { }
        });
    };
    read([&] { ASSERT_EQ(unlink(file.constData()), 0); });
    EXPECT_EQ(answers, 1);
    read([&] { ASSERT_EQ(truncate(file.constData(), 100000), 0); });
    read([&] { ASSERT_EQ(truncate(file.constData(), 0), 0); });
    read([&] { PutFile(QByteArray(whole.size(), '\xFF')); });
    // Whether what went had been read already is a matter of time; either way each ends.
    EXPECT_EQ(answers + failures, 4);
}

TEST_F(JetHostile, AReaderKilledAtAnyMomentIsAFailure)
{
    PutFile(LargeDatabase());
    for (const int rows : {0, 1, 100, 5000}) {
        Ask([&] {
            const auto reader = databases.Read(path, u"Large"_s, {u"Memo"_s});
            for (int row = 0; row < rows; ++row)
                reader->Next();
            ASSERT_GT(Reader(), 0);
            ASSERT_EQ(kill(Reader(), SIGKILL), 0);
            while (reader->Next()) { }
        });
    }
    EXPECT_EQ(failures, 4);
}

TEST_F(JetHostile, TheReaderIsShutIn)
{
    PutFile(LargeDatabase());
    const auto reader = databases.Read(path, u"Large"_s, {u"Memo"_s});
    // It stands still now: it has more to say than a pipe holds.
    ASSERT_TRUE(reader->Next());
    const QByteArray place = "/proc/" + QByteArray::number(Reader());
    EXPECT_EQ(Contents(place + "/environ"), QByteArray());
    const QByteArray limits = Contents(place + "/limits").simplified();
#if !defined(__SANITIZE_ADDRESS__) // which can live with neither
    EXPECT_TRUE(Contents(place + "/status").contains("\nSeccomp:\t2\n"));
    EXPECT_TRUE(limits.contains("Max address space 536870912 536870912"));
#endif
    EXPECT_TRUE(limits.contains("Max cpu time 60 60"));
    EXPECT_TRUE(limits.contains("Max file size 0 0"));
    EXPECT_TRUE(limits.contains("Max open files 16 16"));
    EXPECT_TRUE(limits.contains("Max core file size 0 0"));
    // The three streams lead nowhere, and beside them are the answer's way out and the file.
    EXPECT_EQ(QDir(QString::fromUtf8(place + "/fd"))
                  .entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System)
                  .size(),
              5);
}

/// A file with some of its bytes changed, or a part of it missing.
QByteArray Damaged(QByteArray bytes, std::mt19937 &random)
{
    const auto below = [&](qsizetype limit) {
        return static_cast<qsizetype>(random() % static_cast<unsigned>(std::max<qsizetype>(limit, 1)));
    };
    constexpr std::array<int, 4> counts{1, 3, 10, 100};
    // The header is damaged now and then: with every change there nothing else would ever be looked at.
    const qsizetype from = below(5) == 0 ? 0 : 0x98;
    for (int count = counts[random() % counts.size()]; count > 0; --count) {
        char &byte = bytes[from + below(bytes.size() - from)];
        switch (random() % 4) {
        case 0:
            byte = '\0';
            break;
        case 1:
            byte = '\xFF';
            break;
        case 2:
            byte = static_cast<char>(byte ^ 1 << random() % 8);
            break;
        default:
            byte = static_cast<char>(random());
        }
    }
    if (below(7) == 0)
        bytes.truncate(below(bytes.size()));
    return bytes;
}

/// The sample files of this machine, as far as there are any, and our own.
QList<QByteArray> Originals()
{
    QList<QByteArray> originals{SampleDatabase()};
    const QString samples = qEnvironmentVariable("TRESSEL_SAMPLE_DATABASES");
    constexpr qsizetype largest = 500'000; // to write some thousand times
    if (samples.isEmpty())
        return originals;
    for (const QString &name : QDir(samples).entryList({u"*.mdb"_s, u"*.accdb"_s}, QDir::Files)) {
        const QByteArray bytes = Contents((samples + u'/' + name).toUtf8());
        if (bytes.size() <= largest)
            originals += bytes;
    }
    return originals;
}

TEST_F(JetHostile, DamagedFilesFailAndNothingMore)
{
    const int wanted = qEnvironmentVariableIntValue("TRESSEL_FUZZ_RUNS");
    const int runs = wanted > 0 ? wanted : 200;
    std::mt19937 random(20040331);
    const QList<QByteArray> originals = Originals();
    for (int run = 0; run < runs && !HasFailure(); ++run) {
        PutFile(
            Damaged(originals.at(static_cast<qsizetype>(random() % static_cast<unsigned>(originals.size()))),
                    random));
        AskAll();
    }
    EXPECT_GT(failures, runs / 20);
    EXPECT_GT(answers, runs / 20);
}

} // namespace
