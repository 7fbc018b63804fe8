// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/posix/JetDatabases.h"

#include "jet/Wire.h"
#include "support/AllObjects.h"
#include "support/AsNobody.h"
#include "support/Failures.h"
#include "support/MemoryEvents.h"
#include "support/TemporaryFolder.h"
#include "support/Text.h"

#include <csignal>
#include <fcntl.h>
#include <fstream>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace tressel;
using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace {

QByteArray Octal(const std::string &bytes)
{
    QByteArray text = "printf '";
    for (const char byte : bytes)
        text += '\\' + QByteArray::number(static_cast<unsigned char>(byte), 8).rightJustified(3, '0');
    return text + '\'';
}

const std::string hello = jet::Packer(jet::FrameKind::Hello).Number8(jet::ProtocolVersion).Frame();

class JetDatabasesTest : public testing::Test {
protected:
    QString At(const QString &name) const { return folder.Path() + u'/' + name; }
    void PutFile(const QByteArray &name, const QByteArray &bytes)
    {
        std::ofstream(folder.Native(name).constData(), std::ios::binary)
            .write(bytes.constData(), bytes.size());
    }
    /// A program that stands in for tressel-jet.
    QByteArray Script(const QByteArray &commands)
    {
        PutFile("script", "#!/bin/sh\n" + commands + '\n');
        EXPECT_EQ(chmod(folder.Native("script").constData(), 0755), 0);
        return folder.Native("script");
    }
    /// What asking such a program for the tables of a file comes to.
    QString Asking(const QByteArray &program, std::chrono::milliseconds patience = JetDatabases::Patience)
    {
        PutFile("a.mdb", "anything");
        JetDatabases asked(events, program, patience);
        return FailureText(asked, u"a.mdb"_s);
    }
    QString FailureText(Databases &asked, const QString &name)
    {
        try {
            AllObjects(asked, At(name));
        } catch (const Failure &failure) {
            return QString::number(failure.Number()) + u' ' + failure.description;
        }
        return {};
    }
    /// What asking such a program for two fields comes to: the values, then the failure.
    QStringList AskingForRows(const std::string &answer)
    {
        PutFile("a.mdb", "anything");
        QStringList told;
        try {
            JetDatabases asked(events, Script(Octal(answer)));
            const auto reader = asked.Read(At(u"a.mdb"_s), u"T"_s, {u"F"_s, u"G"_s});
            while (const auto value = reader->Next())
                told += std::get<QString>(*value);
        } catch (const Failure &failure) {
            told += QString::number(failure.Number()) + u' ' + failure.description;
        }
        return told;
    }
    QString Damaged() const { return u"3045 The file is already in use or damaged."_s; }

    TemporaryFolder folder;
    Journal journal;
    MemoryEvents events{journal};
    JetDatabases databases{events};
};

TEST_F(JetDatabasesTest, FailsInWordsForWhatIsNoDatabase)
{
    EXPECT_EQ(FailureText(databases, u"none.mdb"_s), u"3024 The file could not be found."_s);
    EXPECT_EQ(FailureText(databases, u"none/none.mdb"_s), u"3044 The path is not valid."_s);
    ASSERT_EQ(mkdir(folder.Native("folder").constData(), 0755), 0);
    EXPECT_EQ(FailureText(databases, u"folder"_s), u"3051 Only a regular file can be opened."_s);
    ASSERT_EQ(mkfifo(folder.Native("pipe").constData(), 0644), 0);
    EXPECT_EQ(FailureText(databases, u"pipe"_s), u"3051 Only a regular file can be opened."_s);
    for (const QByteArray &bytes :
         {QByteArray(), QByteArray("text"), QByteArray(8192, 'x'), QByteArray(8192, '\0')}) {
        PutFile("other", bytes);
        EXPECT_EQ(FailureText(databases, u"other"_s), u"3343 The file has no known database format."_s);
    }
    EXPECT_EQ(NumberThrownBy([&] { AllObjects(databases, {}); }), databaseFailures::NoSuchFolder);
}

TEST_F(JetDatabasesTest, FailsInWordsWhereAccessIsRefused)
{
    PutFile("closed.mdb", "anything");
    ASSERT_EQ(chmod(folder.Native("closed.mdb").constData(), 0), 0);
    ASSERT_EQ(chmod(folder.Native("").constData(), 0755), 0);
    const QString refused = u"3051 The file can't be opened; access is refused."_s;
    EXPECT_TRUE(HoldsAsNobody([&] { return FailureText(databases, u"closed.mdb"_s) == refused; }));
}

TEST_F(JetDatabasesTest, TakesAProgramThatSaysNothingWholeForADamagedFile)
{
    EXPECT_EQ(Asking(folder.Native("no-program")), Damaged());
    EXPECT_EQ(Asking(Script("exit 0")), Damaged());
    EXPECT_EQ(Asking(Script("kill -SEGV $$")), Damaged());
    EXPECT_EQ(Asking(Script("cat /dev/zero")), Damaged());
    EXPECT_EQ(Asking(Script("echo 'warning: page 12 does not match'")), Damaged());
    EXPECT_EQ(Asking(Script(Octal(hello))), Damaged());
    EXPECT_EQ(Asking(Script(Octal(jet::Packer(jet::FrameKind::Hello).Number8(0).Frame()))), Damaged());
}

TEST_F(JetDatabasesTest, BelievesNothingThatCannotBeAnAnswer)
{
    const std::string opened = jet::Packer(jet::FrameKind::Opened).Frame();
    const std::string begin = hello + opened;
    const std::string object = jet::Packer(jet::FrameKind::Object).Number8(1).Text(u"Table").Frame();
    const auto end = [](std::uint64_t count) {
        return jet::Packer(jet::FrameKind::End).Number64(count).Frame();
    };
    EXPECT_EQ(Asking(Script(Octal(begin + object + end(1)))), QString());
    EXPECT_EQ(Asking(Script(Octal(hello + object + end(1)))), Damaged());
    EXPECT_EQ(Asking(Script(Octal(object + end(1)))), Damaged());
    EXPECT_EQ(Asking(Script(Octal(begin + object))), Damaged());
    EXPECT_EQ(Asking(Script(Octal(begin + object + end(2)))), Damaged());
    EXPECT_EQ(Asking(Script(Octal(begin + object + object.substr(0, object.size() - 1)))), Damaged());
    // A kind of object, of frame or of failure that there isn't, a text that is longer than its frame.
    EXPECT_EQ(Asking(Script(
                  Octal(begin + jet::Packer(jet::FrameKind::Object).Number8(9).Text(u"T").Frame() + end(1)))),
              Damaged());
    EXPECT_EQ(Asking(Script(Octal(begin + jet::Packer(jet::FrameKind::Value).Number8(1).Frame() + end(1)))),
              Damaged());
    EXPECT_EQ(
        Asking(Script(Octal(begin + jet::Packer(jet::FrameKind::Failed).Number8(99).Number16(0).Frame()))),
        Damaged());
    EXPECT_EQ(Asking(Script(Octal(
                  begin + jet::Packer(jet::FrameKind::Object).Number8(1).Number32(4000).Frame() + end(1)))),
              Damaged());
    // A frame of four gigabytes.
    EXPECT_EQ(Asking(Script(Octal(begin + std::string("\377\377\377\377\005", 5)) + "; cat /dev/zero")),
              Damaged());
}

TEST_F(JetDatabasesTest, BelievesNoRowThatIsNotWhole)
{
    const std::string begin = hello + jet::Packer(jet::FrameKind::Opened).Frame();
    const auto value = [](jet::FrameKind kind, std::u16string_view text) {
        return jet::Packer(kind).Number8(static_cast<std::uint8_t>(jet::ValueKind::Text)).Text(text).Frame();
    };
    const auto end = [](std::uint64_t count) {
        return jet::Packer(jet::FrameKind::End).Number64(count).Frame();
    };
    const std::string first = value(jet::FrameKind::Value, u"f");
    const std::string last = value(jet::FrameKind::LastValue, u"g");
    const std::string row = first + last;
    EXPECT_EQ(AskingForRows(begin + end(0)), QStringList());
    EXPECT_EQ(AskingForRows(begin + row + row + end(4)), QStringList({u"f"_s, u"g"_s, u"f"_s, u"g"_s}));
    // Too few values in a row, too many, none, and none of the next row.
    EXPECT_EQ(AskingForRows(begin + last + end(1)), QStringList({Damaged()}));
    EXPECT_EQ(AskingForRows(begin + first + first + last + end(3)), QStringList({u"f"_s, Damaged()}));
    EXPECT_EQ(AskingForRows(begin + row + last + row + end(5)), QStringList({u"f"_s, u"g"_s, Damaged()}));
    EXPECT_EQ(AskingForRows(begin + row + first), QStringList({u"f"_s, u"g"_s, u"f"_s, Damaged()}));
    // The end in the middle of a row, also where it counts right.
    EXPECT_EQ(AskingForRows(begin + row + first + end(3)), QStringList({u"f"_s, u"g"_s, u"f"_s, Damaged()}));
    // An end that counts rows and not values.
    EXPECT_EQ(AskingForRows(begin + row + end(1)), QStringList({u"f"_s, u"g"_s, Damaged()}));
    // The older version of the talk.
    EXPECT_EQ(AskingForRows(jet::Packer(jet::FrameKind::Hello).Number8(1).Frame() + row + end(2)),
              QStringList({Damaged()}));
}

TEST_F(JetDatabasesTest, BelievesNoMissingFieldThatNobodyAskedFor)
{
    const auto missing = [](std::uint16_t place) {
        return hello + jet::Packer(jet::FrameKind::Opened).Frame()
            + jet::Packer(jet::FrameKind::Failed)
                  .Number8(static_cast<std::uint8_t>(jet::FailureCode::NoSuchField))
                  .Number16(place)
                  .Frame();
    };
    EXPECT_EQ(AskingForRows(missing(0)), QStringList({u"3265 The table 'T' has no field 'F'."_s}));
    EXPECT_EQ(AskingForRows(missing(1)), QStringList({u"3265 The table 'T' has no field 'G'."_s}));
    EXPECT_EQ(AskingForRows(missing(2)), QStringList({Damaged()}));
    EXPECT_EQ(AskingForRows(missing(65535)), QStringList({Damaged()}));
}

TEST_F(JetDatabasesTest, KillsAProgramThatGivesNoAnswerWhileTheWindowPaints)
{
    const QByteArray script = Script("echo $$ > " + folder.Native("number") + "; exec sleep 100");
    EXPECT_EQ(Asking(script, 300ms), Damaged());
    EXPECT_GE(events.Waits(), 3);
    EXPECT_EQ(events.Calls(), 0);
    pid_t number = 0;
    std::ifstream(folder.Native("number").constData()) >> number;
    ASSERT_GT(number, 0);
    EXPECT_EQ(kill(number, 0), -1);
}

TEST_F(JetDatabasesTest, GivesTheProgramNothingButTheFileAndTheQuestion)
{
    // What is open in a program that was started, and what its environment holds.
    Asking(Script("ls /proc/$$/fd > " + folder.Native("open") + "; tr '\\0' '\\n' < /proc/$$/environ > "
                  + folder.Native("environment")));
    std::ifstream open(folder.Native("open").constData());
    std::string number;
    QStringList numbers;
    while (open >> number)
        numbers += QString::fromStdString(number);
    // A shell keeps its script open under a number from 10 on.
    numbers.removeIf([](const QString &each) { return each.toInt() >= 10; });
    EXPECT_EQ(numbers, QStringList({u"0"_s, u"1"_s, u"2"_s, u"3"_s}));
    EXPECT_EQ(std::ifstream(folder.Native("environment").constData()).peek(),
              std::ifstream::traits_type::eof());
}

TEST_F(JetDatabasesTest, LeavesNoProcessBehind)
{
    for (int round = 0; round < 5; ++round)
        FailureText(databases, u"none.mdb"_s);
    EXPECT_EQ(Asking(Script("exec sleep 100"), 50ms), Damaged());
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1);
}

TEST_F(JetDatabasesTest, TakesAReaderThatIsGivenUp)
{
    const std::string opened = jet::Packer(jet::FrameKind::Opened).Frame();
    const std::string value = jet::Packer(jet::FrameKind::LastValue).Number8(8).Text(u"again").Frame();
    PutFile("a.mdb", "anything");
    JetDatabases asked(events, Script(Octal(hello + opened) + "; while :; do " + Octal(value) + "; done"),
                       20s);
    const auto reader = asked.Read(At(u"a.mdb"_s), u"T"_s, {u"F"_s});
    for (int row = 0; row < 3; ++row)
        EXPECT_EQ(reader->Next(), DatabaseValue(u"again"_s));
}

} // namespace
