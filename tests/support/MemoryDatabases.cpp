// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "support/MemoryDatabases.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <utility>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

bool AreSame(const QString &one, const QString &other)
{
    return one.compare(other, Qt::CaseInsensitive) == 0;
}

/// Gives out what it got, one by one.
template <typename Reader, typename Item> class MemoryReader : public Reader {
public:
    MemoryReader(MemoryDatabases &databases, QString step, QList<Item> items)
        : databases(databases)
        , step(std::move(step))
        , items(std::move(items))
    {
    }
    int State() const override { return isOpen ? 1 : 0; }
    void Close() override
    {
        isOpen = false;
        databases.NoteClose();
    }
    std::optional<Item> Next() override
    {
        if (items.isEmpty())
            return {};
        databases.Obey(step);
        return items.takeFirst();
    }

private:
    MemoryDatabases &databases;
    const QString step;
    QList<Item> items;
    bool isOpen = true;
};

/// Reads fields of a table that no longer changes.
class MemoryFieldReader : public FieldReader {
public:
    MemoryFieldReader(MemoryDatabases &databases, MemoryTable table, const QStringList &fields)
        : databases(databases)
        , table(std::move(table))
    {
        for (const QString &field : fields)
            columns += ColumnOf(field);
    }
    int State() const override { return isOpen ? 1 : 0; }
    void Close() override
    {
        isOpen = false;
        databases.NoteClose();
    }
    std::optional<DatabaseValue> Next() override
    {
        if (row >= table.rows.size())
            return {};
        databases.Obey(u"NextValue"_s);
        if (columns.contains(-1))
            throw Failure(databaseFailures::NoSuchField, u"No such field."_s);
        const DatabaseValue value = table.rows.at(row).at(columns.at(place));
        if (++place == columns.size()) {
            place = 0;
            ++row;
        }
        return value;
    }

private:
    /// -1 if there is no such field.
    qsizetype ColumnOf(const QString &field) const
    {
        const auto found = std::ranges::find_if(
            table.fields, [&](const DatabaseField &each) { return AreSame(each.name, field); });
        return found == table.fields.end() ? -1 : found - table.fields.begin();
    }

    MemoryDatabases &databases;
    MemoryTable table;
    QList<qsizetype> columns;
    qsizetype row = 0;
    qsizetype place = 0; ///< in the row
    bool isOpen = true;
};

} // namespace

MemoryDatabases::~MemoryDatabases()
{
    for (const FailureOrder &order : orders)
        ADD_FAILURE() << "an ordered failure never came: " << qPrintable(order.what);
}

void MemoryDatabases::PutDatabase(const QString &file)
{
    files.insert(file.toCaseFolded(), {});
}

void MemoryDatabases::PutTable(const QString &file, const MemoryTable &table)
{
    files[file.toCaseFolded()].tables.append(table);
}

void MemoryDatabases::PutTexts(const QString &file, const QString &table, const QString &field,
                               const QStringList &values)
{
    QList<QList<DatabaseValue>> rows;
    for (const QString &value : values)
        rows.append({value});
    PutTable(file, {table, {{field, fieldTypes::Text, 50}}, rows});
}

void MemoryDatabases::Remove(const QString &file)
{
    files.remove(file.toCaseFolded());
}

void MemoryDatabases::MakeOldest(const QString &file)
{
    files[file.toCaseFolded()].isOldest = true;
}

void MemoryDatabases::OrderFailure(const QString &what, int nth, const Failure &failure)
{
    orders.append({what, nth, failure});
}

std::unique_ptr<ObjectReader> MemoryDatabases::OpenSchema(const QString &file, DatabaseRoad road)
{
    Note(u"OpenSchema"_s, file, {});
    QList<DatabaseObject> objects;
    for (const MemoryTable &table : Find(file, road).tables)
        objects.append({table.name, table.kind});
    return std::make_unique<MemoryReader<ObjectReader, DatabaseObject>>(*this, u"NextObject"_s, objects);
}

std::unique_ptr<FieldListReader> MemoryDatabases::OpenFields(const QString &file, const QString &table,
                                                             DatabaseRoad road)
{
    Note(u"ListFields"_s, file, table);
    return std::make_unique<MemoryReader<FieldListReader, DatabaseField>>(*this, u"NextField"_s,
                                                                          Find(file, table, road).fields);
}

std::unique_ptr<FieldReader> MemoryDatabases::Read(const QString &file, const QString &table,
                                                   const QStringList &fields)
{
    Note(u"OpenTable"_s, file, table + u' ' + fields.join(u' '));
    return std::make_unique<MemoryFieldReader>(*this, Find(file, table, DatabaseRoad::Newer), fields);
}

void MemoryDatabases::Obey(const QString &what)
{
    for (qsizetype index = 0; index < orders.size(); ++index) {
        FailureOrder &order = orders[index];
        if (order.what != what || --order.remaining > 0)
            continue;
        throw orders.takeAt(index).failure;
    }
}

void MemoryDatabases::NoteClose()
{
    journal.Note(u"CloseDatabase"_s);
    Obey(u"Close"_s);
}

void MemoryDatabases::Note(const QString &what, const QString &file, const QString &detail)
{
    journal.Note(what, file, detail);
    Obey(what);
}

const MemoryDatabases::File &MemoryDatabases::Find(const QString &file, DatabaseRoad road) const
{
    const auto found = files.find(file.toCaseFolded());
    if (found == files.end())
        throw Failure(databaseFailures::NoSuchFile, u"The file could not be found."_s);
    if (road == DatabaseRoad::Older && !found->isOldest)
        throw Failure(databaseFailures::UnknownFormat, u"The file has another format."_s);
    return *found;
}

const MemoryTable &MemoryDatabases::Find(const QString &file, const QString &table, DatabaseRoad road) const
{
    const QList<MemoryTable> &tables = Find(file, road).tables;
    const auto found =
        std::ranges::find_if(tables, [&](const MemoryTable &each) { return AreSame(each.name, table); });
    if (found == tables.end())
        throw Failure(databaseFailures::NoSuchTable, u"There is no table '%1'."_s.arg(table));
    if (found->kind == DatabaseObjectKind::View || found->kind == DatabaseObjectKind::LinkedTable)
        throw Failure(databaseFailures::NotReadable, u"'%1' can't be read."_s.arg(table));
    return *found;
}

} // namespace tressel
