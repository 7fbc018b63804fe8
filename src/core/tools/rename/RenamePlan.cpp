// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/rename/RenamePlan.h"

#include "machine/NameText.h"

#include <QHash>
#include <QStringView>

#include <array>
#include <map>
#include <optional>
#include <utility>

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

/// Numbers of changes by names, which must outlive it.
class ChangesByName {
public:
    explicit ChangesByName(qsizetype names) { numbers.reserve(names); }

    /// Puts a change in unless another has the name. The one that has it then.
    qsizetype PutOrFind(QStringView name, qsizetype change)
    {
        Number &number = numbers[name];
        if (number.value < 0)
            number.value = change;
        return number.value;
    }
    /// -1 if no change has the name.
    qsizetype Find(QStringView name) const { return numbers.value(name).value; }

private:
    struct Number {
        qsizetype value = -1;
    };
    QHash<QStringView, Number> numbers;
};

/// Its arguments must outlive it: the names that it looks for are views of them.
class Planner {
public:
    Planner(const QStringList &presentNames, QList<NameChange> wanted, const NameRules &nameRules)
        : rules(nameRules)
        , present(presentNames)
        , takers(wanted.size())
        , holders(wanted.size(), -1)
        , ordered(wanted.size(), false)
    {
        plan.changes = std::move(wanted);
    }

    RenamePlan Plan()
    {
        TakeNewNames();
        FindHolders();
        if (refused.empty())
            OrderSteps();
        for (const auto &[change, why] : refused)
            plan.refused.append(why);
        return std::move(plan);
    }

private:
    const NameChange &Change(qsizetype index) const { return plan.changes.at(index); }
    QStringView Key(const QString &name);
    ChangesByName Leavers();
    void TakeNewNames();
    void FindHolders();
    void Refuse(qsizetype index, NameProblem problem, const QString &other = {});
    void OrderSteps();
    void OrderChain(qsizetype first);
    QString FreeName();

    NameRules rules;
    const QStringList &present;
    QStringList folded; ///< what keys are views of where names are told apart without case
    ChangesByName takers; ///< the first change to each name, by the names that they take
    QList<qsizetype> holders; ///< for each change, which other one leaves its new name; -1 for none
    std::map<qsizetype, RefusedName> refused; ///< by the numbers of their changes
    QList<bool> ordered; ///< changes whose steps stand in the plan, or that are none
    QList<qsizetype> chain; ///< of changes that wait for each other's names
    RenamePlan plan;
};

/// What a name is looked for by.
QStringView Planner::Key(const QString &name)
{
    if (rules.withCase)
        return name;
    folded.append(name.toCaseFolded());
    return folded.constLast();
}

void Planner::Refuse(qsizetype index, NameProblem problem, const QString &other)
{
    refused.try_emplace(index, RefusedName{Change(index), problem, other});
}

void Planner::TakeNewNames()
{
    for (qsizetype index = 0; index < plan.changes.size(); ++index) {
        const QString &name = Change(index).to;
        if (name == Change(index).from) {
            ordered[index] = true;
            continue;
        }
        if (const auto problem = ProblemOf(name, rules.separator)) {
            Refuse(index, *problem);
            continue;
        }
        const qsizetype taker = takers.PutOrFind(Key(name), index);
        if (taker != index)
            Refuse(index, NameProblem::Meets, Change(taker).from);
    }
}

/// The changes by the names that they leave.
ChangesByName Planner::Leavers()
{
    ChangesByName leavers(plan.changes.size());
    for (qsizetype index = 0; index < plan.changes.size(); ++index) {
        if (!ordered.at(index))
            leavers.PutOrFind(Key(Change(index).from), index);
    }
    return leavers;
}

void Planner::FindHolders()
{
    std::optional<ChangesByName> leavers;
    for (const QString &name : present) {
        const QStringView key = Key(name);
        const qsizetype taker = takers.Find(key);
        if (taker < 0)
            continue;
        // Most runs never come here.
        if (!leavers)
            leavers = Leavers();
        const qsizetype leaver = leavers->Find(key);
        if (leaver < 0)
            Refuse(taker, NameProblem::Taken, name);
        else if (leaver != taker)
            holders[taker] = leaver;
    }
}

void Planner::OrderSteps()
{
    plan.steps.reserve(plan.changes.size());
    for (qsizetype index = 0; index < plan.changes.size(); ++index) {
        if (!ordered.at(index))
            OrderChain(index);
    }
}

void Planner::OrderChain(qsizetype first)
{
    // No name is wanted twice, so what begins here ends somewhere or comes back to its beginning.
    chain.clear();
    qsizetype next = first;
    for (; next >= 0 && !ordered.at(next); next = holders.at(next)) {
        ordered[next] = true;
        chain.append(next);
    }
    const bool isCircle = next == first;
    if (isCircle) {
        plan.aside = FreeName();
        plan.steps.append({first, RenameStep::Aside});
    }
    for (qsizetype last = chain.size() - 1; last > 0; --last)
        plan.steps.append({chain.at(last), RenameStep::Whole});
    plan.steps.append({first, isCircle ? RenameStep::FromAside : RenameStep::Whole});
}

/// A name that no entry has or gets. Each circle gives it back, so one is enough.
QString Planner::FreeName()
{
    const Qt::CaseSensitivity sensitivity = rules.withCase ? Qt::CaseSensitive : Qt::CaseInsensitive;
    QString name = plan.aside;
    for (int number = 1; name.isNull(); ++number) {
        const QString tried = u".rename-%1.tmp"_s.arg(number);
        if (takers.Find(Key(tried)) < 0 && !present.contains(tried, sensitivity))
            name = tried;
    }
    return name;
}

} // namespace

RenamePlan PlanRenames(const QStringList &present, QList<NameChange> wanted, const NameRules &rules)
{
    return Planner(present, std::move(wanted), rules).Plan();
}

} // namespace tressel
