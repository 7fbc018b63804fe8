// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/Failure.h"
#include "tools/ToolContext.h"
#include "tools/database/FieldSelections.h"

#include <QList>
#include <QStringList>

#include <cstdint>
#include <memory>
#include <optional>

namespace tressel {

class CheckListBox;
class DatabasePage;
class DatabaseReader;
class FieldListReader;
class ObjectReader;

/// What is known of the open database, and the runs that find it out: its tables in one list of the page, the
/// fields of the selected table in the other.
class DatabaseSchema {
public:
    DatabaseSchema(DatabasePage &page, const ToolContext &context);

    /// Fills the list with the tables of a file and returns how many there are; tells of a file that can't be
    /// opened. With Access97 the older road is tried first. ConnectionOut tells how the file was opened last.
    std::int16_t GetTables(const QString &MdbFile, QString &ConnectionOut, bool Access97, CheckListBox &List);
    /// Reads the fields of a table into the arrays and fills the list of fields.
    void GetFields(const QString &TableName);
    /// What a click on a table does. Nothing while the lists are being emptied.
    void ShowFieldsOfTable();
    /// The selected table's name, or empty.
    QString GetTableName() const;

    /// 0 empties both lists, 1 only that of the fields.
    void ClearListBoxes(int Which);
    /// Forgets the open database.
    void ClearAll();
    /// Writes a field's check mark into the grid. Fails with 9 from the seventh table on.
    void NoteCheckMark(int field);

    QString FolderPath; ///< of the open file
    QString Connection; ///< of the last open; empty before the first
    std::int16_t TableCount = 0;
    FieldSelections Selections;

    // One element for each field of the selected table.
    QStringList FieldName;
    QStringList FieldTypeName;
    QList<std::int32_t> FieldSize;
    QList<std::int16_t> FieldAdoType;
    QList<std::int16_t> FieldClass;

private:
    std::unique_ptr<ObjectReader> OpenSchema(const QString &MdbFile, QString &ConnectionOut, bool Access97);
    void TellTables(std::int16_t count, bool failed);
    void MakeArrays(qsizetype length);
    void ReadFields(FieldListReader &reader);
    void TellFields(const QString &TableName, const std::optional<Failure> &pending);
    void EnumerateDataType(qsizetype Index);
    QString FormatFieldItem(qsizetype Index) const { return FieldName.at(Index); }
    void AddFieldItems();
    void adoTidy(std::unique_ptr<DatabaseReader> Object);
    void MsgBoxErr(const QString &Text, const Failure &pending);

    DatabasePage &page;
    ToolContext context;
    QString databaseFile; ///< that the connection speaks of
    std::int16_t busy = 0; ///< -1 while ClearListBoxes runs
};

/// A list without entries gets the colour of the window, one with entries white.
void SetBackColor(CheckListBox &List);

} // namespace tressel
