// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// Files that other programs made, as far as this machine has them: the environment variable
// TRESSEL_SAMPLE_DATABASES names their folder.

#include "machine/posix/JetDatabases.h"
#include "support/AllObjects.h"
#include "support/Failures.h"
#include "support/MemoryEvents.h"
#include "support/Text.h"

#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

class JetSamples : public testing::Test {
protected:
    void SetUp() override
    {
        folder = qEnvironmentVariable("TRESSEL_SAMPLE_DATABASES");
        if (folder.isEmpty())
            GTEST_SKIP() << "TRESSEL_SAMPLE_DATABASES isn't set";
    }
    QString At(const QString &file) const { return folder + u'/' + file; }

    /// The names of the tables with their numbers of rows: "Products 77".
    QStringList Counts(const QString &file)
    {
        QStringList counts;
        for (const DatabaseObject &object : AllObjects(databases, At(file), DatabaseRoad::Newer)) {
            if (object.kind == DatabaseObjectKind::Table)
                counts += object.name + u' ' + QString::number(Rows(file, object.name));
        }
        return counts;
    }
    /// How many rows a table has. Its fields read one by one must have the same values as all at once.
    qsizetype Rows(const QString &file, const QString &table)
    {
        QStringList fields;
        for (const DatabaseField &field : AllFields(databases, At(file), table))
            fields += field.name;
        const QList<DatabaseValue> values = AllValues(databases, At(file), table, fields);
        for (qsizetype column = 0; column < fields.size(); ++column) {
            QList<DatabaseValue> ofField;
            for (qsizetype place = column; place < values.size(); place += fields.size())
                ofField += values.at(place);
            EXPECT_TRUE(ofField == Values(file, table, fields.at(column)))
                << qPrintable(table) << ' ' << qPrintable(fields.at(column));
        }
        return values.size() / fields.size();
    }
    QList<DatabaseValue> Values(const QString &file, const QString &table, const QString &field)
    {
        return AllValues(databases, At(file), table, {field});
    }
    QStringList Texts(const QString &file, const QString &table, const QString &field)
    {
        QStringList texts;
        for (const DatabaseValue &value : Values(file, table, field)) {
            const auto *text = std::get_if<QString>(&value);
            texts += text ? *text : u"-"_s;
        }
        return texts;
    }
    QString Refusal(const QString &file)
    {
        try {
            AllObjects(databases, At(file), DatabaseRoad::Newer);
        } catch (const Failure &failure) {
            return u"%1 %2"_s.arg(failure.Number()).arg(failure.description);
        }
        return {};
    }

    Journal journal;
    MemoryEvents events{journal};
    JetDatabases databases{events};
    QString folder;
};

TEST_F(JetSamples, HaveTheirTablesAndRows)
{
    EXPECT_EQ(Counts(u"nwind.mdb"_s),
              QStringList({u"Categories 8"_s, u"Customers 91"_s, u"Employees 9"_s, u"Order Details 2155"_s,
                           u"Orders 830"_s, u"Products 77"_s, u"Shippers 3"_s, u"Suppliers 29"_s,
                           u"Umsätze 830"_s}));
    EXPECT_EQ(Counts(u"nycflights13.mdb"_s),
              QStringList({u"Airlines 16"_s, u"Airports 1458"_s, u"Flights 3273"_s, u"Planes 1468"_s}));
    EXPECT_EQ(Counts(u"DateTestDatabase.mdb"_s), QStringList({u"DateTest 6"_s}));
    EXPECT_EQ(Counts(u"testV1997.mdb"_s),
              QStringList({u"Table1 2"_s, u"Table2 0"_s, u"Table3 0"_s, u"Table4 0"_s}));
    EXPECT_EQ(Counts(u"testV2007.accdb"_s),
              QStringList({u"Table1 2"_s, u"Table2 0"_s, u"Table3 0"_s, u"Table4 0"_s}));
    EXPECT_EQ(Counts(u"test2V2000.mdb"_s), QStringList({u"MSP_PROJECTS 1"_s}));
    EXPECT_EQ(Counts(u"delTestV2000.mdb"_s), QStringList({u"Table 2"_s}));
    EXPECT_EQ(Counts(u"delColTestV2000.mdb"_s), QStringList({u"Table1 2"_s}));
    EXPECT_EQ(Counts(u"overflowTestV2000.mdb"_s), QStringList({u"Table1 7"_s}));
    EXPECT_EQ(Counts(u"fixedNumericTestV2000.mdb"_s), QStringList({u"test 1"_s}));
    EXPECT_EQ(Counts(u"testUnicodeCompV2003.mdb"_s), QStringList({u"Table 8"_s}));
    EXPECT_EQ(Counts(u"empty2003.mdb"_s), QStringList());
}

TEST_F(JetSamples, HaveTheirViewsBehindTheTables)
{
    const QList<DatabaseObject> objects = AllObjects(databases, At(u"nwind.mdb"_s), DatabaseRoad::Newer);
    QStringList views;
    for (const DatabaseObject &object : objects) {
        if (object.kind == DatabaseObjectKind::View)
            views += object.name;
    }
    EXPECT_EQ(views.size(), 21);
    EXPECT_EQ(views.first(), u"Alphabetical List of Products"_s);
    EXPECT_EQ(objects.at(9), (DatabaseObject{views.first(), DatabaseObjectKind::View}));
    EXPECT_EQ(NumberThrownBy([&] { AllFields(databases, At(u"nwind.mdb"_s), views.first()); }),
              databaseFailures::NotReadable);
}

TEST_F(JetSamples, HaveTheirFields)
{
    const QList<DatabaseField> fields = AllFields(databases, At(u"nwind.mdb"_s), u"products"_s);
    ASSERT_EQ(fields.size(), 10);
    EXPECT_EQ(fields.at(0), (DatabaseField{u"ProductID"_s, fieldTypes::Long, 4}));
    EXPECT_EQ(fields.at(1), (DatabaseField{u"ProductName"_s, fieldTypes::Text, 40}));
    EXPECT_EQ(fields.at(5).type, fieldTypes::Money);
    EXPECT_EQ(fields.at(9), (DatabaseField{u"Discontinued"_s, fieldTypes::YesNo, 2}));

    QList<int> types;
    for (const DatabaseField &field :
         AllFields(databases, At(u"testV1997.mdb"_s), u"Table1"_s, DatabaseRoad::Older))
        types += field.type;
    EXPECT_EQ(types, QList<int>({202, 202, 17, 2, 3, 5, 7, 6, 11}));
    EXPECT_EQ(AllFields(databases, At(u"testV2007.accdb"_s), u"Table2"_s).size(), 89);
    EXPECT_EQ(AllFields(databases, At(u"test2V2000.mdb"_s), u"MSP_PROJECTS"_s).size(), 74);
}

TEST_F(JetSamples, HaveTheirValues)
{
    const QStringList customers = Texts(u"nwind.mdb"_s, u"Customers"_s, u"CompanyName"_s);
    EXPECT_EQ(customers.first(), u"Alfreds Futterkiste"_s);
    EXPECT_TRUE(customers.contains(u"Ana Trujillo Emparedados y helados"_s));
    EXPECT_EQ(Texts(u"testUnicodeCompV2003.mdb"_s, u"Table"_s, u"Unicode"_s).first(3),
              QStringList({u"only ascii chars"_s, u"ääkkösiä"_s, u"Мир"_s}));
    EXPECT_EQ(Texts(u"delTestV2000.mdb"_s, u"Table"_s, u"a"_s), QStringList({u"z"_s, u"v"_s}));
    EXPECT_EQ(Texts(u"delColTestV2000.mdb"_s, u"Table1"_s, u"data2"_s), QStringList({u"foo2"_s, u"bar2"_s}));
    EXPECT_EQ(Texts(u"overflowTestV2000.mdb"_s, u"Table1"_s, u"data1"_s).first(4),
              QStringList({u"row1col1"_s, u"row2col1"_s, u"-"_s, u"row4col1"_s}));
    EXPECT_EQ(Values(u"fixedNumericTestV2000.mdb"_s, u"test"_s, u"col6"_s),
              QList<DatabaseValue>({DecimalValue{true, 0, "1"}}));
    EXPECT_EQ(Texts(u"nwind.mdb"_s, u"Suppliers"_s, u"HomePage"_s).first(3),
              QStringList({u"-"_s, u"#CAJUN.HTM#"_s, u"-"_s}));
    EXPECT_EQ(Values(u"testV2007.accdb"_s, u"Table1"_s, u"I"_s), QList<DatabaseValue>({false, true}));
    EXPECT_EQ(Values(u"testV2007.accdb"_s, u"Table1"_s, u"H"_s),
              QList<DatabaseValue>({MoneyValue{0}, MoneyValue{35000}}));
    EXPECT_EQ(Values(u"DateTestDatabase.mdb"_s, u"DateTest"_s, u"DateTimeCol"_s).at(3),
              DatabaseValue(DateValue{-463126}));
    EXPECT_EQ(Values(u"nwind.mdb"_s, u"Categories"_s, u"Picture"_s).first(), DatabaseValue(BinaryValue()));
}

TEST_F(JetSamples, AreRefusedInWordsIfTheyAreProtected)
{
    EXPECT_EQ(Refusal(u"V2003_with-password.mdb"_s), u"3031 The file is protected by a password."_s);
    EXPECT_EQ(Refusal(u"db-enc.mdb"_s), u"3031 The file is encrypted."_s);
    EXPECT_EQ(Refusal(u"db2007-enc.accdb"_s), u"3031 The file is encrypted."_s);
}

TEST_F(JetSamples, OfTheOldestFormatAreTheOnlyOnesForTheOlderRoad)
{
    EXPECT_EQ(AllObjects(databases, At(u"testV1997.mdb"_s), DatabaseRoad::Older).size(), 10);
    EXPECT_EQ(NumberThrownBy([&] { AllObjects(databases, At(u"empty2003.mdb"_s), DatabaseRoad::Older); }),
              databaseFailures::UnknownFormat);
}

} // namespace
