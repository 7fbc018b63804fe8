// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "Command.h"
#include "CommandStage.h"

#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

/// A database "shop.mdb" with a table of goods, one without rows, a view and a linked table.
class Database : public CommandStage {
protected:
    Database()
    {
        const QString file = u"C:\\Work\\shop.mdb"_s;
        memory.files.PutFile(file, "a database");
        memory.databases.PutTable(file,
                                  {u"Goods"_s,
                                   {{u"Name"_s, fieldTypes::Text, 40},
                                    {u"Price"_s, fieldTypes::Money, 8},
                                    {u"Since"_s, fieldTypes::Date, 8},
                                    {u"Picture"_s, fieldTypes::Ole, 0}},
                                   {{u"Chair"_s, MoneyValue{125000}, DateValue{38077}, BinaryValue()},
                                    {u"Table\\Oak"_s, std::monostate(), DateValue{38077.5}, BinaryValue()}}});
        memory.databases.PutTexts(file, u"Empty"_s, u"Name"_s, {});
        memory.databases.PutTable(file, {u"A view"_s, {}, {}, DatabaseObjectKind::View});
        memory.databases.PutTable(file, {u"Far"_s, {}, {}, DatabaseObjectKind::LinkedTable});
        memory.databases.PutTable(file, {u"MSysObjects"_s, {}, {}, DatabaseObjectKind::SystemTable});
    }
    Ended Of(const QStringList &words) { return Run(QStringList{u"database"_s, u"shop.mdb"_s} + words); }
    Ended Create(const QString &field, const QStringList &rest = {})
    {
        return Run(QStringList{u"create"_s, u"--to"_s, u"out"_s, u"--database"_s, u"shop.mdb"_s, u"--table"_s,
                               u"Goods"_s, u"--field"_s, field}
                   + rest);
    }
};

TEST_F(Database, ListsItsTables)
{
    const QByteArray tables = "Goods\nEmpty\nA view\tview\nFar\tlinked\n";
    EXPECT_EQ(Of({}).out, tables);
    EXPECT_EQ(Of({u"--tables"_s}).out, tables);
    EXPECT_EQ(Of({u"--tables"_s}).status, AllDone);
}

TEST_F(Database, ListsTheFieldsOfATable)
{
    EXPECT_EQ(Of({u"--fields"_s, u"goods"_s}).out,
              QByteArray("Name\tText\t40\nPrice\tCurrency\t8\nSince\tDateTime\t8\nPicture\t???\t0\n"));
}

TEST_F(Database, WritesAllValuesOfAField)
{
    EXPECT_EQ(Of({u"--values"_s, u"Goods"_s, u"Name"_s}).out, QByteArray("Chair\nTable\\Oak\n"));
    const Ended prices = Of({u"--values"_s, u"Goods"_s, u"Price"_s, u"--plain"_s});
    EXPECT_EQ(prices.out, QByteArray("12.5\n\n"));
    EXPECT_EQ(prices.status, AllDone);
    EXPECT_EQ(Of({u"--plain"_s, u"--values"_s, u"Goods"_s, u"Since"_s}).out,
              QByteArray("2004-03-31\n2004-03-31 12:00:00\n"));
    EXPECT_EQ(Of({u"--null"_s, u"--values"_s, u"Goods"_s, u"Name"_s}).out,
              QByteArray("Chair\0Table\\Oak\0", 16));
    EXPECT_EQ(Of({u"--values"_s, u"Empty"_s, u"Name"_s}).out, QByteArray());
}

TEST_F(Database, WritesTheValuesOfSeveralFieldsRowByRow)
{
    const Ended rows = Of({u"--values"_s, u"Goods"_s, u"Name"_s, u"Price"_s, u"Since"_s, u"--plain"_s});
    EXPECT_EQ(rows.out, QByteArray("Chair\t12.5\t2004-03-31\nTable\\Oak\t\t2004-03-31 12:00:00\n"));
    EXPECT_EQ(rows.status, AllDone);
    // In the order of the words, the same one twice if somebody wants it so.
    EXPECT_EQ(Of({u"--values"_s, u"Goods"_s, u"price"_s, u"Name"_s, u"Price"_s}).out,
              QByteArray("12.5\tChair\t12.5\n\tTable\\Oak\t\n"));
    EXPECT_EQ(Of({u"--null"_s, u"--values"_s, u"Goods"_s, u"Name"_s, u"Price"_s}).out,
              QByteArray("Chair\0"
                         "12.5\0"
                         "Table\\Oak\0"
                         "\0",
                         22));
    EXPECT_EQ(Of({u"--values"_s, u"Empty"_s, u"Name"_s, u"Name"_s}).out, QByteArray());
}

TEST_F(Database, TabsAndLineBreaksOfValuesAreRawInAPipeAndQuotedOnATerminal)
{
    memory.databases.PutTable(u"C:\\Work\\shop.mdb"_s,
                              {u"Odd"_s,
                               {{u"A"_s, fieldTypes::Text, 40}, {u"B"_s, fieldTypes::Text, 40}},
                               {{u"one\ttwo"_s, u"three\nfour"_s}}});
    const QStringList words{u"--values"_s, u"Odd"_s, u"A"_s, u"B"_s};
    EXPECT_EQ(Of(words).out, QByteArray("one\ttwo\tthree\nfour\n"));
    EXPECT_EQ(Of(words + QStringList{u"--null"_s}).out, QByteArray("one\ttwo\0three\nfour\0", 19));
    out.isTerminal = true;
    EXPECT_EQ(Of(words).out, QByteArray("'one'$'\\t''two'\t'three'$'\\n''four'\n"));
}

TEST_F(Database, TellsOfValuesOfSeveralFieldsThatAreNoText)
{
    const Ended ended = Of({u"--values"_s, u"Goods"_s, u"Picture"_s, u"Name"_s, u"Picture"_s});
    EXPECT_EQ(ended.out, QByteArray("\tChair\t\n\tTable\\Oak\t\n"));
    EXPECT_EQ(ended.err,
              QByteArray("tressel-cli: 4 values can't be written as text; their places are empty\n"));
    EXPECT_EQ(ended.status, SomethingFailed);
}

TEST_F(Database, TellsOfValuesThatAreNoText)
{
    const Ended ended = Of({u"--values"_s, u"Goods"_s, u"Picture"_s});
    EXPECT_EQ(ended.out, QByteArray("\n\n"));
    EXPECT_EQ(ended.err,
              QByteArray("tressel-cli: 2 values can't be written as text; their lines are empty\n"));
    EXPECT_EQ(ended.status, SomethingFailed);
}

TEST_F(Database, NamesWhatFailed)
{
    EXPECT_EQ(Of({u"--fields"_s, u"None"_s}).status, SomethingFailed);
    EXPECT_TRUE(Of({u"--fields"_s, u"None"_s}).err.contains("shop.mdb"));
    EXPECT_TRUE(Of({u"--fields"_s, u"None"_s}).err.contains("There is no table 'None'"));
    EXPECT_EQ(Of({u"--values"_s, u"Goods"_s, u"None"_s}).status, SomethingFailed);
    EXPECT_EQ(Of({u"--values"_s, u"A view"_s, u"Name"_s}).status, SomethingFailed);
    EXPECT_EQ(Of({u"--values"_s, u"Goods"_s, u"Name"_s, u"None"_s}).status, SomethingFailed);
    EXPECT_EQ(Of({u"--values"_s, u"Goods"_s, u"Name"_s, u"None"_s}).out, QByteArray());
    EXPECT_EQ(Run({u"database"_s, u"none.mdb"_s}).status, SomethingFailed);
}

TEST_F(Database, WantsOneQuestion)
{
    for (const QStringList &words : QList<QStringList>{{u"--tables"_s, u"--fields"_s, u"Goods"_s},
                                                       {u"--values"_s, u"Goods"_s},
                                                       {u"--values"_s, u"Goods"_s, u"Name"_s, u""_s},
                                                       {u"--fields"_s, u"Goods"_s, u"Name"_s},
                                                       {u"--plain"_s}})
        EXPECT_EQ(Of(words).status, WrongUsage);
    EXPECT_EQ(Run({u"database"_s}).status, WrongUsage);
}

TEST_F(Database, GivesTheNamesOfFolders)
{
    const Ended ended = Create(u"Name"_s);
    EXPECT_EQ(ended.status, AllDone);
    EXPECT_EQ(ended.out, QByteArray("made 3, already there 0, failed 0\n"));
    EXPECT_TRUE(memory.files.Status(u"C:\\Work\\out\\Table\\Oak"_s, Links::Keep));
    EXPECT_TRUE(memory.files.Status(u"C:\\Work\\out\\Chair"_s, Links::Keep));
}

TEST_F(Database, ARowWithoutATextLeavesAllUnmade)
{
    const Ended ended = Create(u"Price"_s);
    EXPECT_EQ(ended.status, SomethingFailed);
    EXPECT_TRUE(ended.err.contains("Row 2 has no text"));
    EXPECT_FALSE(memory.files.Status(u"C:\\Work\\out"_s, Links::Keep));
}

TEST_F(Database, IsOneSourceOfNamesAndNeedsItsParts)
{
    EXPECT_EQ(Create(u"Name"_s, {u"another"_s}).status, WrongUsage);
    EXPECT_EQ(Run({u"create"_s, u"--to"_s, u"out"_s, u"--database"_s, u"shop.mdb"_s}).status, WrongUsage);
    EXPECT_EQ(Run({u"create"_s, u"--to"_s, u"out"_s, u"--table"_s, u"T"_s, u"a"_s}).status, WrongUsage);
}

} // namespace
