// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/TextFile.h"

#include "machine/posix/PosixFileSystem.h"
#include "support/Failures.h"
#include "support/MemoryMachine.h"
#include "support/Text.h"

#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

const QString listPath = u"C:\\W\\list.txt"_s;

QStringList LinesOf(const QByteArray &bytes, NameBytes nameBytes = NameBytes::Escaped)
{
    MemoryMachine machine;
    machine.files.PutFile(listPath, bytes);
    LineReader reader(machine.files, listPath, nameBytes);
    QStringList lines;
    while (const std::optional<QString> line = reader.Next())
        lines += *line;
    return lines;
}

QString Mark(char16_t unit)
{
    return QString(QChar(unit));
}

TEST(LineReader, TakesEveryKindOfLineEnd)
{
    EXPECT_EQ(LinesOf("a\r\nb\nc\rd"), (QStringList{u"a"_s, u"b"_s, u"c"_s, u"d"_s}));
    EXPECT_EQ(LinesOf("a\n\r\n\rb\r\n"), (QStringList{u"a"_s, u""_s, u""_s, u"b"_s}));
    EXPECT_EQ(LinesOf("a\r"), QStringList{u"a"_s});
}

TEST(LineReader, EmptyFileHasNoLineAndALoneEndIsOneEmptyLine)
{
    EXPECT_EQ(LinesOf(""), QStringList());
    EXPECT_EQ(LinesOf("\xEF\xBB\xBF"), QStringList());
    EXPECT_EQ(LinesOf("\r\n"), QStringList{u""_s});
}

TEST(LineReader, NulIsACharacterLikeAnyOther)
{
    EXPECT_EQ(LinesOf(QByteArray("a\0b\nc", 5)), (QStringList{QString(u"a\0b"_s), u"c"_s}));
}

TEST(LineReader, MissingFileIsNotFound)
{
    MemoryMachine machine;
    EXPECT_EQ(NumberThrownBy([&] { LineReader(machine.files, u"C:\\none.txt"_s); }),
              FailureNumber::FileNotFound);
    EXPECT_EQ(NumberThrownBy([&] { LineReader(machine.files, listPath); }), FailureNumber::PathNotFound);
}

TEST(LineReader, HasNoNextLineOnceClosed)
{
    MemoryMachine machine;
    machine.files.PutFile(listPath, "a\nb");
    LineReader reader(machine.files, listPath);
    EXPECT_EQ(reader.Next(), u"a"_s);
    reader.Close();
    EXPECT_EQ(reader.Next(), std::nullopt);
}

TEST(LineReader, ReadsThirtyThousandLines)
{
    QByteArray bytes;
    for (int number = 1; number <= 30'000; ++number)
        bytes += QByteArray::number(number) + "\r\n";
    const QStringList lines = LinesOf(bytes);
    ASSERT_EQ(lines.size(), 30'000);
    EXPECT_EQ(lines.last(), u"30000"_s);
}

TEST(DecodeText, DropsOneByteOrderMarkInFront)
{
    EXPECT_EQ(DecodeText("\xEF\xBB\xBF"
                         "a"),
              u"a"_s);
    EXPECT_EQ(DecodeText("\xEF\xBB\xBF\xEF\xBB\xBF"
                         "a"),
              u"\uFEFFa"_s);
    EXPECT_EQ(DecodeText("\xEF\xBB\xBF"
                         "a",
                         NameBytes::Raw),
              u"a"_s);
    EXPECT_EQ(DecodeText("a\xEF\xBB\xBF"), u"a\uFEFF"_s);
}

TEST(DecodeText, ReadsUtf8OfEveryLength)
{
    EXPECT_EQ(DecodeText("A\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80"), u"A\u00E9\u20AC\U0001F600"_s);
    EXPECT_EQ(DecodeText("\xF4\x8F\xBF\xBF"), u"\U0010FFFF"_s);
}

TEST(DecodeText, ReadsWhatIsNotUtf8AsWindows1252)
{
    EXPECT_EQ(DecodeText("\x80\x9F\xE9\xFF"), u"\u20AC\u0178\u00E9\u00FF"_s);
    EXPECT_EQ(DecodeText("\x82\x8A\x91\x99\x9E"), u"\u201A\u0160\u2018\u2122\u017E"_s);
    // Undefined in the code page: the control characters of the same number.
    EXPECT_EQ(DecodeText("\x81\x8D\x8F\x90\x9D"), u"\u0081\u008D\u008F\u0090\u009D"_s);
    // One bad byte changes how the whole file is read.
    EXPECT_EQ(DecodeText("\xC3\xA9\xFF"), u"\u00C3\u00A9\u00FF"_s);
}

TEST(DecodeText, TakesNoOverlongCutOrTooLargeUtf8)
{
    const QList<QByteArray> bad{
        "\xC0\x80",         "\xC1\xBF",         "\xE0\x80\x80", "\xE2\x82", "\xF0\x80\x80\x80",
        "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xED\xA0\x80", "\xC3\x28", "\x80"};
    for (const QByteArray &bytes : bad) {
        const QString text = DecodeText(bytes, NameBytes::Raw);
        EXPECT_EQ(text.at(0), QChar(0xDC80 + (static_cast<unsigned char>(bytes.at(0)) - 0x80)))
            << bytes.toHex().constData();
        EXPECT_EQ(EncodeText(text, NameBytes::Raw), bytes);
        EXPECT_EQ(DecodeText(bytes).size(), bytes.size()) << bytes.toHex().constData();
    }
}

TEST(DecodeText, EscapedNameBytesLeaveTheRestOfTheFileAlone)
{
    const QString text = u"\u00E9 "_s + Mark(0xDC80) + Mark(0xDCFF) + u" b"_s;
    const QByteArray bytes = "\xC3\xA9 \xED\xB2\x80\xED\xB3\xBF b";
    EXPECT_EQ(EncodeText(text), bytes);
    EXPECT_EQ(DecodeText(bytes), text);
}

TEST(DecodeText, RawNameBytesStandAsTheyAre)
{
    const QString text = u"\u00E9 "_s + Mark(0xDC80) + Mark(0xDCFF) + u" b"_s;
    const QByteArray bytes = "\xC3\xA9 \x80\xFF b";
    EXPECT_EQ(EncodeText(text, NameBytes::Raw), bytes);
    EXPECT_EQ(DecodeText(bytes, NameBytes::Raw), text);
}

TEST(DecodeText, AnyBytesComeBackFromRawText)
{
    QByteArray bytes;
    unsigned state = 1;
    for (int index = 0; index < 300'000; ++index) {
        state = state * 1664525U + 1013904223U;
        bytes += static_cast<char>(state >> 24);
    }
    bytes[0] = 'a'; // no byte order mark by chance
    EXPECT_EQ(EncodeText(DecodeText(bytes, NameBytes::Raw), NameBytes::Raw), bytes);
    // As a list it is Windows-1252: a character for each byte.
    EXPECT_EQ(DecodeText(bytes).size(), bytes.size());
}

TEST(EncodeText, ACharacterAmongAsciiIsTheSameInEachPlace)
{
    const QStringList characters{u"\u007F"_s, u"\u0080"_s, u"\u00E9"_s,    u"\u0100"_s,
                                 u"\u7F7F"_s, u"\uFFFF"_s, u"\U0001F600"_s};
    for (int length = 0; length <= 17; ++length) {
        for (int place = 0; place <= length; ++place) {
            for (const QString &character : characters) {
                const QString text = QString(length, u'z').insert(place, character);
                EXPECT_EQ(EncodeText(text), text.toUtf8());
                EXPECT_EQ(DecodeText(text.toUtf8()), text);
            }
            const QByteArray odd = QByteArray(length, 'z').insert(place, '\xFF');
            EXPECT_EQ(EncodeText(DecodeText(odd, NameBytes::Raw), NameBytes::Raw), odd);
        }
    }
}

TEST(EncodeText, HalfAPairBecomesTheReplacementCharacter)
{
    EXPECT_EQ(EncodeText(Mark(0xD800) + u'a'),
              "\xEF\xBF\xBD"
              "a");
    EXPECT_EQ(EncodeText(Mark(0xDC00)), "\xEF\xBF\xBD");
    EXPECT_EQ(EncodeText(Mark(0xDD00), NameBytes::Raw), "\xEF\xBF\xBD");
    EXPECT_EQ(EncodeText(u"\U0001F480"_s), "\xF0\x9F\x92\x80");
}

TEST(LineWriter, EndsEachLineWithCrLfAndWritesNoMark)
{
    MemoryMachine machine;
    machine.files.PutFile(listPath, "old and long");
    LineWriter writer(machine.files, listPath);
    writer.WriteLine(u"a"_s);
    writer.WriteLine(u"\u00E9"_s);
    writer.Close();
    EXPECT_EQ(machine.files.Bytes(listPath), "a\r\n\xC3\xA9\r\n");
}

TEST(LineWriter, AppendsBehindWhatIsThere)
{
    MemoryMachine machine;
    machine.files.PutFile(listPath, "a\r\n");
    {
        LineWriter writer(machine.files, listPath, OpenFor::Appending);
        writer.WriteLine(u"b"_s);
    }
    EXPECT_EQ(machine.files.Bytes(listPath), "a\r\nb\r\n");
}

TEST(LineWriter, CloseReportsAFullDiscOnceAndTheDestructorNever)
{
    MemoryMachine machine;
    machine.files.AddDrive(u'D', {}, 4);
    LineWriter writer(machine.files, u"D:\\list.txt"_s);
    writer.WriteLine(u"abcdef"_s);
    EXPECT_EQ(NumberThrownBy([&] { writer.Close(); }), FailureNumber::DiskFull);
    EXPECT_EQ(NumberThrownBy([&] { writer.Close(); }), std::nullopt);
    EXPECT_EQ(machine.files.Bytes(u"D:\\list.txt"_s), "abcd");
}

TEST(LineWriter, WritesThousandsOfLinesInFewPieces)
{
    MemoryMachine machine;
    machine.files.PutFolder(u"C:\\W"_s);
    LineWriter writer(machine.files, listPath);
    for (int number = 1; number <= 30'000; ++number)
        writer.WriteLine(QString::number(number));
    writer.Close();
    EXPECT_LT(machine.journal.Count(u"WriteBytes"_s), 10);
    EXPECT_EQ(LinesOf(machine.files.Bytes(listPath)).size(), 30'000);
}

TEST(TextFile, AMarkOfUtf16MeansUtf16)
{
    EXPECT_EQ(DecodeText(QByteArray("\xFF\xFE"
                                    "a\0\xE6\0\r\0\n\0",
                                    10)),
              u"a\u00E6\r\n"_s);
    EXPECT_EQ(DecodeText(QByteArray("\xFE\xFF"
                                    "\0a\0\xE6",
                                    6)),
              u"a\u00E6"_s);
    EXPECT_EQ(DecodeText("\xFF\xFE"), QString());
    MemoryMachine machine;
    machine.files.PutFile(u"C:\\list.txt"_s, QByteArray("\xFF\xFEx\0\n\0y\0", 8));
    LineReader reader(machine.files, u"C:\\list.txt"_s);
    EXPECT_EQ(reader.Next(), u"x"_s);
    EXPECT_EQ(reader.Next(), u"y"_s);
    EXPECT_EQ(reader.Next(), std::nullopt);
}

TEST(TextFile, WhatIsReadWholeHasALimit)
{
    MemoryMachine machine;
    constexpr qint64 oneMiB = 1 << 20;
    machine.files.PutFile(u"C:\\just"_s, QByteArray(oneMiB, 'x'));
    machine.files.PutFile(u"C:\\over"_s, QByteArray(oneMiB + 1, 'x'));
    EXPECT_EQ(ReadWhole(machine.files, u"C:\\just"_s, oneMiB, OpenFor::Reading).size(), oneMiB);
    try {
        LineReader(machine.files, u"C:\\over"_s, NameBytes::Escaped, oneMiB);
        ADD_FAILURE() << "it was read";
    } catch (const Failure &failure) {
        EXPECT_EQ(failure.number, FailureNumber::OutOfMemory);
        EXPECT_EQ(failure.description, u"The file is larger than 1 MiB"_s);
    }
}

TEST(TextFile, WhatHasNoEndEndsAtTheLimit)
{
    PosixFileSystem files;
    EXPECT_EQ(NumberThrownBy([&] { ReadWhole(files, u"/dev/zero"_s, 1 << 20, OpenFor::Streaming); }),
              FailureNumber::OutOfMemory);
    EXPECT_EQ(NumberThrownBy([&] { ReadWhole(files, u"/dev/zero"_s, 1 << 20, OpenFor::Reading); }),
              FailureNumber::PathFileAccessError);
}

} // namespace
