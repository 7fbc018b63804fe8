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
    NameChange change;
    bool isHalfWay = false; ///< the name is one for the time being, and another step gives the wanted one
    bool operator==(const RenameStep &) const = default;
};

/// A whole run over a folder, thought through before anything is touched.
struct RenamePlan {
    QList<RenameStep> steps; ///< in an order in which no name is taken when its turn comes
    QList<RefusedName> refused; ///< if there are any, there are no steps
};

/// How the names of a folder are told apart.
struct NameRules {
    QChar separator;
    bool withCase = true; ///< "a" and "A" are two names
};

/// Plans to give entries of a folder other names. `present` are the names of all that is in it. A name that
/// doesn't change is no part of it.
RenamePlan PlanRenames(const QStringList &present, const QList<NameChange> &wanted, const NameRules &rules);

} // namespace tressel
