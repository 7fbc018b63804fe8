// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/database/DatabaseSchema.h"

#include "base/Numbers.h"
#include "base/Steps.h"
#include "base/Version.h"
#include "controls/CheckListBox.h"
#include "machine/Databases.h"
#include "machine/Dialogs.h"
#include "machine/Events.h"
#include "tools/database/DatabasePage.h"
#include "tools/database/FieldTypes.h"

#include <algorithm>
#include <utility>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

constexpr std::int32_t largestSize = 256;

QString ConnectionTo(const QString &file, bool access97)
{
    const QString provider = access97 ? u"Microsoft.Jet.OLEDB.3.51"_s : u"Microsoft.Jet.OLEDB.4.0"_s;
    return u"Provider="_s + provider + u";Data Source="_s + file + u";Persist Security Info=False"_s;
}

/// The database's own tables. One of a user whose name begins so is taken for one of them.
bool IsHidden(const QString &name)
{
    return name.startsWith(u"MSys"_s, Qt::CaseInsensitive);
}

} // namespace

DatabaseSchema::DatabaseSchema(DatabasePage &databasePage, const ToolContext &toolContext)
    : page(databasePage)
    , context(toolContext)
{
}

std::int16_t DatabaseSchema::GetTables(const QString &MdbFile, QString &ConnectionOut, bool Access97,
                                       CheckListBox &List)
{
    std::unique_ptr<ObjectReader> schema = OpenSchema(MdbFile, ConnectionOut, Access97);
    std::int16_t count = 0;
    std::optional<Failure> pending;
    try {
        while (const auto object = schema ? schema->Next() : std::nullopt) {
            if (IsHidden(object->name))
                continue;
            List.AddItem(object->name);
            count = ToInt16(count + 1.0);
        }
    } catch (const Failure &failure) {
        pending = failure;
    }
    if (pending) {
        MsgBoxErr(u"Error in Gettables("_s + MdbFile + u')', *pending);
        count = 0;
    }
    TellTables(count, pending.has_value());
    SetBackColor(List);
    adoTidy(std::move(schema));
    return count;
}

/// Nothing if the file can't be opened on the last of the roads; the user knows by then.
std::unique_ptr<ObjectReader> DatabaseSchema::OpenSchema(const QString &MdbFile, QString &ConnectionOut,
                                                         bool Access97)
{
    ConnectionOut = ConnectionTo(MdbFile, Access97);
    databaseFile = MdbFile;
    try {
        return context.machine.databases.OpenSchema(MdbFile,
                                                    Access97 ? DatabaseRoad::Older : DatabaseRoad::Newer);
    } catch (const Failure &failure) {
        if (!Access97) {
            context.machine.dialogs.Show(
                {u"Failed to Open "_s + MdbFile + u"\n\n"_s + failure.description, ApplicationTitle});
            return nullptr;
        }
        context.machine.dialogs.Show({u"Access 97 mode is enabled. (File menu)\n\nFailed to Open "_s + MdbFile
                                          + u"\n\nError was: "_s + failure.description
                                          + u"\n\nWill try to open in Access 2000 mode."_s,
                                      ApplicationTitle});
    }
    return OpenSchema(MdbFile, ConnectionOut, false);
}

void DatabaseSchema::TellTables(std::int16_t count, bool failed)
{
    if (count > 0) {
        page.lblstrSQL.SetCaption(QString::number(count) + u" Table(s)"_s);
        context.machine.events.LetEventsRun();
        return;
    }
    if (!failed)
        context.machine.dialogs.Show({u"No User tables in database"_s, u"No Tables found!"_s});
    page.lblstrSQL.SetCaption(u"No Tables"_s);
}

void DatabaseSchema::GetFields(const QString &TableName)
{
    if (Connection.isEmpty() || TableCount == 0)
        return;
    std::unique_ptr<FieldListReader> reader;
    std::optional<Failure> pending;
    MakeArrays(1);
    try {
        reader = context.machine.databases.OpenFields(databaseFile, TableName, DatabaseRoad::Newer);
        ReadFields(*reader);
        AddFieldItems();
    } catch (const Failure &failure) {
        pending = failure;
    }
    TellFields(TableName, pending);
    adoTidy(std::move(reader));
}

void DatabaseSchema::ReadFields(FieldListReader &reader)
{
    QList<DatabaseField> fields;
    while (const auto field = reader.Next())
        fields += *field;
    MakeArrays(fields.size());
    for (qsizetype index = 0; index < fields.size(); ++index) {
        FieldName[index] = fields.at(index).name;
        FieldAdoType[index] = fields.at(index).type;
        FieldSize[index] = std::min(fields.at(index).size, largestSize);
        EnumerateDataType(index);
    }
}

void DatabaseSchema::TellFields(const QString &TableName, const std::optional<Failure> &pending)
{
    if (pending || FieldName.isEmpty()) {
        MsgBoxErr(u"No Fields GetField("_s + TableName + u')',
                  pending.value_or(Failure(FailureNumber{0}, {})));
        page.lblTable.SetCaption(u"No Fields"_s);
        ClearListBoxes(1);
        return;
    }
    page.lblTable.SetCaption(QString::number(FieldName.size()) + u" Fields"_s);
    context.machine.events.LetEventsRun();
    SetBackColor(page.Fields);
}

void DatabaseSchema::MakeArrays(qsizetype length)
{
    FieldName = QStringList(length);
    FieldTypeName = QStringList(length);
    FieldSize = QList<std::int32_t>(length);
    FieldAdoType = QList<std::int16_t>(length);
    FieldClass = QList<std::int16_t>(length);
}

void DatabaseSchema::EnumerateDataType(qsizetype Index)
{
    const FieldType type = FieldTypeOf(FieldAdoType.at(Index));
    FieldTypeName[Index] = type.name;
    FieldClass[Index] = static_cast<std::int16_t>(type.kind);
    if (type.forcedSize != 0)
        FieldSize[Index] = type.forcedSize;
}

void DatabaseSchema::AddFieldItems()
{
    for (int index = 0; index < FieldName.size(); ++index) {
        page.Fields.AddItem(FormatFieldItem(index));
        // A field that the grid has no cell for stays without a mark.
        Steps steps;
        steps.Do([&] { page.Fields.SetChecked(index, Selections.At(page.Tables.ListIndex(), index)); });
    }
}

void DatabaseSchema::ShowFieldsOfTable()
{
    if (busy != 0)
        return;
    const QString table = GetTableName();
    if (table.isEmpty())
        return;
    ClearListBoxes(1);
    GetFields(table);
    SetBackColor(page.Fields);
}

QString DatabaseSchema::GetTableName() const
{
    return page.Tables.Text();
}

void DatabaseSchema::ClearListBoxes(int Which)
{
    busy = -1;
    if (Which == 0)
        page.Tables.Clear();
    page.Fields.Clear();
    busy = 0;
}

void DatabaseSchema::ClearAll()
{
    databaseFile.clear();
    FolderPath.clear();
    TableCount = 0;
    MakeArrays(0);
    ClearListBoxes(0);
    page.lblstrSQL.SetCaption(u"Tables"_s);
    page.lblTable.SetCaption(u"Fields"_s);
}

void DatabaseSchema::NoteCheckMark(int field)
{
    Selections.Set(page.Tables.ListIndex(), field, page.Fields.IsChecked(field));
}

/// Closes what is still open and lets it go. A failure of that is told and nothing more.
void DatabaseSchema::adoTidy(std::unique_ptr<DatabaseReader> Object)
{
    try {
        if (Object && Object->State() > 0)
            Object->Close();
    } catch (const Failure &failure) {
        MsgBoxErr(u"Error in adoTidy()"_s, failure);
    }
}

void DatabaseSchema::MsgBoxErr(const QString &Text, const Failure &pending)
{
    context.machine.dialogs.Show({Text + u"\n\nError Number: "_s + QString::number(pending.Number())
                                      + u"\nError Message: "_s + pending.description,
                                  u" Program Error!"_s});
}

void SetBackColor(CheckListBox &List)
{
    constexpr ColourNumber white = 0xFFFFFF;
    List.SetBackColor(List.ListCount() == 0 ? NumberOf(SystemColour::ButtonFace) : white);
}

} // namespace tressel
