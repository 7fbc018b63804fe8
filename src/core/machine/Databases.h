// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/Failure.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <memory>
#include <optional>
#include <variant>

namespace tressel {

/// The numbers of the failures that come from database files, beside those of all files.
namespace databaseFailures {
inline constexpr FailureNumber NoSuchTable{3011};
inline constexpr FailureNumber NoSuchFile{3024};
inline constexpr FailureNumber Protected{3031}; ///< by a password, or encrypted
inline constexpr FailureNumber NoSuchFolder{3044};
inline constexpr FailureNumber Unusable{3045}; ///< in use, damaged, or beyond what may be spent on it
inline constexpr FailureNumber Refused{3051}; ///< by the system's rights
inline constexpr FailureNumber NotReadable{3078}; ///< a view, or a table that lies in another file
inline constexpr FailureNumber NoSuchField{3265};
inline constexpr FailureNumber UnknownFormat{3343};
} // namespace databaseFailures

/// The two ways to open a file: the newer one takes every format, the older one the oldest format alone.
enum class DatabaseRoad { Newer, Older };

enum class DatabaseObjectKind {
    Table,
    View,
    LinkedTable, ///< its rows lie in another file
    SystemTable,
};

/// Something in a database that looks like a table.
struct DatabaseObject {
    QString name;
    DatabaseObjectKind kind = DatabaseObjectKind::Table;
    bool operator==(const DatabaseObject &) const = default;
};

/// The numeric types of fields, under the numbers that the provider of the data gives them.
namespace fieldTypes {
inline constexpr std::int16_t Unknown = 0;
inline constexpr std::int16_t Integer = 2;
inline constexpr std::int16_t Long = 3;
inline constexpr std::int16_t Single = 4;
inline constexpr std::int16_t Double = 5;
inline constexpr std::int16_t Money = 6;
inline constexpr std::int16_t Date = 7;
inline constexpr std::int16_t YesNo = 11;
inline constexpr std::int16_t Byte = 17;
inline constexpr std::int16_t BigInteger = 20;
inline constexpr std::int16_t Guid = 72;
inline constexpr std::int16_t Numeric = 131;
inline constexpr std::int16_t Text = 202;
inline constexpr std::int16_t Memo = 203;
inline constexpr std::int16_t Binary = 204;
inline constexpr std::int16_t Ole = 205;
} // namespace fieldTypes

struct DatabaseField {
    QString name;
    std::int16_t type = fieldTypes::Unknown;
    /// The most characters of a text, the most bytes of all else.
    std::int32_t size = 0;
    bool operator==(const DatabaseField &) const = default;
};

/// Ten thousandths.
struct MoneyValue {
    std::int64_t tenThousandths = 0;
    bool operator==(const MoneyValue &) const = default;
};

/// Days since 30 December 1899. The fraction is the time of the day, also before that day: -1.25 is six
/// o'clock on the 29th.
struct DateValue {
    double days = 0;
    bool operator==(const DateValue &) const = default;
};

/// The sixteen bytes as files have them: the first three groups with their lowest byte first.
struct GuidValue {
    QByteArray bytes;
    bool operator==(const GuidValue &) const = default;
};

/// A decimal number: the digits without a point, of which the last `scale` stand behind it.
struct DecimalValue {
    bool negative = false;
    int scale = 0;
    QByteArray digits;
    bool operator==(const DecimalValue &) const = default;
};

/// Bytes that are no text and no number. Nobody asks for them, so they aren't here.
struct BinaryValue {
    bool operator==(const BinaryValue &) const = default;
};

/// A null is the first of these.
using DatabaseValue = std::variant<std::monostate, bool, std::int64_t, MoneyValue, float, double, DateValue,
                                   QString, GuidValue, DecimalValue, BinaryValue>;

/// Something that is read from an open file. The file is let go with the end of the reader, if not before.
class DatabaseReader {
public:
    virtual ~DatabaseReader() = default;
    /// Above 0 as long as the file is open.
    virtual int State() const = 0;
    /// Lets the file go; nothing can be read afterwards. May fail like every other call.
    virtual void Close() = 0;
};

/// The objects of a file, one by one: its tables by name, then its views, then linked and system tables.
class ObjectReader : public DatabaseReader {
public:
    /// Nothing behind the last.
    virtual std::optional<DatabaseObject> Next() = 0;
};

/// The fields of a table, one by one in their order.
class FieldListReader : public DatabaseReader {
public:
    /// Nothing behind the last.
    virtual std::optional<DatabaseField> Next() = 0;
};

/// The values of one or several fields of a table, row by row.
class FieldReader : public DatabaseReader {
public:
    /// The next value; nothing behind the last row. The values of a row come one after the other in the order
    /// in which their fields were asked for, the rows in the order in which the table gives them.
    /// Fails with databaseFailures::NoSuchField at the first row if the table lacks one of the fields.
    virtual std::optional<DatabaseValue> Next() = 0;
};

/// Database files, read only. Each function opens the file anew. A damaged file is a failure and never more.
/// What a failure says doesn't name the file: whoever tells of it knows which one that is.
class Databases {
public:
    virtual ~Databases() = default;

    /// Opens a file to see what it holds.
    virtual std::unique_ptr<ObjectReader> OpenSchema(const QString &file, DatabaseRoad road) = 0;
    /// Opens a table to see its fields. Fails with databaseFailures::NotReadable for a view and for a linked
    /// table.
    virtual std::unique_ptr<FieldListReader> OpenFields(const QString &file, const QString &table,
                                                        DatabaseRoad road) = 0;
    /// Opens a table to read at least one field. Fails as OpenFields does, and with
    /// databaseFailures::NoSuchField where the names are longer than those of any table; an unknown field
    /// fails with the first row.
    virtual std::unique_ptr<FieldReader> Read(const QString &file, const QString &table,
                                              const QStringList &fields) = 0;
};

} // namespace tressel
