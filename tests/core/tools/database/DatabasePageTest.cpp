// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "core/tools/database/DatabaseStage.h"

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

class DatabasePageTest : public DatabaseStage { };

TEST_F(DatabasePageTest, OpensTheProgramsOwnFileAtStart)
{
    Start();
    EXPECT_EQ(Page().txtDatabaseFile.Text(), u"C:\\Tressel\\data.mdb"_s);
    EXPECT_EQ(Page().Tables.Items(), QStringList({u"Products"_s}));
    EXPECT_EQ(Page().Fields.Items(), QStringList({u"Name"_s}));
    EXPECT_EQ(Page().Tables.ListIndex(), 0);
    EXPECT_EQ(Page().Fields.ListIndex(), 0);
    EXPECT_EQ(Page().lblstrSQL.Caption(), u"1 Table(s)"_s);
    EXPECT_EQ(Page().lblTable.Caption(), u"1 Fields"_s);
    EXPECT_EQ(Page().txtstrSQL.Text(), u"SELECT * FROM Products"_s);
}

TEST_F(DatabasePageTest, AMissingFileShowsItsBoxesAtEachStart)
{
    machine.databases.Remove(u"C:\\Tressel\\data.mdb"_s);
    machine.dialogs.ExpectBox(
        MessageBox{u"Failed to Open C:\\Tressel\\data.mdb\n\nThe file could not be found."_s, u"Tressel"_s});
    machine.dialogs.ExpectBox(MessageBox{u"No User tables in database"_s, u"No Tables found!"_s});
    Start();
    EXPECT_EQ(Page().lblstrSQL.Caption(), u"No Tables"_s);
    EXPECT_EQ(Page().Tables.ListCount(), 0);
}

TEST_F(DatabasePageTest, OpensNothingAtStartWithoutAPath)
{
    application.settings.Write(keys::DatabaseFile, QString());
    Start();
    EXPECT_EQ(machine.journal.Count(u"OpenSchema"_s), 0);
    EXPECT_EQ(Page().lblstrSQL.Caption(), u"Tables"_s);
}

TEST_F(DatabasePageTest, SelectsTheTableAndTheFieldOfTheLastSession)
{
    application.settings.Write(keys::DatabaseFile, shop);
    application.settings.Write(keys::Table, u"1"_s);
    Start();
    EXPECT_EQ(Page().Tables.Text(), u"Towns"_s);
    EXPECT_EQ(Page().Fields.Text(), u"Town"_s);
    Page().Tables.SetListIndex(0);
    Page().Fields.SetListIndex(2);
    EXPECT_THROW(Form().btnGBToolbarExit.UserClicks(), ProcessEnded);
    EXPECT_EQ(application.settings.ReadText(keys::DatabaseFile), shop);
    EXPECT_EQ(application.settings.ReadText(keys::Table), u"0"_s);
    EXPECT_EQ(application.settings.ReadText(keys::SQLString), u"2"_s);
    EXPECT_EQ(Page().Tables.ListCount(), 0);
    EXPECT_EQ(Page().Fields.ListCount(), 0);
}

TEST_F(DatabasePageTest, AStoredPlaceThatNoListHasSelectsNothing)
{
    application.settings.Write(keys::DatabaseFile, shop);
    application.settings.Write(keys::Table, u"9"_s);
    Start();
    EXPECT_EQ(Page().Tables.ListIndex(), -1);
    EXPECT_EQ(Page().Fields.ListCount(), 0);
    // Opening a file fails at the same place, and that ends the click.
    Open(shop);
    EXPECT_EQ(Page().Tables.ListCount(), 3);
    EXPECT_EQ(Page().Tables.ListIndex(), -1);
    EXPECT_EQ(Page().RecentFiles, QString());
}

TEST_F(DatabasePageTest, AStoredTextThatIsNoPlaceGoesBackAsItCame)
{
    application.settings.Write(keys::SQLString, u"SELECT * FROM Orders"_s);
    Start();
    EXPECT_EQ(Page().txtstrSQL.Text(), u"SELECT * FROM Orders"_s);
    EXPECT_THROW(Form().btnGBToolbarExit.UserClicks(), ProcessEnded);
    EXPECT_EQ(application.settings.ReadText(keys::SQLString), u"SELECT * FROM Orders"_s);
}

TEST_F(DatabasePageTest, AsksForAFile)
{
    Start();
    Page().OpenDBPath = u"C:\\Data"_s;
    Open(shop);
    const FileDialogRequest &request = machine.dialogs.FileRequests().constLast();
    EXPECT_EQ(request.title, u"Open file"_s);
    EXPECT_EQ(request.folder, u"C:\\Data"_s);
    EXPECT_EQ(request.filter, u"All Files (*.*)|*.*|MDB Files (*.mdb)|*.mdb|"_s);
    EXPECT_EQ(request.filterIndex, 2);
    EXPECT_EQ(request.defaultExtension, u".mdb"_s);
    EXPECT_EQ(request.fileName, u"*.mdb"_s);
    EXPECT_TRUE(request.mayBeMissing);
    EXPECT_FALSE(request.several);
    EXPECT_EQ(Page().txtDatabaseFile.Text(), shop);
    EXPECT_EQ(Page().OpenDBPath, u"C:\\Data"_s);
    EXPECT_EQ(Schema().FolderPath, u"C:\\Data"_s);
    EXPECT_EQ(
        Schema().Connection,
        u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source=C:\\Data\\shop.mdb;Persist Security Info=False"_s);
}

TEST_F(DatabasePageTest, ListsTablesAndViewsButNoneOfTheDatabasesOwn)
{
    Start();
    Open(shop);
    EXPECT_EQ(Page().Tables.Items(), QStringList({u"Goods"_s, u"Towns"_s, u"A view"_s}));
    EXPECT_EQ(Page().lblstrSQL.Caption(), u"3 Table(s)"_s);
    EXPECT_EQ(Page().Tables.ListIndex(), 0);
    EXPECT_EQ(Page().Fields.Items(), QStringList({u"Name"_s, u"Price"_s, u"Notes"_s, u"Odd"_s}));
    EXPECT_EQ(Page().lblTable.Caption(), u"4 Fields"_s);
    EXPECT_EQ(Marks(), Page().Fields.Items());
}

TEST_F(DatabasePageTest, CancelLeavesEverythingAsItWas)
{
    Start();
    Open(shop);
    Page().Tables.UserSelects(1);
    machine.dialogs.ExpectOpenFile(std::nullopt);
    Page().btnGBOpenDatabase.UserClicks();
    EXPECT_EQ(Page().txtDatabaseFile.Text(), shop);
    EXPECT_EQ(Page().Tables.Text(), u"Towns"_s);
    EXPECT_EQ(Page().Fields.ListCount(), 1);
}

TEST_F(DatabasePageTest, AMissingDriveEndsTheClickWithoutADialog)
{
    Start();
    Page().OpenDBPath = u"Q:\\Data"_s;
    Page().btnGBOpenDatabase.UserClicks();
    EXPECT_EQ(machine.journal.Count(u"OpenFile"_s), 0);
}

TEST_F(DatabasePageTest, AFileThatCannotBeOpenedShowsWhy)
{
    Start();
    EXPECT_EQ(Page().lblTable.Caption(), u"1 Fields"_s);
    machine.databases.OrderFailure(u"OpenSchema"_s, 1,
                                   Failure(databaseFailures::Unusable, u"It is damaged."_s));
    machine.dialogs.ExpectOpenFile(shop);
    machine.dialogs.ExpectBox(
        MessageBox{u"Failed to Open C:\\Data\\shop.mdb\n\nIt is damaged."_s, u"Tressel"_s});
    machine.dialogs.ExpectBox(MessageBox{u"No User tables in database"_s, u"No Tables found!"_s});
    Page().btnGBOpenDatabase.UserClicks();
    EXPECT_EQ(Page().lblstrSQL.Caption(), u"No Tables"_s);
    EXPECT_EQ(Page().Tables.ListCount(), 0);
    // The count of the file before isn't that of this one.
    EXPECT_EQ(Page().lblTable.Caption(), u"Fields"_s);
    EXPECT_EQ(Page().Fields.ListCount(), 0);
    // It was asked for all the same.
    EXPECT_EQ(Page().RecentFiles, shop);
}

TEST_F(DatabasePageTest, AListThatBreaksOffShowsTheErrorBox)
{
    Start();
    machine.databases.OrderFailure(u"NextObject"_s, 2,
                                   Failure(databaseFailures::Unusable, u"It is damaged."_s));
    machine.dialogs.ExpectOpenFile(shop);
    machine.dialogs.ExpectBox(MessageBox{
        u"Error in Gettables(C:\\Data\\shop.mdb)\n\nError Number: 3045\nError Message: It is damaged."_s,
        u" Program Error!"_s});
    Page().btnGBOpenDatabase.UserClicks();
    EXPECT_EQ(Page().lblstrSQL.Caption(), u"No Tables"_s);
    EXPECT_EQ(Schema().TableCount, 0);
}

TEST_F(DatabasePageTest, AFileWithSystemTablesOnlyHasNoTables)
{
    const QString empty = u"C:\\Data\\empty.mdb"_s;
    machine.databases.PutTable(empty, {u"MSysObjects"_s, {}, {}, DatabaseObjectKind::SystemTable});
    Start();
    machine.dialogs.ExpectOpenFile(empty);
    machine.dialogs.ExpectBox(MessageBox{u"No User tables in database"_s, u"No Tables found!"_s});
    Page().btnGBOpenDatabase.UserClicks();
    EXPECT_EQ(Page().lblstrSQL.Caption(), u"No Tables"_s);
}

TEST_F(DatabasePageTest, TheOlderRoadFallsBackOnTheNewerOne)
{
    Start();
    Schema().ClearAll();
    QString connection;
    machine.dialogs.ExpectBox(MessageBox{u"Access 97 mode is enabled. (File menu)\n\nFailed to Open "
                                         "C:\\Data\\shop.mdb\n\nError was: The file has another "
                                         "format.\n\nWill try to open in Access 2000 mode."_s,
                                         u"Tressel"_s});
    EXPECT_EQ(Schema().GetTables(shop, connection, true, Page().Tables), 3);
    EXPECT_TRUE(connection.startsWith(u"Provider=Microsoft.Jet.OLEDB.4.0;"_s));
}

TEST_F(DatabasePageTest, TheOlderRoadOpensAnOldFile)
{
    machine.databases.MakeOldest(shop);
    Start();
    Schema().ClearAll();
    QString connection;
    EXPECT_EQ(Schema().GetTables(shop, connection, true, Page().Tables), 3);
    EXPECT_EQ(
        connection,
        u"Provider=Microsoft.Jet.OLEDB.3.51;Data Source=C:\\Data\\shop.mdb;Persist Security Info=False"_s);
}

TEST_F(DatabasePageTest, TheOlderRoadTellsOfBothFailures)
{
    Start();
    Schema().ClearAll();
    QString connection;
    machine.dialogs.ExpectBox(u"Access 97 mode is enabled. (File menu)\n\nFailed to Open "
                              u"C:\\none.mdb\n\nError was: The file could not be "
                              "found.\n\nWill try to open in Access 2000 mode."_s);
    machine.dialogs.ExpectBox(u"Failed to Open C:\\none.mdb\n\nThe file could not be found."_s);
    machine.dialogs.ExpectBox(u"No User tables in database"_s);
    EXPECT_EQ(Schema().GetTables(u"C:\\none.mdb"_s, connection, true, Page().Tables), 0);
}

TEST_F(DatabasePageTest, KnowsTheTypesAndSizesOfTheFields)
{
    Start();
    Open(shop);
    EXPECT_EQ(Schema().FieldName, QStringList({u"Name"_s, u"Price"_s, u"Notes"_s, u"Odd"_s}));
    EXPECT_EQ(Schema().FieldTypeName, QStringList({u"Text"_s, u"Currency"_s, u"Memo"_s, u"???"_s}));
    EXPECT_EQ(Schema().FieldSize, QList<std::int32_t>({50, 8, 256, 4}));
    EXPECT_EQ(Schema().FieldAdoType, QList<std::int16_t>({202, 6, 203, 999}));
    EXPECT_EQ(Schema().FieldClass, QList<std::int16_t>({0, 2, 0, 0}));
}

TEST_F(DatabasePageTest, AViewHasNoFieldsAndSaysWhy)
{
    Start();
    Open(shop);
    machine.dialogs.ExpectBox(MessageBox{
        u"No Fields GetField(A view)\n\nError Number: 3078\nError Message: 'A view' can't be read."_s,
        u" Program Error!"_s});
    Page().Tables.UserSelects(2);
    EXPECT_EQ(Page().lblTable.Caption(), u"No Fields"_s);
    EXPECT_EQ(Page().Fields.ListCount(), 0);
    EXPECT_EQ(Schema().FieldName.size(), 1);
}

TEST_F(DatabasePageTest, ListsWithEntriesAreWhite)
{
    Start();
    Open(shop);
    EXPECT_EQ(Page().Tables.BackColor(), 0xFFFFFFU);
    EXPECT_EQ(Page().Fields.BackColor(), 0xFFFFFFU);
    machine.dialogs.ExpectBox(
        u"No Fields GetField(A view)\n\nError Number: 3078\nError Message: 'A view' can't be "
        "read."_s);
    Page().Tables.UserSelects(2);
    EXPECT_EQ(Page().Fields.BackColor(), 0x8000000FU);
}

TEST_F(DatabasePageTest, KeepsTheCheckMarksOfEachTable)
{
    Start();
    Open(shop);
    Page().Fields.UserToggles(1);
    Page().Tables.UserSelects(1);
    EXPECT_EQ(Marks(), QStringList({u"Town"_s}));
    Page().Tables.UserSelects(0);
    EXPECT_EQ(Marks(), QStringList({u"Name"_s, u"Notes"_s, u"Odd"_s}));
    // Opening a file sets all of them again.
    Open(shop);
    EXPECT_EQ(Marks(), Page().Fields.Items());
}

TEST_F(DatabasePageTest, ACheckMarkOnTheSeventhTableEndsTheProgram)
{
    const QString many = u"C:\\Data\\many.mdb"_s;
    for (int number = 1; number <= 7; ++number)
        machine.databases.PutTexts(many, u"T%1"_s.arg(number), u"Field"_s, {});
    Start();
    Open(many);
    Page().Tables.UserSelects(5);
    EXPECT_EQ(Marks(), QStringList({u"Field"_s}));
    Page().Fields.UserToggles(0);
    Page().Tables.UserSelects(6);
    EXPECT_EQ(Page().Fields.ListCount(), 1);
    EXPECT_EQ(Page().lblTable.Caption(), u"1 Fields"_s);
    EXPECT_EQ(Marks(), QStringList());
    machine.dialogs.ExpectFatal(9, u"Subscript out of range"_s);
    EXPECT_THROW(Page().Fields.UserToggles(0), ProcessEnded);
}

TEST_F(DatabasePageTest, ColumnsBeyondTheGridStayWithoutAMark)
{
    QList<DatabaseField> fields;
    for (int number = 0; number < 258; ++number)
        fields += TextField(QString::number(number));
    machine.databases.PutTable(u"C:\\Data\\wide.mdb"_s, {u"Wide"_s, fields, {}});
    Start();
    Open(u"C:\\Data\\wide.mdb"_s);
    EXPECT_EQ(Page().lblTable.Caption(), u"258 Fields"_s);
    EXPECT_TRUE(Page().Fields.IsChecked(255));
    EXPECT_FALSE(Page().Fields.IsChecked(256));
    EXPECT_FALSE(Page().Fields.IsChecked(257));
}

TEST_F(DatabasePageTest, RemembersTheLastThreeFiles)
{
    Start();
    for (const QString &name : {u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"b"_s}) {
        const QString file = u"C:\\Data\\"_s + name + u".mdb"_s;
        machine.databases.PutDatabase(file);
        machine.databases.PutTexts(file, u"T"_s, u"F"_s, {});
        Open(file);
    }
    EXPECT_EQ(Page().RecentFiles, u"C:\\Data\\b.mdb,C:\\Data\\d.mdb,C:\\Data\\c.mdb"_s);
}

TEST_F(DatabasePageTest, APresetFileIsOpenedUnasked)
{
    machine.files.PutFile(shop, "a database");
    Start();
    Page().OpensPresetFile = true;
    Page().txtDatabaseFile.SetText(shop);
    Page().btnGBOpenDatabase.UserClicks();
    EXPECT_EQ(Page().Tables.Items(), QStringList({u"Goods"_s, u"Towns"_s, u"A view"_s}));
    EXPECT_EQ(Page().RecentFiles, shop);
    // One that has gone is no recent file any more.
    machine.files.RemoveFile(shop);
    machine.dialogs.ExpectBox(MessageBox{u"File C:\\Data\\shop.mdb not Found!"_s, u"Tressel"_s});
    Page().btnGBOpenDatabase.UserClicks();
    EXPECT_EQ(Page().RecentFiles, QString());
    EXPECT_EQ(Page().Tables.ListCount(), 3);
}

TEST_F(DatabasePageTest, ATableWithoutFieldsSaysSo)
{
    machine.databases.PutTable(shop, {u"Bare"_s, {}, {}});
    Start();
    Open(shop);
    machine.dialogs.ExpectBox(
        MessageBox{u"No Fields GetField(Bare)\n\nError Number: 0\nError Message: "_s, u" Program Error!"_s});
    Page().Tables.UserSelects(3);
    EXPECT_EQ(Page().lblTable.Caption(), u"No Fields"_s);
    EXPECT_EQ(Page().Fields.BackColor(), 0x8000000FU);
}

TEST_F(DatabasePageTest, ClosesWhatItOpened)
{
    Start();
    machine.journal.Clear();
    Open(shop);
    // The list of tables, and the fields of the first one.
    EXPECT_EQ(machine.journal.Count(u"OpenSchema"_s), 1);
    EXPECT_EQ(machine.journal.Count(u"ListFields"_s), 1);
    EXPECT_EQ(machine.journal.Count(u"CloseDatabase"_s), 2);
    Page().Fields.UserSelects(0);
    Load();
    EXPECT_EQ(machine.journal.Count(u"CloseDatabase"_s), 3);
}

TEST_F(DatabasePageTest, AFileThatCannotBeClosedIsTold)
{
    Start();
    const MessageBox told{u"Error in adoTidy()\n\nError Number: 57\nError Message: Device I/O error"_s,
                          u" Program Error!"_s};
    machine.databases.OrderFailure(u"Close"_s, 1, Failure(FailureNumber::DeviceIoError));
    machine.dialogs.ExpectOpenFile(shop);
    machine.dialogs.ExpectBox(told);
    Page().btnGBOpenDatabase.UserClicks();
    // All was read by then.
    EXPECT_EQ(Page().lblstrSQL.Caption(), u"3 Table(s)"_s);
    EXPECT_EQ(Page().Fields.ListCount(), 4);
    machine.databases.OrderFailure(u"Close"_s, 1, Failure(FailureNumber::DeviceIoError));
    machine.dialogs.ExpectBox(told);
    Page().Tables.UserSelects(1);
    EXPECT_EQ(Page().lblTable.Caption(), u"1 Fields"_s);
}

TEST_F(DatabasePageTest, AFileThatCouldNotBeOpenedIsNotClosed)
{
    Start();
    machine.journal.Clear();
    machine.databases.OrderFailure(u"OpenSchema"_s, 1, Failure(databaseFailures::Unusable, u"No."_s));
    machine.dialogs.ExpectOpenFile(shop);
    machine.dialogs.ExpectBox(u"Failed to Open C:\\Data\\shop.mdb\n\nNo."_s);
    machine.dialogs.ExpectBox(u"No User tables in database"_s);
    Page().btnGBOpenDatabase.UserClicks();
    EXPECT_EQ(machine.journal.Count(u"CloseDatabase"_s), 0);
}

} // namespace
