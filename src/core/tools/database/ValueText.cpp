// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/database/ValueText.h"

#include <QDate>
#include <QTime>

#include <array>
#include <charconv>
#include <cmath>
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

/// A decimal number without needless zeros: the last `scale` of the digits stand behind the point.
QString DecimalText(bool negative, QString digits, qsizetype scale, const QString &point)
{
    digits = digits.rightJustified(scale + 1, u'0');
    QString whole = digits.chopped(scale);
    QString fraction = digits.last(scale);
    while (fraction.endsWith(u'0'))
        fraction.chop(1);
    while (whole.size() > 1 && whole.startsWith(u'0'))
        whole.remove(0, 1);
    const QString text = fraction.isEmpty() ? whole : whole + point + fraction;
    return negative && text != u"0"_s ? u'-' + text : text;
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
    const QString text = QString::fromLatin1(room.data(), written.ptr - room.data());
    QString digits = text.section(u'e', 0, 0).remove(u'.');
    const int exponent = text.section(u'e', 1).toInt();
    constexpr int lowest = -4;
    if (exponent < lowest || exponent >= precision) {
        const QString sign = exponent < 0 ? u"-"_s : u"+"_s;
        return DecimalText(number < 0, digits, digits.size() - 1, point) + u'E' + sign
            + QString::number(std::abs(exponent)).rightJustified(2, u'0');
    }
    const qsizetype scale = digits.size() - 1 - exponent;
    if (scale < 0)
        digits = digits.leftJustified(digits.size() - scale, u'0');
    return DecimalText(number < 0, digits, std::max<qsizetype>(scale, 0), point);
}

QString MoneyText(MoneyValue money, const QString &point)
{
    const bool negative = money.tenThousandths < 0;
    const auto whole = static_cast<quint64>(money.tenThousandths);
    return DecimalText(negative, QString::number(negative ? 0 - whole : whole), 4, point);
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
            return DecimalText(decimal.negative, QString::fromLatin1(decimal.digits), decimal.scale,
                               form.point);
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
    const QString time = locale.toString(QTime(0, 0).addSecs(static_cast<int>(seconds)), timeForm);
    if (day == 0)
        return time;
    const QDate first(1899, 12, 30);
    const QString text = locale.toString(first.addDays(static_cast<qint64>(day)), dateForm);
    return seconds == 0 ? text : text + u' ' + time;
}

} // namespace tressel
