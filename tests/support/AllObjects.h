// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/Databases.h"

namespace tressel {

/// What a file holds, all at once.
inline QList<DatabaseObject> AllObjects(Databases &databases, const QString &file,
                                        DatabaseRoad road = DatabaseRoad::Newer)
{
    QList<DatabaseObject> objects;
    const auto reader = databases.OpenSchema(file, road);
    while (const auto object = reader->Next())
        objects += *object;
    return objects;
}

/// All fields of a table.
inline QList<DatabaseField> AllFields(Databases &databases, const QString &file, const QString &table,
                                      DatabaseRoad road = DatabaseRoad::Newer)
{
    QList<DatabaseField> fields;
    const auto reader = databases.OpenFields(file, table, road);
    while (const auto field = reader->Next())
        fields += *field;
    return fields;
}

/// All values of some fields, row by row.
inline QList<DatabaseValue> AllValues(Databases &databases, const QString &file, const QString &table,
                                      const QStringList &fields)
{
    QList<DatabaseValue> values;
    const auto reader = databases.Read(file, table, fields);
    while (const auto value = reader->Next())
        values += *value;
    return values;
}

} // namespace tressel
