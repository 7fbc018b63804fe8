// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// Files that the tests write themselves, read back by the program and by the tools of the library.

#include "support/JetWriter.h"

#include "machine/posix/DetachedStart.h"
#include "machine/posix/JetDatabases.h"
#include "support/AllObjects.h"
#include "support/Failures.h"
#include "support/MemoryEvents.h"
#include "support/SampleDatabase.h"
#include "support/TemporaryFolder.h"
#include "support/Text.h"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

const QByteArray guid = QByteArray::fromHex("33221100554477668899aabbccddeeff");

/// A table with a column of each type, a row of values and a row of nulls.
WrittenTable AllTypes()
{
    WrittenTable table{u"All types"_s,
                       {{u"Yes"_s, fieldTypes::YesNo},
                        {u"Byte"_s, fieldTypes::Byte},
                        {u"Integer"_s, fieldTypes::Integer},
                        {u"Long"_s, fieldTypes::Long},
                        {u"Money"_s, fieldTypes::Money},
                        {u"Single"_s, fieldTypes::Single},
                        {u"Double"_s, fieldTypes::Double},
                        {u"Date"_s, fieldTypes::Date},
                        {u"Binary"_s, fieldTypes::Binary, 10},
                        {u"Text"_s, fieldTypes::Text, 100},
                        {u"Ole"_s, fieldTypes::Ole},
                        {u"Memo"_s, fieldTypes::Memo},
                        {u"Guid"_s, fieldTypes::Guid},
                        {u"Decimal"_s, fieldTypes::Numeric, 0, 3}}};
    table.rows.append(
        {{true, std::int64_t{255}, std::int64_t{-32768}, std::int64_t{-2147483648}, MoneyValue{-12345}, 1.5F,
          -2.25, DateValue{-1.25}, BinaryValue(), u"text \U0001F4C1 end"_s, BinaryValue(), u"memo"_s,
          GuidValue{guid}, DecimalValue{true, 3, "12345678901234567"}}});
    QList<DatabaseValue> nulls(table.columns.size());
    nulls[0] = false;
    table.rows.append({nulls});
    return table;
}

class JetWriterTest : public testing::Test {
protected:
    QString PutFile(const QByteArray &bytes)
    {
        std::ofstream(folder.Native("a.mdb").constData(), std::ios::binary)
            .write(bytes.constData(), bytes.size());
        return folder.Path() + u"/a.mdb"_s;
    }
    QString PutTable(const WrittenTable &table)
    {
        JetWriter writer;
        writer.AddTable(table);
        return PutFile(writer.Bytes());
    }
    QStringList Texts(const QString &file, const QString &table, const QString &field)
    {
        QStringList texts;
        for (const DatabaseValue &value : AllValues(databases, file, table, {field})) {
            const auto *text = std::get_if<QString>(&value);
            texts += text ? *text : u"-"_s;
        }
        return texts;
    }
    /// What a tool of the library prints about the file.
    QByteArray Tool(const QByteArray &command)
    {
        QByteArray printed;
        FILE *pipe = popen((command + " 2>&1").constData(), "r");
        std::array<char, 4096> piece{};
        while (const std::size_t got = fread(piece.data(), 1, piece.size(), pipe))
            printed.append(piece.data(), static_cast<qsizetype>(got));
        pclose(pipe);
        return printed;
    }

    TemporaryFolder folder;
    Journal journal;
    MemoryEvents events{journal};
    JetDatabases databases{events};
};

TEST_F(JetWriterTest, ValuesOfAllTypesComeBack)
{
    const WrittenTable table = AllTypes();
    const QString file = PutTable(table);
    const QList<DatabaseField> fields = AllFields(databases, file, u"all types"_s);
    ASSERT_EQ(fields.size(), table.columns.size());
    for (qsizetype index = 0; index < fields.size(); ++index) {
        EXPECT_EQ(fields.at(index).name, table.columns.at(index).name);
        EXPECT_EQ(fields.at(index).type, table.columns.at(index).type);
        EXPECT_EQ(
            AllValues(databases, file, table.name, {fields.at(index).name}),
            QList<DatabaseValue>({table.rows.at(0).values.at(index), table.rows.at(1).values.at(index)}))
            << qPrintable(fields.at(index).name);
    }
    EXPECT_EQ(fields.at(9).size, 100);
    EXPECT_EQ(fields.at(3).size, 4);
}

TEST_F(JetWriterTest, ValuesOfSeveralFieldsComeRowByRow)
{
    const WrittenTable table = AllTypes();
    const QString file = PutTable(table);
    QStringList names;
    for (const WrittenColumn &column : table.columns)
        names += column.name;
    EXPECT_EQ(AllValues(databases, file, table.name, names),
              table.rows.at(0).values + table.rows.at(1).values);
    // In the order in which they are asked for, which needn't be the table's.
    EXPECT_EQ(AllValues(databases, file, table.name, {u"memo"_s, u"Long"_s, u"MEMO"_s}),
              QList<DatabaseValue>({u"memo"_s, std::int64_t{-2147483648}, u"memo"_s, std::monostate(),
                                    std::monostate(), std::monostate()}));
}

TEST_F(JetWriterTest, TheLastColumnHasItsValuesWhereverTheirOrderBegins)
{
    WrittenTable table{u"T"_s, {{u"Text"_s}, {u"Yes"_s, fieldTypes::YesNo}}};
    table.rows = {{{u"a"_s, true}}, {{u"b"_s, false}}};
    table.firstOrdinal = 1;
    EXPECT_EQ(AllValues(databases, PutTable(table), u"T"_s, {u"Yes"_s}), QList<DatabaseValue>({true, false}));
    std::ranges::reverse(table.columns);
    table.rows = {{{true, u"a"_s}}, {{true, u"b"_s}}};
    EXPECT_EQ(Texts(PutTable(table), u"T"_s, u"Text"_s), QStringList({u"a"_s, u"b"_s}));
}

TEST_F(JetWriterTest, RowsOfLongAndMovedValuesStayWhole)
{
    WrittenTable table{u"T"_s, {{u"A"_s, fieldTypes::Memo}, {u"B"_s}, {u"C"_s, fieldTypes::Memo}}};
    QList<DatabaseValue> written;
    for (int row = 0; row < 60; ++row) {
        const QList<DatabaseValue> values{QString(row * 500, u'a'), QString::number(row),
                                          QString(row * 301, u'c')};
        table.rows.append({values, row % 7 == 3 ? RowFate::Moved : RowFate::Plain});
        written += values;
    }
    EXPECT_EQ(AllValues(databases, PutTable(table), u"T"_s, {u"A"_s, u"B"_s, u"C"_s}), written);
}

TEST_F(JetWriterTest, AnEmptyTextIsNoNull)
{
    WrittenTable table{u"T"_s, {{u"F"_s}, {u"G"_s}}};
    table.rows = {{{u""_s, u"x"_s}}, {{std::monostate(), u"y"_s}}};
    EXPECT_EQ(AllValues(databases, PutTable(table), u"T"_s, {u"F"_s}),
              QList<DatabaseValue>({QString(u""_s), std::monostate()}));
}

TEST_F(JetWriterTest, DeletedRowsAreGoneAndMovedOnesInTheirPlace)
{
    WrittenTable table{u"T"_s, {{u"F"_s}}};
    table.rows = {{{u"1"_s}}, {{u"2"_s}, RowFate::Deleted}, {{u"3"_s}, RowFate::Moved},
                  {{u"4"_s}}, {{u"5"_s}, RowFate::Moved},   {{u"6"_s}}};
    EXPECT_EQ(Texts(PutTable(table), u"T"_s, u"F"_s), QStringList({u"1"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s}));
}

TEST_F(JetWriterTest, LongMemosComeWhole)
{
    WrittenTable table{u"T"_s, {{u"F"_s, fieldTypes::Memo}}};
    QStringList memos;
    for (const int length : {0, 1, 32, 33, 2039, 2041, 8192, 16384, 100000}) {
        memos += QString(length, u'\u00E9');
        table.rows.append({{memos.last()}});
    }
    EXPECT_EQ(Texts(PutTable(table), u"T"_s, u"F"_s), memos);
    table.isCompressed = true;
    EXPECT_EQ(Texts(PutTable(table), u"T"_s, u"F"_s), memos);
}

TEST_F(JetWriterTest, ATableMayHaveManyPages)
{
    WrittenTable table{u"T"_s, {{u"N"_s, fieldTypes::Long}, {u"F"_s}}};
    for (std::int64_t number = 0; number < 50000; ++number)
        table.rows.append({{number, u"A folder with the number %1"_s.arg(number)}});
    const QString file = PutTable(table);
    const QList<DatabaseValue> numbers = AllValues(databases, file, u"T"_s, {u"N"_s});
    ASSERT_EQ(numbers.size(), 50000);
    EXPECT_EQ(numbers.last(), DatabaseValue(std::int64_t{49999}));
    EXPECT_EQ(Texts(file, u"T"_s, u"F"_s).at(33333), u"A folder with the number 33333"_s);
}

TEST_F(JetWriterTest, ATableMayHaveManyLongNames)
{
    WrittenTable table{u"T"_s, {}};
    QList<DatabaseValue> row;
    for (int number = 0; number < 200; ++number) {
        table.columns.append({QString(60, u'n') + QString::number(number), fieldTypes::Long});
        row.append(std::int64_t{number});
    }
    table.rows.append({row});
    const QString file = PutTable(table);
    EXPECT_EQ(AllFields(databases, file, u"T"_s).size(), 200);
    EXPECT_EQ(AllValues(databases, file, u"T"_s, {QString(60, u'n') + u"199"_s}),
              QList<DatabaseValue>({std::int64_t{199}}));
    QStringList names;
    for (const WrittenColumn &column : table.columns)
        names += column.name;
    EXPECT_EQ(AllValues(databases, file, u"T"_s, names), row);
}

TEST_F(JetWriterTest, NamesKeepAllTheirLetters)
{
    const QString name = u"Bücher \u65E5\u672C \U0001F4C1"_s;
    const QString file = PutTable({name, {{name}}, {{{name}}}});
    EXPECT_EQ(AllObjects(databases, file).first(), (DatabaseObject{name, DatabaseObjectKind::Table}));
    EXPECT_EQ(AllFields(databases, file, name).first().name, name);
    EXPECT_EQ(Texts(file, name, name), QStringList({name}));
}

TEST_F(JetWriterTest, ObjectsHaveTheirKinds)
{
    JetWriter writer;
    writer.AddTable({u"b"_s, {{u"F"_s}}, {}});
    writer.AddTable({u"A"_s, {{u"F"_s}}, {}});
    writer.AddObject(u"Linked"_s, 6);
    writer.AddObject(u"Server"_s, 4);
    writer.AddObject(u"View"_s, 5);
    writer.AddObject(u"Union"_s, 5, 0x80);
    writer.AddObject(u"Delete all"_s, 5, 0x20);
    writer.AddObject(u"~sq_cForm"_s, 5, 3);
    writer.AddObject(u"Form"_s, -32768);
    const QString file = PutFile(writer.Bytes());
    using enum DatabaseObjectKind;
    EXPECT_EQ(AllObjects(databases, file),
              QList<DatabaseObject>({{u"A"_s, Table},
                                     {u"b"_s, Table},
                                     {u"Union"_s, View},
                                     {u"View"_s, View},
                                     {u"Linked"_s, LinkedTable},
                                     {u"Server"_s, LinkedTable},
                                     {u"MSysObjects"_s, SystemTable}}));
    const auto failureOf = [&](const QString &table) {
        return NumberThrownBy([&] { databases.Read(file, table, {u"F"_s}); });
    };
    EXPECT_EQ(failureOf(u"View"_s), databaseFailures::NotReadable);
    EXPECT_EQ(failureOf(u"Linked"_s), databaseFailures::NotReadable);
    EXPECT_EQ(failureOf(u"Nothing"_s), databaseFailures::NoSuchTable);
    EXPECT_EQ(failureOf(u""_s), databaseFailures::NoSuchTable);
    // An unknown field of a table without rows fails nobody.
    EXPECT_EQ(databases.Read(file, u"A"_s, {u"None"_s})->Next(), std::nullopt);
}

TEST_F(JetWriterTest, AnUnknownFieldFailsWithTheFirstRow)
{
    const auto reader = databases.Read(PutTable({u"T"_s, {{u"F"_s}}, {{{u"x"_s}}}}), u"T"_s, {u"None"_s});
    EXPECT_EQ(NumberThrownBy([&] { reader->Next(); }), databaseFailures::NoSuchField);
}

TEST_F(JetWriterTest, TheUnknownOneOfSeveralFieldsIsNamed)
{
    const QString file = PutTable({u"T"_s, {{u"F"_s}}, {{{u"x"_s}}}});
    const auto asking = [&](const QStringList &fields) -> QString {
        try {
            AllValues(databases, file, u"T"_s, fields);
        } catch (const Failure &failure) {
            return QString::number(failure.Number()) + u' ' + failure.description;
        }
        return {};
    };
    EXPECT_EQ(asking({u"f"_s, u"None"_s, u"F"_s, u"Nothing"_s}),
              u"3265 The table 'T' has no field 'None'."_s);
    EXPECT_EQ(asking({u"F"_s, QString(10000, u'n')}),
              u"3265 The table 'T' has no field '%1'."_s.arg(QString(10000, u'n')));
    EXPECT_EQ(asking(QStringList(5, QString(10000, u'n'))),
              u"3265 No table has fields with such long names."_s);
}

TEST_F(JetWriterTest, TheToolsOfTheLibraryReadThemToo)
{
    if (FindCommand("mdb-export").isEmpty())
        GTEST_SKIP() << "the package mdbtools isn't installed";
    WrittenTable table = AllTypes();
    table.columns.remove(10);
    table.columns.remove(8);
    for (WrittenRow &row : table.rows) {
        row.values.remove(10);
        row.values.remove(8);
    }
    table.rows.first().values[8] = u"text"_s;
    table.rows.first().values[7] = DateValue{38077.5};
    JetWriter writer;
    writer.AddTable(table);
    WrittenTable moved{u"Moved"_s, {{u"F"_s, fieldTypes::Memo}}};
    moved.rows = {{{QString(5000, u'x')}}, {{u"gone"_s}, RowFate::Deleted}, {{u"there"_s}, RowFate::Moved}};
    writer.AddTable(moved);
    const QByteArray file = PutFile(writer.Bytes()).toLocal8Bit();
    EXPECT_EQ(Tool("mdb-tables -1 " + file), "All types\nMoved\n");
    EXPECT_EQ(Tool("mdb-ver " + file), "JET4\n");
    EXPECT_EQ(Tool("mdb-export -D %Y-%m-%d -T '%Y-%m-%d %H:%M:%S' " + file + " 'All types'"),
              "Yes,Byte,Integer,Long,Money,Single,Double,Date,Text,Memo,Guid,Decimal\n"
              "1,255,-32768,-2147483648,-1.2345,1.5,-2.25,\"2004-03-31 12:00:00\",\"text\",\"memo\","
              "\"{00112233-4455-6677-8899AABBCCDDEEFF}\",-12345678901234.567\n"
              "0,,,,,,,,,,,\n");
    EXPECT_EQ(Tool("mdb-export -H " + file + " Moved"),
              QByteArray("\"" + QByteArray(5000, 'x') + "\"\n\"there\"\n"));
}

TEST_F(JetWriterTest, TheProgramsOwnDatabaseIsMadeByIt)
{
    const QString file = QString::fromLocal8Bit(TRESSEL_ASSETS "/data.mdb");
    std::ifstream stream(file.toLocal8Bit().constData(), std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(stream), {}};
    EXPECT_TRUE(SampleDatabase() == QByteArray::fromStdString(bytes)) << "run tressel-make-database anew";
    const QStringList months = Texts(file, u"Months"_s, u"Folder"_s);
    EXPECT_EQ(months.size(), 12);
    EXPECT_EQ(months.last(), u"12 December"_s);
    EXPECT_EQ(Texts(file, u"Lessons"_s, u"Folder"_s).first(), u"Lesson 01 First steps\\Exercises"_s);
    EXPECT_EQ(Texts(file, u"Products"_s, u"ProductName"_s).size(), 10);
}

} // namespace
