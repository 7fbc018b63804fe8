// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "base/Text.h"

#include "base/Failure.h"

namespace tressel {

namespace {

void RefuseNegative(qsizetype number)
{
    if (number < 0)
        throw Failure(FailureNumber::InvalidProcedureCall);
}

} // namespace

QString Left(const QString &text, qsizetype count)
{
    RefuseNegative(count);
    return text.left(count);
}

QString Right(const QString &text, qsizetype count)
{
    RefuseNegative(count);
    return text.right(count);
}

QString Mid(const QString &text, qsizetype start, qsizetype count)
{
    RefuseNegative(start - 1);
    RefuseNegative(count);
    return text.mid(start - 1, count);
}

QString WithoutLast(const QString &text, qsizetype count)
{
    return Left(text, text.size() - count);
}

bool HasThreeLetterExtension(const QString &text)
{
    return Mid(text, text.size() - 3, 1) == u'.';
}

QString UpToNul(const QString &text)
{
    return text.left(text.indexOf(QChar(u'\0')));
}

} // namespace tressel
