// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/posix/NameOrder.h"

#include "support/Text.h"

#include <QRandomGenerator>

#include <algorithm>
#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

QStringList Sorted(const QStringList &names)
{
    QList<FolderEntry> entries;
    for (const QString &name : names)
        entries.append({name});
    SortByName(entries);
    QStringList sorted;
    for (const FolderEntry &entry : entries)
        sorted += entry.name;
    return sorted;
}

TEST(NameOrder, CaseCountsOnlyWhereNothingElseDoes)
{
    EXPECT_EQ(Sorted({u"b"_s, u"a"_s, u"B"_s, u"A"_s}), (QStringList{u"A"_s, u"a"_s, u"B"_s, u"b"_s}));
    EXPECT_EQ(Sorted({u"\u00E9"_s, u"z"_s, u"\u00C9"_s, u"e"_s}),
              (QStringList{u"e"_s, u"z"_s, u"\u00C9"_s, u"\u00E9"_s}));
}

TEST(NameOrder, WhatAllBeginWithMakesNoDifference)
{
    EXPECT_EQ(
        Sorted({u"Name 10"_s, u"name 1"_s, u"Name"_s, u"name 100"_s, u"NAME 12345a"_s, u"name 12345"_s}),
        (QStringList{u"Name"_s, u"name 1"_s, u"Name 10"_s, u"name 100"_s, u"name 12345"_s,
                     u"NAME 12345a"_s}));
    EXPECT_EQ(Sorted({u"one"_s}), QStringList{u"one"_s});
    EXPECT_EQ(Sorted({}), QStringList());
}

TEST(NameOrder, EntriesComeWithTheirNames)
{
    QList<FolderEntry> entries{{u"b"_s, EntryKind::Folder}, {u"a"_s, EntryKind::Link, false, 7}};
    SortByName(entries);
    EXPECT_EQ(entries.at(0).kind, EntryKind::Link);
    EXPECT_EQ(entries.at(0).length, 7);
    EXPECT_EQ(entries.at(1).kind, EntryKind::Folder);
}

TEST(NameOrder, IsThatOfTheFoldedTexts)
{
    QRandomGenerator dice(7);
    // With half of a character and a byte that is no text.
    const QString letters = u"aAbB1 \u00DF\U0001F600"_s + QChar(0xDCFF);
    QStringList names;
    for (int count = 0; count < 2000; ++count) {
        QString name;
        for (quint32 length = dice.bounded(7U); length > 0; --length)
            name += letters.at(dice.bounded(static_cast<int>(letters.size())));
        names += name;
    }
    QStringList expected = names;
    std::ranges::sort(expected, [](const QString &one, const QString &other) {
        const int order = one.toCaseFolded().compare(other.toCaseFolded());
        return order != 0 ? order < 0 : one < other;
    });
    EXPECT_EQ(Sorted(names), expected);
}

} // namespace
