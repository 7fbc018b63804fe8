// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/database/FieldLoading.h"

#include "base/Numbers.h"
#include "base/Version.h"
#include "controls/ListBox.h"
#include "machine/Databases.h"
#include "machine/Dialogs.h"
#include "tools/RunWatch.h"
#include "tools/database/DatabasePage.h"
#include "tools/database/ValueText.h"

#include <limits>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

/// Names for folders: what is longer than this altogether is none.
constexpr qsizetype mostLetters = 32 << 20;

/// The rows that can be counted in 16 bits, and one more if there are more.
QList<DatabaseValue> ReadRows(FieldReader &reader)
{
    QList<DatabaseValue> rows;
    qsizetype letters = 0;
    while (rows.size() <= std::numeric_limits<std::int16_t>::max()) {
        auto value = reader.Next();
        if (!value)
            break;
        if (const auto *text = std::get_if<QString>(&*value))
            letters += text->size();
        if (letters > mostLetters)
            throw Failure(FailureNumber::OutOfMemory);
        rows += *std::move(value);
    }
    return rows;
}

} // namespace

FieldLoading::FieldLoading(DatabasePage &databasePage, const ToolContext &toolContext)
    : page(databasePage)
    , context(toolContext)
{
}

void FieldLoading::LoadFieldToList(QString Table, ListBox &List, const QString &Field)
{
    // Kept: the argument gives way to the list's own selection.
    Table = page.Tables.Text();
    const QString path = page.txtDatabaseFile.Text();
    try {
        const auto reader = context.machine.databases.Read(path, Table, {Field});
        // Before any row is read, so that the old list is gone even if there is none.
        List.Clear();
        const QList<DatabaseValue> rows = ReadRows(*reader);
        if (rows.isEmpty()) {
            if (NoRecordsFlag == u"False"_s)
                context.machine.dialogs.Show(
                    {u"No Records found!"_s, ApplicationTitle, BoxIcon::Exclamation});
            reader->Close();
            return;
        }
        const std::int16_t count = ToInt16(static_cast<double>(rows.size()));
        context.watch.Started(count);
        const ValueWriter writer{QLocale()};
        for (const DatabaseValue &value : rows)
            List.AddItem(writer.Text(value));
        reader->Close();
    } catch (const Failure &failure) {
        context.watch.Failed(path, failure);
    }
}

} // namespace tressel
