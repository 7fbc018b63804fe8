// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/Databases.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <cstdint>

namespace tressel {

/// A column of a table to write. Its type is one of fieldTypes.
struct WrittenColumn {
    QString name;
    std::int16_t type = fieldTypes::Text;
    int size = 50; ///< the most characters of a text, bytes of a binary value
    int scale = 0; ///< of a decimal number
};

/// Where a row comes to lie.
enum class RowFate {
    Plain,
    Deleted, ///< it was there once
    Moved, ///< it grew out of its page and lies on another one
};

/// A row of a table to write, with one value a column.
struct WrittenRow {
    QList<DatabaseValue> values;
    RowFate fate = RowFate::Plain;
};

struct WrittenTable {
    QString name;
    QList<WrittenColumn> columns;
    QList<WrittenRow> rows = {};
    bool isCompressed = false; ///< texts have one byte a letter where they can
    std::uint32_t flags = 0; ///< of the object in the file's list
    int firstOrdinal = 0; ///< of the first column where their order is told; some programs begin with 1
};

/// Puts a database file of the format Jet 4 together: what the tests and the program's own sample are made
/// with. It has no indexes and no relations, which nothing here reads.
class JetWriter {
public:
    JetWriter();

    void AddTable(const WrittenTable &table);
    /// An object of the file's list without pages of its own: 5 a query, 6 a table of another file.
    void AddObject(const QString &name, std::int16_t type, std::uint32_t flags = 0);

    /// The whole file. Nothing can be added any more.
    QByteArray Bytes();

private:
    struct Layout {
        WrittenTable table;
        std::uint32_t page;
    };

    std::uint32_t NewPage();
    QByteArray &Page(std::uint32_t number) { return pages[static_cast<qsizetype>(number)]; }
    void WriteTable(const Layout &layout);
    void WriteDefinition(const Layout &layout, quint32 usedMap, quint32 freeMap);
    quint32 AddRow(std::uint32_t owner, std::uint32_t &page, const QByteArray &row, std::uint16_t flags,
                   QList<std::uint32_t> &owned);
    quint32 WriteMap(const QList<std::uint32_t> &owned);
    QByteArray RowBytes(const WrittenTable &table, const QList<DatabaseValue> &values);
    QByteArray LongValue(const QByteArray &bytes);

    QList<QByteArray> pages;
    WrittenTable catalog;
    std::uint32_t mapPage = 0; ///< takes the next usage map
    std::uint32_t longPage = 0; ///< takes the next value that is too long for its row
};

} // namespace tressel
