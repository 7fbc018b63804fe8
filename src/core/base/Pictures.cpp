// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "base/Pictures.h"

#include <QLocale>

#include <cmath>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

/// How many digits of this part of a picture are printed always: from its first "0" on for the whole part.
qsizetype DigitsFromFirstZero(QStringView whole)
{
    const qsizetype first = whole.indexOf(u'0');
    return first < 0 ? 0 : whole.size() - first;
}

QString Grouped(const QString &digits)
{
    QString grouped = digits;
    for (qsizetype position = grouped.size() - 3; position > 0; position -= 3)
        grouped.insert(position, u',');
    return grouped;
}

} // namespace

QString FormatPicture(double number, const QString &picture)
{
    const qsizetype dot = picture.indexOf(u'.');
    const QStringView wholePicture = QStringView(picture).left(dot < 0 ? picture.size() : dot);
    const QStringView partPicture = dot < 0 ? QStringView() : QStringView(picture).mid(dot + 1);
    const bool grouped = wholePicture.contains(u',');
    const QString wholeDigits = wholePicture.toString().remove(u',');

    const double scale = std::pow(10.0, static_cast<double>(partPicture.size()));
    const double rounded = std::round(std::abs(number) * scale) / scale;
    const QString printed = QString::number(rounded, 'f', static_cast<int>(partPicture.size()));
    QString whole = printed.section(u'.', 0, 0);
    QString part = printed.section(u'.', 1);

    if (whole == "0"_L1)
        whole.clear();
    whole = whole.rightJustified(DigitsFromFirstZero(wholeDigits), u'0');
    while (part.size() > partPicture.lastIndexOf(u'0') + 1 && part.endsWith(u'0'))
        part.chop(1);

    QString text = grouped ? Grouped(whole) : whole;
    if (dot >= 0)
        text += u'.' + part;
    return number < 0 && rounded != 0 ? u'-' + text : text;
}

QString FormatPercent(double fraction)
{
    const QLocale locale;
    return locale.toString(fraction * 100, 'f', 2) + locale.percent();
}

} // namespace tressel
