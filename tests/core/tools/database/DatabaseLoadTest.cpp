// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "core/tools/database/DatabaseStage.h"

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

class DatabaseLoad : public DatabaseStage { };

TEST_F(DatabaseLoad, LoadsAFieldInPlaceOfTheList)
{
    machine.files.PutFile(u"C:\\Tressel\\click.wav"_s, "sound");
    Start();
    List({u"old"_s});
    Open(shop);
    Page().Fields.UserSelects(0);
    Load();
    EXPECT_EQ(Entries(), QStringList({u"Chair"_s, u"Table"_s}));
    EXPECT_EQ(Status(), u"Finished"_s);
    EXPECT_EQ(Area().TVList.Nodes().size(), 3);
    EXPECT_EQ(machine.journal.Count(u"Play"_s), 2);
}

TEST_F(DatabaseLoad, NumbersBecomeText)
{
    Start();
    Open(shop);
    Page().Fields.UserSelects(1);
    Load();
    EXPECT_EQ(Entries(), QStringList({u"12.5"_s, u"7.05"_s}));
}

TEST_F(DatabaseLoad, ANullEndsTheLoadWithoutAWord)
{
    QList<QList<DatabaseValue>> rows;
    for (int number = 1; number <= 7; ++number)
        rows.append({number == 5 ? DatabaseValue() : DatabaseValue(QString::number(number))});
    machine.databases.PutTable(u"C:\\Data\\null.mdb"_s, {u"T"_s, {TextField(u"F"_s)}, rows});
    Start();
    Open(u"C:\\Data\\null.mdb"_s);
    Page().Fields.UserSelects(0);
    Load();
    EXPECT_EQ(Entries(), QStringList({u"1"_s, u"2"_s, u"3"_s, u"4"_s}));
    EXPECT_EQ(Status(), u"Finished"_s);
}

TEST_F(DatabaseLoad, WhatCannotBecomeTextEndsTheLoadLikeANull)
{
    machine.databases.PutTable(
        u"C:\\Data\\ole.mdb"_s,
        {u"T"_s, {{u"F"_s, fieldTypes::Ole, 0}}, {{u"a"_s}, {BinaryValue()}, {u"b"_s}}});
    Start();
    Open(u"C:\\Data\\ole.mdb"_s);
    Page().Fields.UserSelects(0);
    Load();
    EXPECT_EQ(Entries(), QStringList({u"a"_s}));
}

TEST_F(DatabaseLoad, AnEmptyTableEmptiesTheList)
{
    machine.databases.PutTexts(u"C:\\Data\\none.mdb"_s, u"T"_s, u"F"_s, {});
    Start();
    Open(u"C:\\Data\\none.mdb"_s);
    for (const QString &flag : {u""_s, u"True"_s}) {
        List({u"old"_s});
        Page().loading.NoRecordsFlag = flag;
        Load();
        EXPECT_EQ(Entries(), QStringList());
        EXPECT_EQ(Status(), u"Finished"_s);
    }
    Page().loading.NoRecordsFlag = u"False"_s;
    machine.dialogs.ExpectBox(MessageBox{u"No Records found!"_s, u"Tressel"_s, BoxIcon::Exclamation});
    Load();
}

TEST_F(DatabaseLoad, MoreRowsThanCanBeCountedLeaveAnEmptyList)
{
    const QList<DatabaseValue> row{DatabaseValue(u"x"_s)};
    for (const int count : {32767, 32768}) {
        const QString file = u"C:\\Data\\%1.mdb"_s.arg(count);
        machine.databases.PutTable(file,
                                   {u"T"_s, {TextField(u"F"_s)}, QList<QList<DatabaseValue>>(count, row)});
    }
    Start();
    Open(u"C:\\Data\\32767.mdb"_s);
    Page().Fields.UserSelects(0);
    Load();
    EXPECT_EQ(Entries().size(), 32767);
    Open(u"C:\\Data\\32768.mdb"_s);
    Page().Fields.UserSelects(0);
    Load();
    EXPECT_EQ(Entries().size(), 0);
    EXPECT_EQ(Status(), u"Finished"_s);
}

TEST_F(DatabaseLoad, ATableThatCannotBeOpenedLeavesTheListAsItWas)
{
    Start();
    List({u"old"_s});
    Open(shop);
    Page().txtDatabaseFile.SetText(u"C:\\wrong.mdb"_s);
    Load();
    EXPECT_EQ(Entries(), QStringList({u"old"_s}));
    EXPECT_EQ(Status(), u"Finished"_s);
    // No table selected.
    Page().txtDatabaseFile.SetText(shop);
    Page().Tables.SetListIndex(-1);
    Load();
    EXPECT_EQ(Entries(), QStringList({u"old"_s}));
}

TEST_F(DatabaseLoad, WithoutAFieldTheListIsEmpty)
{
    Start();
    List({u"old"_s});
    Open(shop);
    Load();
    EXPECT_EQ(Entries(), QStringList());
}

TEST_F(DatabaseLoad, ADamagedRowLeavesAnEmptyList)
{
    Start();
    List({u"old"_s});
    Open(shop);
    Page().Fields.UserSelects(0);
    machine.databases.OrderFailure(u"NextValue"_s, 2, Failure(databaseFailures::Unusable));
    Load();
    EXPECT_EQ(Entries(), QStringList());
}

} // namespace
