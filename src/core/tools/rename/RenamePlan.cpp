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

class Planner {
public:
    Planner(const QStringList &presentNames, const QList<NameChange> &wanted, const NameRules &nameRules)
        : rules(nameRules)
    {
        for (const NameChange &change : wanted) {
            if (change.from != change.to)
                changes.append(change);
        }
        present.reserve(presentNames.size());
        for (const QString &name : presentNames)
            present.insert(Key(name), name);
        changing.reserve(changes.size());
        for (qsizetype index = 0; index < changes.size(); ++index)
            changing.insert(Key(changes.at(index).from), index);
    }

    RenamePlan Plan()
    {
        CheckNames();
        if (plan.refused.isEmpty())
            OrderSteps();
        return std::move(plan);
    }

private:
    QString Key(const QString &name) const { return rules.withCase ? name : name.toCaseFolded(); }
    void CheckNames();
    void CheckPlace(const NameChange &change);
    void OrderSteps();
    void OrderChain(qsizetype first);
    qsizetype HolderOf(qsizetype index) const;
    QString FreeName() const;

    NameRules rules;
    QList<NameChange> changes;
    QHash<QString, QString> present; ///< names by their keys
    QHash<QString, qsizetype> changing; ///< indices of changes by the keys of the names that they leave
    QHash<QString, QString> targets; ///< by the keys of the new names: who is to get it first
    QList<bool> ordered; ///< changes whose steps stand in the plan
    RenamePlan plan;
};

void Planner::CheckNames()
{
    targets.reserve(changes.size());
    for (const NameChange &change : std::as_const(changes)) {
        if (const auto problem = ProblemOf(change.to, rules.separator))
            plan.refused.append({change, *problem, {}});
        else
            CheckPlace(change);
    }
}

void Planner::CheckPlace(const NameChange &change)
{
    const QString key = Key(change.to);
    const auto first = targets.constFind(key);
    if (first != targets.constEnd()) {
        plan.refused.append({change, NameProblem::Meets, *first});
        return;
    }
    targets.insert(key, change.from);
    const auto holder = present.constFind(key);
    if (holder != present.constEnd() && !changing.contains(key))
        plan.refused.append({change, NameProblem::Taken, *holder});
}

void Planner::OrderSteps()
{
    plan.steps.reserve(changes.size());
    ordered.resize(changes.size());
    for (qsizetype index = 0; index < changes.size(); ++index) {
        if (!ordered.at(index))
            OrderChain(index);
    }
}

/// Who has the name that a change wants and is to leave it; -1 for nobody but itself.
qsizetype Planner::HolderOf(qsizetype index) const
{
    const qsizetype holder = changing.value(Key(changes.at(index).to), -1);
    return holder == index ? -1 : holder;
}

void Planner::OrderChain(qsizetype first)
{
    // No name is wanted twice, so what begins here ends somewhere or comes back to its beginning.
    QList<qsizetype> chain{first};
    qsizetype holder = HolderOf(first);
    for (; holder >= 0 && holder != first && !ordered.at(holder); holder = HolderOf(holder))
        chain.append(holder);
    for (const qsizetype index : std::as_const(chain))
        ordered[index] = true;

    const QString aside = holder == first ? FreeName() : QString();
    if (!aside.isNull())
        plan.steps.append({{changes.at(first).from, aside}, true});
    for (qsizetype last = chain.size() - 1; last > 0; --last)
        plan.steps.append({changes.at(chain.at(last)), false});
    plan.steps.append({aside.isNull() ? changes.at(first) : NameChange{aside, changes.at(first).to}, false});
}

QString Planner::FreeName() const
{
    for (int number = 1;; ++number) {
        const QString name = u".rename-%1.tmp"_s.arg(number);
        if (!present.contains(Key(name)) && !targets.contains(Key(name)))
            return name;
    }
}

} // namespace

RenamePlan PlanRenames(const QStringList &present, const QList<NameChange> &wanted, const NameRules &rules)
{
    return Planner(present, wanted, rules).Plan();
}

} // namespace tressel
