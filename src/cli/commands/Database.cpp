// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "Arguments.h"
#include "Console.h"
#include "commands/CommandFiles.h"
#include "machine/Databases.h"
#include "tools/database/FieldTypes.h"
#include "tools/database/ValueText.h"

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

const QString tablesOption = u"tables"_s;
const QString fieldsOption = u"fields"_s;
const QString valuesOption = u"values"_s;
const QString plainOption = u"plain"_s;

/// What stands behind the name of an object whose rows can't be read.
QString WordFor(DatabaseObjectKind kind)
{
    if (kind == DatabaseObjectKind::View)
        return u"\tview"_s;
    return kind == DatabaseObjectKind::LinkedTable ? u"\tlinked"_s : QString();
}

void ListTables(Console &console, const QString &file)
{
    const auto reader = console.machine.databases.OpenSchema(file, DatabaseRoad::Newer);
    while (const auto object = reader->Next()) {
        if (object->kind != DatabaseObjectKind::SystemTable)
            console.Line(console.Shown(object->name) + WordFor(object->kind));
        console.BetweenSteps();
    }
}

void ListFields(Console &console, const QString &file, const QString &table)
{
    const auto reader = console.machine.databases.OpenFields(file, table, DatabaseRoad::Newer);
    while (const auto field = reader->Next()) {
        console.Line(console.Shown(field->name) + u'\t' + FieldTypeOf(field->type).name + u'\t'
                     + QString::number(field->size));
    }
}

void ListValues(Console &console, const QString &file, const QString &table, const QStringList &fields,
                bool isPlain)
{
    const ValueWriter writer = isPlain ? ValueWriter::Plain() : ValueWriter(QLocale());
    const auto reader = console.machine.databases.Read(file, table, fields);
    qint64 without = 0;
    qsizetype place = 0; // in the row
    // A value at a time: a row of long texts may be more than the memory holds.
    while (const auto value = reader->Next()) {
        QString text;
        try {
            if (!std::holds_alternative<std::monostate>(*value))
                text = writer.Text(*value);
        } catch (const Failure &) {
            ++without;
        }
        if (++place < fields.size()) {
            console.Cell(console.Shown(text));
        } else {
            console.Line(console.Shown(text));
            console.BetweenSteps();
            place = 0;
        }
    }
    if (without > 0) {
        const QString what = fields.size() == 1 ? u"lines"_s : u"places"_s;
        console.FailAs(u"%1 values can't be written as text; their %2 are empty"_s.arg(without).arg(what));
    }
}

/// The file, and behind --values the fields.
QStringList OperandsOf(const Arguments &arguments)
{
    const int questions = (arguments.Has(tablesOption) ? 1 : 0) + (arguments.Has(fieldsOption) ? 1 : 0)
        + (arguments.Has(valuesOption) ? 1 : 0);
    const QStringList &operands = arguments.Operands();
    const bool isRight = arguments.Has(valuesOption) ? operands.size() > 1 : operands.size() == 1;
    if (questions > 1 || !isRight || operands.contains(QString()))
        throw UsageError{
            u"database takes FILE and one of --tables, --fields TABLE or --values TABLE FIELD..."_s};
    if (arguments.Has(plainOption) && !arguments.Has(valuesOption))
        throw UsageError{u"--plain goes with --values"_s};
    return operands;
}

int Run(const Arguments &arguments, Console &console)
{
    const QStringList operands = OperandsOf(arguments);
    const QString file = console.Path(operands.first());
    try {
        if (const auto table = arguments.Value(fieldsOption))
            ListFields(console, file, *table);
        else if (const auto tableOfValues = arguments.Value(valuesOption))
            ListValues(console, file, *tableOfValues, operands.sliced(1), arguments.Has(plainOption));
        else
            ListTables(console, file);
    } catch (const Failure &failure) {
        console.Fail(operands.first(), failure);
    }
    return console.Status();
}

} // namespace

Command DatabaseCommand()
{
    return {
        u"database"_s,
        u"shows what a database file holds"_s,
        {u"FILE [--tables]"_s, u"FILE --fields TABLE"_s, u"FILE --values TABLE FIELD... [--plain]"_s},
        uR"(Reads a Jet database (.mdb, .accdb) and changes nothing. Without an option, or with --tables, it lists the
tables, one a line; behind the name of a query or of a table in another file, neither of which can be
read, stands what it is. --fields lists the fields of a table with their types and sizes. --values writes
the value of one field in each row, in the order of the table; a row without a value is an empty line. Of
several fields it writes the values of each row in one line, in the order in which the fields were named,
with a tab between. In a file or a pipe a tab or a line break inside a value stands there as it is: with
--null a NUL ends each value, those within a row too, and every row has as many as fields were named.)"_s,
        {{tablesOption, {}, u"lists the tables"_s},
         {fieldsOption, u"TABLE"_s, u"lists the fields of a table"_s},
         {valuesOption, u"TABLE"_s, u"writes all values of the fields that the next words name"_s},
         {plainOption, {}, u"a decimal point, and dates as 2004-03-31 14:05:00, whatever the language"_s},
         shared::Null()},
        {},
        u"tressel-cli database shop.mdb --values Products ProductName\n         lists the names of all products"_s,
        Run};
}

} // namespace tressel
