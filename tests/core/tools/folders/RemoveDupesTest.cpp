// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/folders/RemoveDupes.h"

#include "support/Failures.h"
#include "support/Text.h"

#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

TEST(RemoveDupes, FirstOfEachGroupStaysInOrder)
{
    const QList<QPair<QStringList, QStringList>> rows = {
        {{}, {}},
        {{u"a"_s}, {u"a"_s}},
        {{u"a"_s, u"A"_s, u"b"_s, u"a"_s}, {u"a"_s, u"b"_s}},
        {{u"b"_s, u"a"_s, u"B"_s, u"c"_s, u"A"_s}, {u"b"_s, u"a"_s, u"c"_s}},
        {{u"x"_s, u"x"_s, u"x"_s}, {u"x"_s}},
    };
    Form form(u"form"_s);
    ComboBox combo(form, u"combo"_s);
    ListBox list(form, u"list"_s);
    for (const auto &[given, left] : rows) {
        combo.SetItems(given);
        KillCBDupes(combo);
        EXPECT_EQ(combo.Items(), left);
        combo.SetItems(given);
        KillLBDupesCBO(combo);
        EXPECT_EQ(combo.Items(), left);
        list.SetItems(given);
        KillLBDupes(list);
        EXPECT_EQ(list.Items(), left);
    }
}

TEST(RemoveDupes, CountsIn16Bits)
{
    Form form(u"form"_s);
    ListBox list(form, u"list"_s);
    QStringList entries;
    for (int entry = 0; entry <= 32768; ++entry)
        entries += QString::number(entry);
    list.SetItems(entries);
    EXPECT_EQ(NumberThrownBy([&] { RemoveDupes(list); }), FailureNumber::Overflow);
}

} // namespace
