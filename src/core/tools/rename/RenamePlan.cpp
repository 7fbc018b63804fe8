// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/rename/RenamePlan.h"

#include "machine/NameText.h"

#include <QHash>

#include <array>
#include <optional>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestName = 255;

/// What is wrong with a name by itself.
std::optional<NameProblem> ProblemOf(const QString &name, QChar separator)
{
    if (name.isEmpty())
        return NameProblem::Empty;
    if (name == u"."_s || name == u".."_s)
        return NameProblem::Dots;
    if (name.contains(separator))
        return NameProblem::HasSeparator;
    if (name.size() > longestName)
        return NameProblem::TooLong;
    std::array<char, 3 * longestName> bytes;
    bool damaged = false;
    const char *const end = WriteUtf8(name, NameBytes::Raw, bytes.data(), &damaged);
    if (damaged)
        return NameProblem::NotText;
    if (end - bytes.data() > longestName)
        return NameProblem::TooLong;
    return {};
}

/// Who has to do with one name.
struct NamePlace {
    const QString *present = nullptr; ///< the entry that has it
    qsizetype leaver = -1; ///< the change by which the entry leaves it
    qsizetype taker = -1; ///< the first change to it
};

/// Its arguments must outlive it: the keys of names are views of them.
class Planner {
public:
    Planner(const QStringList &present, const QList<NameChange> &wanted, const NameRules &nameRules)
        : rules(nameRules)
        , changes(wanted)
        , holders(wanted.size(), -1)
    {
        places.reserve(present.size() + wanted.size());
        for (const QString &name : present)
            places[Key(name)].present = &name;
        for (qsizetype index = 0; index < changes.size(); ++index) {
            if (IsChange(index))
                places[Key(changes.at(index).from)].leaver = index;
        }
    }

    RenamePlan Plan()
    {
        for (qsizetype index = 0; index < changes.size(); ++index) {
            if (IsChange(index))
                Check(index);
        }
        if (plan.refused.isEmpty())
            OrderSteps();
        return std::move(plan);
    }

private:
    bool IsChange(qsizetype index) const { return changes.at(index).from != changes.at(index).to; }
    QStringView Key(const QString &name);
    void Check(qsizetype index);
    void OrderSteps();
    void OrderChain(qsizetype first);
    QString FreeName();

    NameRules rules;
    const QList<NameChange> &changes;
    QStringList folded; ///< what keys are views of where names are told apart without case
    QHash<QStringView, NamePlace> places;
    QList<qsizetype> holders; ///< for each change, which other one leaves its new name; -1 for none
    QList<bool> ordered; ///< changes whose steps stand in the plan
    RenamePlan plan;
};

QStringView Planner::Key(const QString &name)
{
    if (rules.withCase)
        return name;
    folded.append(name.toCaseFolded());
    return folded.constLast();
}

void Planner::Check(qsizetype index)
{
    const NameChange &change = changes.at(index);
    if (const auto problem = ProblemOf(change.to, rules.separator)) {
        plan.refused.append({change, *problem, {}});
        return;
    }
    NamePlace &place = places[Key(change.to)];
    if (place.taker >= 0) {
        plan.refused.append({change, NameProblem::Meets, changes.at(place.taker).from});
        return;
    }
    place.taker = index;
    if (place.leaver != index)
        holders[index] = place.leaver;
    if (place.present && place.leaver < 0)
        plan.refused.append({change, NameProblem::Taken, *place.present});
}

void Planner::OrderSteps()
{
    plan.steps.reserve(changes.size());
    ordered.resize(changes.size());
    for (qsizetype index = 0; index < changes.size(); ++index) {
        if (IsChange(index) && !ordered.at(index))
            OrderChain(index);
    }
}

void Planner::OrderChain(qsizetype first)
{
    // No name is wanted twice, so what begins here ends somewhere or comes back to its beginning.
    QList<qsizetype> chain;
    qsizetype next = first;
    for (; next >= 0 && !ordered.at(next); next = holders.at(next)) {
        ordered[next] = true;
        chain.append(next);
    }
    const QString aside = next == first ? FreeName() : QString();
    if (!aside.isNull())
        plan.steps.append({{changes.at(first).from, aside}, true});
    for (qsizetype last = chain.size() - 1; last > 0; --last)
        plan.steps.append({changes.at(chain.at(last)), false});
    plan.steps.append({aside.isNull() ? changes.at(first) : NameChange{aside, changes.at(first).to}, false});
}

QString Planner::FreeName()
{
    for (int number = 1;; ++number) {
        const QString name = u".rename-%1.tmp"_s.arg(number);
        if (!places.contains(Key(name)))
            return name;
    }
}

} // namespace

RenamePlan PlanRenames(const QStringList &present, const QList<NameChange> &wanted, const NameRules &rules)
{
    return Planner(present, wanted, rules).Plan();
}

} // namespace tressel
