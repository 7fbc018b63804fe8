// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/Databases.h"
#include "support/Journal.h"

#include <QHash>

namespace tressel {

/// A table as a test describes it. Each row has one value a field, in the order of the fields.
struct MemoryTable {
    QString name;
    QList<DatabaseField> fields;
    QList<QList<DatabaseValue>> rows;
    DatabaseObjectKind kind = DatabaseObjectKind::Table;
};

/// Database files that a test filled by hand. Paths and names compare without regard to case.
class MemoryDatabases : public Databases {
public:
    explicit MemoryDatabases(Journal &journal)
        : journal(journal)
    {
    }
    ~MemoryDatabases() override;
    MemoryDatabases(const MemoryDatabases &) = delete;
    MemoryDatabases &operator=(const MemoryDatabases &) = delete;

    /// A file without tables; takes the place of one that is there.
    void PutDatabase(const QString &file);
    /// Adds a table to a file, which is made if it isn't there.
    void PutTable(const QString &file, const MemoryTable &table);
    /// A table of one text field, with a row for each of the values.
    void PutTexts(const QString &file, const QString &table, const QString &field, const QStringList &values);
    void Remove(const QString &file);
    /// Makes a file one of the oldest format, the only one that the older road can open.
    void MakeOldest(const QString &file);

    /// The `nth` call (1 the next one) of "OpenSchema", "NextObject", "ListFields", "NextField", "OpenTable",
    /// "NextValue" or "Close" fails. An order that never came due fails the test.
    void OrderFailure(const QString &what, int nth, const Failure &failure);

    // The journal has "OpenSchema", "ListFields" and "OpenTable" about the file, with table and fields as
    // detail, and "CloseDatabase".
    std::unique_ptr<ObjectReader> OpenSchema(const QString &file, DatabaseRoad road) override;
    std::unique_ptr<FieldListReader> OpenFields(const QString &file, const QString &table,
                                                DatabaseRoad road) override;
    std::unique_ptr<FieldReader> Read(const QString &file, const QString &table,
                                      const QStringList &fields) override;

    // For the readers.

    /// Fails if that was ordered.
    void Obey(const QString &what);
    void NoteClose();

private:
    struct File {
        QList<MemoryTable> tables;
        bool isOldest = false;
    };
    struct FailureOrder {
        QString what;
        int remaining;
        Failure failure;
    };

    void Note(const QString &what, const QString &file, const QString &detail);
    const File &Find(const QString &file, DatabaseRoad road) const;
    const MemoryTable &Find(const QString &file, const QString &table, DatabaseRoad road) const;

    Journal &journal;
    QHash<QString, File> files;
    QList<FailureOrder> orders;
};

} // namespace tressel
