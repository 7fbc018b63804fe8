// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "SafeName.h"

#include "support/Text.h"

#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

struct Row {
    QString name;
    QString safe;
};

TEST(SafeName, NamesThatATerminalWouldObeyAreQuotedAsAShellReadsThem)
{
    const QList<Row> rows{
        {u"plain name.txt"_s, u"plain name.txt"_s},
        {u"été \u4e16 \U0001F600"_s, u"été \u4e16 \U0001F600"_s},
        {u"it's"_s, u"it's"_s},
        {u"'it"_s, u"''\\''it'"_s},
        {u"a\nb"_s, u"'a'$'\\n''b'"_s},
        {u"\na"_s, u"''$'\\n''a'"_s},
        {u"a\r\n"_s, u"'a'$'\\r\\n'"_s},
        {u"o'b\tx"_s, u"'o'\\''b'$'\\t''x'"_s},
        {u"\033]0;x\a"_s, u"''$'\\033'']0;x'$'\\a'"_s},
        {u"\u009b31m"_s, u"''$'\\302\\233''31m'"_s},
        {u"a\u202etxt.exe"_s, u"'a'$'\\342\\200\\256''txt.exe'"_s},
        {u"a\u2066b"_s, u"'a'$'\\342\\201\\246''b'"_s},
        {u"a\u2028b"_s, u"'a'$'\\342\\200\\250''b'"_s},
        {u"a\x7f"_s, u"'a'$'\\177'"_s},
        {QString(u"b"_s) + QChar(0xDCFF), u"'b'$'\\377'"_s},
        {u"می\u200cخواهم"_s, u"می\u200cخواهم"_s},
        {u""_s, u""_s},
    };
    for (const Row &row : rows)
        EXPECT_EQ(SafeName(row.name), row.safe);
}

TEST(SafeName, TextKeepsItsWordsAndLosesWhatATerminalWouldObey)
{
    EXPECT_EQ(SafeText(u"Delete it?"_s), u"Delete it?"_s);
    EXPECT_EQ(SafeText(u"a\n\nb \033[2J\u202e"_s), u"a??b ?[2J?"_s);
}

} // namespace
