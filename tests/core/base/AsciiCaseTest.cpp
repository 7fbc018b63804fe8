// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "base/AsciiCase.h"

#include "support/Text.h"

#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

TEST(AsciiCase, IsTheCaseOfAnyTextWhereThatIsAscii)
{
    for (int code = 0; code < 0x80; ++code) {
        const QString text = u"a"_s + QChar(code) + u"Z"_s;
        EXPECT_TRUE(IsAscii(text)) << code;
        EXPECT_EQ(WithAsciiUpper(text), text.toUpper()) << code;
        EXPECT_EQ(WithAsciiLower(text), text.toLower()) << code;
        EXPECT_EQ(WithAsciiLower(text), text.toCaseFolded()) << code;
        EXPECT_EQ(QChar(AsciiLower(QChar(code))), QChar(code).toLower()) << code;
    }
    EXPECT_TRUE(IsAscii(QString()));
}

TEST(AsciiCase, OtherCharactersAreNoneOfIts)
{
    EXPECT_FALSE(IsAscii(u"caf\u00E9"_s));
    EXPECT_FALSE(IsAscii(QString(QChar(0x80))));
    EXPECT_EQ(AsciiLower(u'\u00C9'), u'\u00C9');
    EXPECT_EQ(WithAsciiUpper(u"caf\u00E9"_s), u"CAF\u00E9"_s);
    EXPECT_EQ(WithAsciiLower(u"CAF\u00C9"_s), u"caf\u00C9"_s);
}

} // namespace
