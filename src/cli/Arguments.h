// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Command.h"

#include <QHash>

#include <optional>

namespace tressel {

/// A command line that can't be understood, and why. The names in it are safe to show.
struct UsageError {
    QString sentence;
};

/// The words behind a command's name, told apart by its options. Options may stand anywhere; "--" ends them,
/// and "-" alone is no option.
class Arguments {
public:
    /// Throws UsageError for an option that the command hasn't got or that comes twice, and for a value that
    /// is missing, empty, or none of the choices. Says nothing about operands.
    Arguments(const Command &command, const QStringList &words);

    /// True if --help or -h stands among the options, whatever is wrong with the rest.
    static bool AskForHelp(const Command &command, const QStringList &words);

    bool Has(const CommandOption &option) const { return values.contains(option.name); }
    bool Has(const QString &option) const { return values.contains(option); }
    /// Nothing if the option isn't there.
    std::optional<QString> Value(const QString &option) const;
    /// The value of an option that must be there; UsageError if it isn't.
    QString Need(const QString &option) const;
    /// All that is no option, in order.
    const QStringList &Operands() const { return operands; }

private:
    void Take(const CommandOption &option, const std::optional<QString> &attached, const QStringList &words,
              qsizetype &at);

    const Command &command;
    QHash<QString, QString> values;
    QStringList operands;
};

/// The one of the words that a mistyped one is likely to be; empty if none is near.
QString NearestTo(const QString &mistyped, const QStringList &words);

/// ", did you mean X?", or nothing where no word is near.
QString DidYouMean(const QString &mistyped, const QStringList &words);

} // namespace tressel
