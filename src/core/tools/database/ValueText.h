// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/Databases.h"

#include <QHash>
#include <QLocale>

namespace tressel {

/// The number of the failure that a null causes where a text is wanted.
inline constexpr FailureNumber InvalidUseOfNull{94};

/// Turns values into text. Fails with 94 for a null and with 13 for what can't become text.
class ValueWriter {
public:
    /// In the ways of a locale: numbers in their shortest form, dates in the short form with whole years,
    /// with the time behind if there is one, and the time alone on the day from which dates count.
    explicit ValueWriter(const QLocale &locale);
    /// In a form that other programs read: a decimal point, dates as "2004-03-31 14:05:00".
    static ValueWriter Plain();

    QString Text(const DatabaseValue &value) const;

private:
    ValueWriter(QString point, QString dateForm, QString timeForm, const QLocale &locale);
    QString DateText(DateValue date) const;
    QString DayText(qint64 day) const;

    QString point;
    QString dateForm;
    QString timeForm;
    QLocale locale; ///< of the words in a date
    mutable QHash<qint64, QString> days; ///< those that were written already
};

} // namespace tressel
