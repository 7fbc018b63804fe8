// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "base/Numbers.h"

#include "base/Failure.h"

#include <QRegularExpression>

#include <cmath>
#include <limits>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

double RoundHalfToEven(double number)
{
    const double below = std::floor(number);
    const double part = number - below;
    if (part != 0.5)
        return std::round(number);
    return std::fmod(below, 2) == 0 ? below : below + 1;
}

template <typename Int> Int ToWhole(double number)
{
    const double rounded = RoundHalfToEven(number);
    if (!(rounded >= std::numeric_limits<Int>::min() && rounded <= std::numeric_limits<Int>::max()))
        throw Failure(FailureNumber::Overflow);
    return static_cast<Int>(rounded);
}

} // namespace

double ToNumber(const QString &text)
{
    static const QRegularExpression decimal(u"^[+-]?(\\d+(\\.\\d*)?|\\.\\d+)([eEdD][+-]?\\d+)?$"_s);
    const QString trimmed = text.trimmed();
    if (trimmed.compare("True"_L1, Qt::CaseInsensitive) == 0)
        return -1;
    if (trimmed.compare("False"_L1, Qt::CaseInsensitive) == 0)
        return 0;
    if (trimmed.startsWith("&h"_L1, Qt::CaseInsensitive)) {
        bool isNumber = false;
        const quint32 number = trimmed.mid(2).toUInt(&isNumber, 16);
        if (!isNumber)
            throw Failure(FailureNumber::TypeMismatch);
        // Up to four digits name a 16-bit number, so that &HFFFF is -1.
        return trimmed.size() <= 6 ? static_cast<std::int16_t>(number) : static_cast<std::int32_t>(number);
    }
    if (!decimal.match(trimmed).hasMatch())
        throw Failure(FailureNumber::TypeMismatch);
    return QString(trimmed).replace(QChar(u'd'), QChar(u'e'), Qt::CaseInsensitive).toDouble();
}

double ToNumber(const Value &value)
{
    if (const auto *number = std::get_if<std::int32_t>(&value))
        return *number;
    return ToNumber(std::get<QString>(value));
}

bool IsNumeric(const QString &text)
{
    const QString trimmed = text.trimmed();
    if (trimmed.compare("True"_L1, Qt::CaseInsensitive) == 0
        || trimmed.compare("False"_L1, Qt::CaseInsensitive) == 0)
        return false;
    try {
        ToNumber(trimmed);
        return true;
    } catch (const Failure &) {
        return false;
    }
}

std::int16_t ToInt16(double number)
{
    return ToWhole<std::int16_t>(number);
}

std::int16_t ToInt16(const QString &text)
{
    return ToInt16(ToNumber(text));
}

std::int16_t ToInt16(const Value &value)
{
    return ToInt16(ToNumber(value));
}

std::int32_t ToInt32(double number)
{
    return ToWhole<std::int32_t>(number);
}

std::int32_t ToInt32(const QString &text)
{
    return ToInt32(ToNumber(text));
}

std::int32_t ToInt32(const Value &value)
{
    return ToInt32(ToNumber(value));
}

bool ToBoolean(const QString &text)
{
    return ToNumber(text) != 0;
}

bool ToBoolean(const Value &value)
{
    return ToNumber(value) != 0;
}

QString ToText(const Value &value)
{
    if (const auto *number = std::get_if<std::int32_t>(&value))
        return QString::number(*number);
    return std::get<QString>(value);
}

double LeadingNumber(const QString &text)
{
    static const QRegularExpression head(u"^[+-]?(\\d+(\\.\\d*)?|\\.\\d+)([eEdD][+-]?\\d+)?"_s);
    QString solid;
    solid.reserve(text.size());
    for (const QChar character : text) {
        if (!character.isSpace())
            solid += character;
    }
    const QRegularExpressionMatch match = head.match(solid);
    return match.hasMatch()
        ? match.captured().replace(QChar(u'd'), QChar(u'e'), Qt::CaseInsensitive).toDouble()
        : 0;
}

} // namespace tressel
