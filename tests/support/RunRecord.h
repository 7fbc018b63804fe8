// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/Failure.h"
#include "tools/RunWatch.h"

#include <QStringList>

namespace tressel {

/// Writes down what a run tells, a line each: "started 2", "next PATH", "made PATH", "failed PATH 75".
class RunRecord : public RunWatch {
public:
    void Started(qint64 total) override { lines += QStringLiteral("started %1").arg(total); }
    void Next(const QString &path) override { lines += QStringLiteral("next ") + path; }
    void Did(Outcome outcome, const QString &path) override { lines += NameOf(outcome) + u' ' + path; }
    void Failed(const QString &path, const Failure &failure) override
    {
        lines += QStringLiteral("failed %1 %2").arg(path).arg(failure.Number());
    }

    /// What follows the word in the lines that start with it.
    QStringList Of(const QString &word) const
    {
        QStringList told;
        for (const QString &line : lines) {
            if (line.startsWith(word + u' '))
                told += line.mid(word.size() + 1);
        }
        return told;
    }

    QStringList lines;

private:
    static QString NameOf(Outcome outcome)
    {
        switch (outcome) {
        case Outcome::Made:
            return QStringLiteral("made");
        case Outcome::AlreadyThere:
            return QStringLiteral("already there");
        case Outcome::Renamed:
            return QStringLiteral("renamed");
        case Outcome::Rewritten:
            return QStringLiteral("rewritten");
        case Outcome::Removed:
            return QStringLiteral("removed");
        case Outcome::NotThere:
            return QStringLiteral("not there");
        case Outcome::Kept:
            return QStringLiteral("kept");
        case Outcome::Found:
            return QStringLiteral("found");
        case Outcome::Searched:
            return QStringLiteral("searched");
        }
        return {};
    }
};

} // namespace tressel
