// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/splitter/SplitRules.h"

#include "base/Failure.h"
#include "base/Numbers.h"
#include "base/Pictures.h"
#include "machine/TextFile.h"

#include <QLocale>

#include <algorithm>
#include <cstdlib>
#include <functional>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

constexpr int kilobyte = 1024;
constexpr int megabyte = kilobyte * kilobyte;

void RefuseZero(double divisor)
{
    if (divisor == 0)
        throw Failure(FailureNumber::DivisionByZero);
}

/// The parts from one number to another as the operand of a COPY: "NAME.1"+"NAME.2".
QString Added(const QString &name, qint64 first, qint64 last)
{
    QStringList parts;
    for (qint64 part = first; part <= last; ++part)
        parts += u'"' + PartName(name, part) + u'"';
    return parts.join(u'+');
}

QStringList LinesThatKeepParts(const QString &name, qint64 parts)
{
    // Kept: the first part is copied as text, and only the others are added as they are.
    QStringList lines{u"COPY \""_s + PartName(name, 1) + u"\" \""_s + name + u'"'};
    if (parts > 1)
        lines += u"COPY /B \""_s + name + u"\"+"_s + Added(name, 2, parts);
    return lines;
}

QStringList LinesThatDeleteParts(const QString &name, qint64 parts)
{
    QStringList lines;
    if (parts > 1) {
        lines += u"COPY /B "_s + Added(name, 1, parts);
        for (qint64 part = 2; part <= parts; ++part)
            lines += u"DEL \""_s + PartName(name, part) + u'"';
    }
    lines += u"REN \""_s + PartName(name, 1) + u"\" \""_s + name + u'"';
    lines += u"DEL \""_s + BatchName(name) + u'"';
    return lines;
}

/// The time of day to the second, where the user's short form often ends with the minutes.
QString TimeFormat(const QLocale &locale)
{
    QString format = locale.timeFormat(QLocale::ShortFormat);
    const qsizetype minutes = format.indexOf("mm"_L1);
    if (minutes > 0 && !format.contains(u's'))
        format.insert(minutes + 2, format.mid(minutes - 1, 1) + u"ss"_s);
    return format;
}

} // namespace

QString GetPathPart(const QString &Path, QChar separator)
{
    return Path.left(Path.lastIndexOf(separator) + 1);
}

QString GetFilePart(const QString &Path, QChar separator)
{
    return Path.mid(Path.lastIndexOf(separator) + 1);
}

QString PartName(const QString &name, qint64 part)
{
    return name + u'.' + QString::number(part);
}

QString BatchName(const QString &name)
{
    return name + u".bat"_s;
}

qint64 PartNumberOf(const QString &name, const QString &partName)
{
    if (!partName.startsWith(name + u'.'))
        return 0;
    const qint64 number = QStringView(partName).sliced(name.size() + 1).toLongLong();
    return number > 0 && PartName(name, number) == partName ? number : 0;
}

qint64 PartsOf(qint64 length, qint64 chunk)
{
    RefuseZero(static_cast<double>(chunk));
    const qint64 whole = length / chunk;
    const bool isAbove = length % chunk != 0 && (length < 0) == (chunk < 0);
    return isAbove ? whole + 1 : whole;
}

qint64 ChunkOf(qint64 length, qint64 count)
{
    RefuseZero(static_cast<double>(count));
    const qint64 whole = length / count;
    const qint64 rest = std::abs(length % count);
    const qint64 missing = std::abs(count) - rest;
    if (rest < missing || (rest == missing && whole % 2 == 0))
        return whole;
    return (length < 0) == (count < 0) ? whole + 1 : whole - 1;
}

qint64 ExactChunkOf(qint64 length, qint64 count)
{
    const qint64 nearest = ChunkOf(length, count);
    // Rounded up, the parts before the last one can take everything, or more than there is.
    return nearest * count > length && PartsOf(length, nearest) != count ? length / count : nearest;
}

qint64 FirstUnfitPart(const QList<qint64> &lengths)
{
    if (lengths.size() < 2)
        return 0;
    const qint64 chunk = lengths.first();
    const qint64 last = lengths.last();
    const bool isDealtOut = std::ranges::is_sorted(lengths, std::ranges::greater()) && chunk - last <= 1;
    if (isDealtOut && last > 0)
        return 0;
    for (qsizetype index = 1; index + 1 < lengths.size(); ++index) {
        if (lengths.at(index) != chunk)
            return index + 1;
    }
    return last > 0 && last - chunk < lengths.size() ? 0 : lengths.size();
}

std::int32_t Length32(qint64 length)
{
    constexpr qint64 signBit = 1LL << 31;
    return static_cast<std::int32_t>(length < signBit ? length : length | signBit);
}

std::int32_t ChunkOfSize(const QString &kilobytes)
{
    return ToInt32(static_cast<double>(ToInt32(kilobytes)) * kilobyte);
}

std::int32_t ChunkOfCount(std::int32_t length, const QString &count)
{
    return ToInt32(static_cast<double>(ChunkOf(length, ToInt32(count))));
}

std::int16_t PlannedParts(std::int32_t length, std::int32_t chunk)
{
    return ToInt16(static_cast<double>(PartsOf(length, chunk)));
}

QString PartSizeText(std::int32_t length, double parts)
{
    RefuseZero(parts);
    const auto inUnits = [&](int unit) { return FormatPicture(length / parts / unit, u"###.##"_s); };
    return inUnits(megabyte) + u" MB ("_s + inUnits(kilobyte) + u" kB)"_s;
}

double GetSecondsToday(const QDateTime &now)
{
    constexpr double millisecondsPerSecond = 1000;
    return now.time().msecsSinceStartOfDay() / millisecondsPerSecond;
}

QString SecondsText(double seconds)
{
    return FormatPicture(seconds, u"#.00"_s);
}

QString DateTimeText(const QDateTime &now)
{
    const QLocale locale;
    return locale.toString(now.date(), QLocale::ShortFormat) + u' '
        + locale.toString(now.time(), TimeFormat(locale));
}

QStringList JoinBatchLines(const QString &name, qint64 parts, bool deletesParts)
{
    QStringList lines{
        u"@ECHO OFF"_s,
        u"ECHO Joining Files..."_s,
        u"IF EXIST \""_s + name + u"\" DEL \""_s + name + u'"',
    };
    lines += deletesParts ? LinesThatDeleteParts(name, parts) : LinesThatKeepParts(name, parts);
    lines += u"ECHO Done!"_s;
    return lines;
}

QByteArray JoinBatchBytes(const QString &name, qint64 parts, bool deletesParts)
{
    const QString lineEnd = u"\r\n"_s;
    return EncodeText(JoinBatchLines(name, parts, deletesParts).join(lineEnd) + lineEnd, NameBytes::Raw);
}

} // namespace tressel
