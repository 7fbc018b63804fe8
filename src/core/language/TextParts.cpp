// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "language/TextParts.h"

#include "base/Numbers.h"
#include "base/Text.h"

namespace tressel {

namespace {

/// The 1-based position of a match, 0 for none, in the 16 bits that text routines count in.
std::int16_t Position(const QString &text, qsizetype index)
{
    ToInt16(static_cast<double>(text.size()));
    if (text.isEmpty())
        return 0;
    return ToInt16(static_cast<double>(index + 1));
}

} // namespace

QString UpperFirst(const QString &text)
{
    const QString rest = Right(text, text.size() - 1);
    // A letter that has no capital of its own stays.
    return text.front().toUpper() + rest;
}

QString TextAfter(const QString &text, const QString &marker)
{
    const std::int16_t position = Position(text, text.indexOf(marker));
    return position > 0 ? Right(text, text.size() - position) : text;
}

QString TextBefore(const QString &text, const QString &marker)
{
    const std::int16_t position = Position(text, text.indexOf(marker));
    return position > 0 ? Left(text, position - 1) : text;
}

QString TextBeforeLast(const QString &text, const QString &marker)
{
    const std::int16_t position = Position(text, text.lastIndexOf(marker));
    return position > 0 ? Left(text, position - 1) : text;
}

bool TextContains(const QString &text, const QString &part)
{
    return !text.isEmpty() && text.contains(part);
}

} // namespace tressel
