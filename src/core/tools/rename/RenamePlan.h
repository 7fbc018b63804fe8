// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QChar>
#include <QList>
#include <QString>
#include <QStringList>

namespace tressel {

/// An entry of a folder and the name that it is to get.
struct NameChange {
    QString from;
    QString to;
    bool operator==(const NameChange &) const = default;
};

/// Why an entry can't get its name.
enum class NameProblem {
    Empty,
    Dots, ///< "." or "..", which every folder has
    TooLong, ///< more than 255 bytes
    HasSeparator,
    NotText, ///< half of a character, which stands for no bytes
    Taken, ///< by an entry that keeps it
    Meets, ///< another one is to get it too
};

struct RefusedName {
    NameChange change;
    NameProblem problem = NameProblem::Empty;
    QString other; ///< the entry that has the name, or is to get it first
    bool operator==(const RefusedName &) const = default;
};

/// One rename of a plan.
struct RenameStep {
    /// Which part of its way an entry goes: a name that waits for its own to be free has one aside meanwhile.
    enum Way { Whole, Aside, FromAside };

    qsizetype change = 0; ///< which of the plan's changes it belongs to
    Way way = Whole;
    bool operator==(const RenameStep &) const = default;
};

/// A whole run over a folder, thought through before anything is touched.
struct RenamePlan {
    QList<NameChange> changes; ///< as they were wanted
    QList<RenameStep> steps; ///< in an order in which no name is taken when its turn comes
    QString aside; ///< the name for the time being of all steps that need one
    QList<RefusedName> refused; ///< if there are any, there are no steps

    const QString &From(const RenameStep &step) const
    {
        return step.way == RenameStep::FromAside ? aside : changes.at(step.change).from;
    }
    const QString &To(const RenameStep &step) const
    {
        return step.way == RenameStep::Aside ? aside : changes.at(step.change).to;
    }
};

/// How the names of a folder are told apart.
struct NameRules {
    QChar separator;
    bool withCase = true; ///< "a" and "A" are two names
};

/// Plans to give entries of a folder other names. `present` are the names of all that is in it. A name that
/// doesn't change is no part of it.
RenamePlan PlanRenames(const QStringList &present, QList<NameChange> wanted, const NameRules &rules);

} // namespace tressel
