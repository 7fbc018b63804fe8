// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/database/ValueText.h"

#include <QDate>
#include <QTime>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string>
#include <string_view>
#include <utility>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

/// With whole years: one of two digits could be any century's.
QString DateForm(const QLocale &locale)
{
    QString form = locale.dateFormat(QLocale::ShortFormat);
    return form.contains(u"yyyy"_s) ? form : form.replace(u"yy"_s, u"yyyy"_s);
}

/// With seconds: without them it wouldn't be the same time.
QString TimeForm(const QLocale &locale)
{
    QString form = locale.timeFormat(QLocale::ShortFormat);
    if (form.contains(u's'))
        return form;
    const qsizetype minutes = form.indexOf(u"mm"_s);
    const QString between = minutes > 0 ? form.sliced(minutes - 1, 1) : u":"_s;
    return form.replace(u"mm"_s, u"mm"_s + between + u"ss"_s);
}

QLatin1StringView Latin1(std::string_view text)
{
    return {text.data(), static_cast<qsizetype>(text.size())};
}

/// A decimal number without needless zeros: the last `scale` of the digits stand behind the point.
QString DecimalText(bool negative, std::string digits, std::size_t scale, const QString &point)
{
    if (digits.size() <= scale)
        digits.insert(0, scale + 1 - digits.size(), '0');
    std::string_view whole = digits;
    std::string_view fraction = whole.substr(digits.size() - scale);
    whole.remove_suffix(scale);
    while (fraction.ends_with('0'))
        fraction.remove_suffix(1);
    while (whole.size() > 1 && whole.starts_with('0'))
        whole.remove_prefix(1);
    QString text;
    if (negative && (whole != "0" || !fraction.empty()))
        text += u'-';
    text += Latin1(whole);
    if (!fraction.empty())
        text += point + Latin1(fraction);
    return text;
}

/// The shortest digits that read back as the same number. From 10 to the power of `precision` on, and below a
/// ten thousandth, with an exponent of two digits or more.
template <typename Number> QString RealText(Number number, int precision, const QString &point)
{
    if (!std::isfinite(number))
        return std::isnan(number) ? u"nan"_s : number < 0 ? u"-inf"_s : u"inf"_s;
    if (number == 0)
        return u"0"_s;
    std::array<char, 64> room{};
    const auto written = std::to_chars(room.data(), room.data() + room.size(), std::abs(number),
                                       std::chars_format::scientific);
    char *const mark = std::find(room.data(), written.ptr, 'e');
    int exponent = 0;
    std::from_chars(mark + 2, written.ptr, exponent);
    if (mark[1] == '-')
        exponent = -exponent;
    std::string digits(room.data(), mark);
    std::erase(digits, '.');
    const int behindFirst = static_cast<int>(digits.size()) - 1;
    constexpr int lowest = -4;
    if (exponent < lowest || exponent >= precision) {
        const QString sign = exponent < 0 ? u"-"_s : u"+"_s;
        return DecimalText(number < 0, digits, digits.size() - 1, point) + u'E' + sign
            + QString::number(std::abs(exponent)).rightJustified(2, u'0');
    }
    if (exponent > behindFirst)
        digits.append(static_cast<std::size_t>(exponent - behindFirst), '0');
    return DecimalText(number < 0, digits, static_cast<std::size_t>(std::max(behindFirst - exponent, 0)),
                       point);
}

QString MoneyText(MoneyValue money, const QString &point)
{
    const bool negative = money.tenThousandths < 0;
    const auto whole = static_cast<quint64>(money.tenThousandths);
    return DecimalText(negative, std::to_string(negative ? 0 - whole : whole), 4, point);
}

QString GuidText(const GuidValue &guid)
{
    constexpr std::array<int, 16> order{3, 2, 1, 0, 5, 4, 7, 6, 8, 9, 10, 11, 12, 13, 14, 15};
    QString text = u"{"_s;
    for (std::size_t place = 0; place < order.size(); ++place) {
        if (place == 4 || place == 6 || place == 8 || place == 10)
            text += u'-';
        const auto byte = static_cast<unsigned char>(guid.bytes.at(order[place]));
        text += QString::number(byte, 16).toUpper().rightJustified(2, u'0');
    }
    return text + u'}';
}

} // namespace

ValueWriter::ValueWriter(const QLocale &written)
    : ValueWriter(written.decimalPoint(), DateForm(written), TimeForm(written), written)
{
}

ValueWriter::ValueWriter(QString decimalPoint, QString dates, QString times, const QLocale &written)
    : point(std::move(decimalPoint))
    , dateForm(std::move(dates))
    , timeForm(std::move(times))
    , locale(written)
{
}

ValueWriter ValueWriter::Plain()
{
    return {u"."_s, u"yyyy-MM-dd"_s, u"HH:mm:ss"_s, QLocale::c()};
}

QString ValueWriter::Text(const DatabaseValue &value) const
{
    struct Writer {
        const ValueWriter &form;

        QString operator()(std::monostate) const
        {
            throw Failure(InvalidUseOfNull, u"Invalid use of Null"_s);
        }
        QString operator()(bool is) const { return is ? u"True"_s : u"False"_s; }
        QString operator()(std::int64_t number) const { return QString::number(number); }
        QString operator()(MoneyValue money) const { return MoneyText(money, form.point); }
        QString operator()(float number) const { return RealText(number, 7, form.point); }
        QString operator()(double number) const { return RealText(number, 15, form.point); }
        QString operator()(DateValue date) const { return form.DateText(date); }
        QString operator()(const QString &text) const { return text; }
        QString operator()(const GuidValue &guid) const { return GuidText(guid); }
        QString operator()(const DecimalValue &decimal) const
        {
            return DecimalText(decimal.negative, decimal.digits.toStdString(),
                               static_cast<std::size_t>(decimal.scale), form.point);
        }
        QString operator()(BinaryValue) const { throw Failure(FailureNumber::TypeMismatch); }
    };
    return std::visit(Writer{*this}, value);
}

QString ValueWriter::DateText(DateValue date) const
{
    constexpr double yearTenThousand = 2958466;
    constexpr double yearZero = -693593;
    constexpr int secondsADay = 86400;
    if (!(date.days > yearZero && date.days < yearTenThousand))
        throw Failure(FailureNumber::TypeMismatch);
    // The fraction counts on from the beginning of the day also where days count backwards.
    double day = std::trunc(date.days);
    qint64 seconds = std::llround(std::abs(date.days - day) * secondsADay);
    if (seconds == secondsADay) {
        day += 1;
        seconds = 0;
    }
    if (day != 0 && seconds == 0)
        return DayText(static_cast<qint64>(day));
    const QString time = locale.toString(QTime(0, 0).addSecs(static_cast<int>(seconds)), timeForm);
    return day == 0 ? time : DayText(static_cast<qint64>(day)) + u' ' + time;
}

/// A table has the same days again and again, and the locale takes its time over each.
QString ValueWriter::DayText(qint64 day) const
{
    constexpr qsizetype mostDays = 10000;
    if (days.size() > mostDays)
        days.clear();
    QString &text = days[day];
    if (text.isEmpty())
        text = locale.toString(QDate(1899, 12, 30).addDays(day), dateForm);
    return text;
}

} // namespace tressel
