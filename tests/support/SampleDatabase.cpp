// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "support/SampleDatabase.h"

#include "support/JetWriter.h"

#include <QStringList>

#include <array>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

WrittenTable Lessons()
{
    WrittenTable table{u"Lessons"_s,
                       {{u"Number"_s, fieldTypes::Integer},
                        {u"Title"_s, fieldTypes::Text, 60},
                        {u"Folder"_s, fieldTypes::Text, 80}}};
    const QStringList titles{u"First steps"_s,
                             u"Light and shadow"_s,
                             u"Lines and shapes"_s,
                             u"Perspective"_s,
                             u"Colour"_s,
                             u"Portrait"_s,
                             u"Landscape"_s,
                             u"Still life"_s,
                             u"Movement"_s,
                             u"Water and sky"_s,
                             u"A series of your own"_s,
                             u"Exhibition"_s};
    std::int64_t number = 0;
    for (const QString &title : titles) {
        ++number;
        // A backslash stands between nested folders.
        const QString folder = u"Lesson %1 %2\\Exercises"_s.arg(number, 2, 10, QChar(u'0')).arg(title);
        table.rows.append({{number, title, folder}});
    }
    return table;
}

WrittenTable Months()
{
    WrittenTable table{u"Months"_s,
                       {{u"Number"_s, fieldTypes::Byte},
                        {u"Name"_s, fieldTypes::Text, 20},
                        {u"Folder"_s, fieldTypes::Text, 30}}};
    const QStringList names{u"January"_s,   u"February"_s, u"March"_s,    u"April"_s,
                            u"May"_s,       u"June"_s,     u"July"_s,     u"August"_s,
                            u"September"_s, u"October"_s,  u"November"_s, u"December"_s};
    std::int64_t number = 0;
    for (const QString &name : names) {
        ++number;
        table.rows.append({{number, name, u"%1 %2"_s.arg(number, 2, 10, QChar(u'0')).arg(name)}});
    }
    return table;
}

WrittenTable Products()
{
    WrittenTable table{u"Products"_s,
                       {{u"ProductID"_s, fieldTypes::Long},
                        {u"ProductName"_s, fieldTypes::Text, 40},
                        {u"Category"_s, fieldTypes::Text, 30},
                        {u"UnitPrice"_s, fieldTypes::Money},
                        {u"InStock"_s, fieldTypes::YesNo},
                        {u"Since"_s, fieldTypes::Date}}};
    struct Product {
        const char16_t *name;
        const char16_t *category;
        std::int64_t cents;
    };
    constexpr std::array<Product, 10> products{{{u"Oak table", u"Tables", 42000},
                                                {u"Pine table", u"Tables", 23550},
                                                {u"Kitchen chair", u"Chairs", 6900},
                                                {u"Rocking chair", u"Chairs", 18900},
                                                {u"Footstool", u"Chairs", 3450},
                                                {u"Bookcase", u"Shelves", 15900},
                                                {u"Wall shelf", u"Shelves", 2995},
                                                {u"Desk lamp", u"Lamps", 4950},
                                                {u"Floor lamp", u"Lamps", 8900},
                                                {u"Paper lantern", u"Lamps", 1275}}};
    constexpr double firstDay = 37987; // 1 January 2004
    for (std::size_t index = 0; index < products.size(); ++index) {
        const Product &product = products[index];
        table.rows.append({{static_cast<std::int64_t>(index + 1), QString::fromUtf16(product.name),
                            QString::fromUtf16(product.category), MoneyValue{product.cents * 100},
                            index % 3 != 2, DateValue{firstDay + 14 * static_cast<double>(index)}}});
    }
    return table;
}

} // namespace

QByteArray SampleDatabase()
{
    JetWriter writer;
    writer.AddTable(Lessons());
    writer.AddTable(Months());
    writer.AddTable(Products());
    return writer.Bytes();
}

QByteArray LongDatabase(std::int64_t rows)
{
    WrittenTable table{u"Rows"_s,
                       {{u"Number"_s, fieldTypes::Long},
                        {u"Name"_s, fieldTypes::Text, 60},
                        {u"Price"_s, fieldTypes::Money},
                        {u"Since"_s, fieldTypes::Date}}};
    for (std::int64_t number = 0; number < rows; ++number) {
        table.rows.append({{number, u"The name of a folder %1"_s.arg(number), MoneyValue{number * 100},
                            DateValue{36526 + static_cast<double>(number % 3000)}}});
    }
    JetWriter writer;
    writer.AddTable(table);
    return writer.Bytes();
}

} // namespace tressel
