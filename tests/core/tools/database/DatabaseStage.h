// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "support/StartedProgram.h"
#include "support/Text.h"

#include <gtest/gtest.h>

namespace tressel {

inline const QString shop = QStringLiteral("C:\\Data\\shop.mdb");

inline DatabaseField TextField(const QString &name)
{
    return {name, fieldTypes::Text, 50};
}

/// The started program beside a database with a few tables.
class DatabaseStage : public testing::Test, protected StartedProgram {
protected:
    DatabaseStage()
    {
        machine.files.PutFolder(QStringLiteral("C:\\Data"));
        machine.databases.PutTable(
            shop,
            {QStringLiteral("Goods"),
             {TextField(QStringLiteral("Name")),
              {QStringLiteral("Price"), fieldTypes::Money, 8},
              {QStringLiteral("Notes"), fieldTypes::Memo, 536870911},
              {QStringLiteral("Odd"), 999, 4}},
             {{QStringLiteral("Chair"), MoneyValue{125000}, QStringLiteral("n"), std::int64_t{1}},
              {QStringLiteral("Table"), MoneyValue{70500}, QStringLiteral("n"), std::int64_t{2}}}});
        machine.databases.PutTexts(shop, QStringLiteral("Towns"), QStringLiteral("Town"),
                                   {QStringLiteral("Oslo"), QStringLiteral("Bergen")});
        machine.databases.PutTable(shop,
                                   {QStringLiteral("MSysObjects"),
                                    {TextField(QStringLiteral("Id"))},
                                    {},
                                    DatabaseObjectKind::SystemTable});
        machine.databases.PutTexts(shop, QStringLiteral("msysdata"), QStringLiteral("Mine"), {});
        machine.databases.PutTable(shop, {QStringLiteral("A view"), {}, {}, DatabaseObjectKind::View});
    }
    DatabasePage &Page() { return Form().database; }
    DatabaseSchema &Schema() { return Page().schema; }
    void Open(const QString &file)
    {
        machine.dialogs.ExpectOpenFile(file);
        Page().btnGBOpenDatabase.UserClicks();
    }
    void Load() { Page().btnGBLoadList.UserClicks(); }
    const QStringList &Entries() { return Area().LstItem.Items(); }
    QStringList Marks()
    {
        QStringList marked;
        for (int index = 0; index < Page().Fields.ListCount(); ++index) {
            if (Page().Fields.IsChecked(index))
                marked += Page().Fields.Item(index);
        }
        return marked;
    }
};

} // namespace tressel
