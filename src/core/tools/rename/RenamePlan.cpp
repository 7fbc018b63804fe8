// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/rename/RenamePlan.h"

#include "machine/NameText.h"

#include <QHash>

#include <array>
#include <map>
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

/// A name to look up. The number goes first where two are compared, since most names differ in it.
struct NameKey {
    explicit NameKey(QStringView text)
        : name(text)
        , number(qHash(text))
    {
    }
    bool operator==(const NameKey &other) const { return number == other.number && name == other.name; }

    QStringView name;
    size_t number;
};

size_t qHash(const NameKey &key, size_t seed)
{
    return key.number ^ seed;
}

/// Its arguments must outlive it: the keys of names are views of them.
class Planner {
public:
    Planner(const QStringList &presentNames, const QList<NameChange> &wanted, const NameRules &nameRules)
        : rules(nameRules)
        , present(presentNames)
        , changes(wanted)
        , holders(wanted.size(), -1)
        , ordered(wanted.size(), false)
    {
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
    /// The first change to a name.
    struct Taker {
        qsizetype change = -1;
    };

    NameKey Key(const QString &name);
    QHash<NameKey, qsizetype> Leavers();
    void TakeNewNames();
    void FindHolders();
    void Refuse(qsizetype index, NameProblem problem, const QString &other = {});
    void OrderSteps();
    void OrderChain(qsizetype first);
    QString FreeName();

    NameRules rules;
    const QStringList &present;
    const QList<NameChange> &changes;
    QStringList folded; ///< what keys are views of where names are told apart without case
    QHash<NameKey, Taker> takers; ///< by the names that they take
    QList<qsizetype> holders; ///< for each change, which other one leaves its new name; -1 for none
    std::map<qsizetype, RefusedName> refused; ///< by the numbers of their changes
    QList<bool> ordered; ///< changes whose steps stand in the plan, or that are none
    QList<qsizetype> chain; ///< of changes that wait for each other's names
    QString freeName;
    RenamePlan plan;
};

NameKey Planner::Key(const QString &name)
{
    if (rules.withCase)
        return NameKey(name);
    folded.append(name.toCaseFolded());
    return NameKey(folded.constLast());
}

void Planner::Refuse(qsizetype index, NameProblem problem, const QString &other)
{
    refused.try_emplace(index, RefusedName{changes.at(index), problem, other});
}

void Planner::TakeNewNames()
{
    takers.reserve(changes.size());
    for (qsizetype index = 0; index < changes.size(); ++index) {
        const QString &name = changes.at(index).to;
        if (name == changes.at(index).from) {
            ordered[index] = true;
            continue;
        }
        if (const auto problem = ProblemOf(name, rules.separator)) {
            Refuse(index, *problem);
            continue;
        }
        Taker &taker = takers[Key(name)];
        if (taker.change < 0)
            taker.change = index;
        else
            Refuse(index, NameProblem::Meets, changes.at(taker.change).from);
    }
}

/// The changes by the names that they leave.
QHash<NameKey, qsizetype> Planner::Leavers()
{
    QHash<NameKey, qsizetype> leavers;
    leavers.reserve(changes.size());
    for (qsizetype index = 0; index < changes.size(); ++index) {
        if (!ordered.at(index))
            leavers.insert(Key(changes.at(index).from), index);
    }
    return leavers;
}

void Planner::FindHolders()
{
    QHash<NameKey, qsizetype> leavers;
    for (const QString &name : present) {
        const NameKey key = Key(name);
        const auto taker = takers.constFind(key);
        if (taker == takers.cend())
            continue;
        // Most runs never come here.
        if (leavers.isEmpty())
            leavers = Leavers();
        const qsizetype leaver = leavers.value(key, -1);
        if (leaver < 0)
            Refuse(taker->change, NameProblem::Taken, name);
        else if (leaver != taker->change)
            holders[taker->change] = leaver;
    }
}

void Planner::OrderSteps()
{
    plan.steps.reserve(changes.size());
    for (qsizetype index = 0; index < changes.size(); ++index) {
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
    const QString aside = next == first ? FreeName() : QString();
    if (!aside.isNull())
        plan.steps.append({{changes.at(first).from, aside}, true});
    for (qsizetype last = chain.size() - 1; last > 0; --last)
        plan.steps.append({changes.at(chain.at(last)), false});
    plan.steps.append({aside.isNull() ? changes.at(first) : NameChange{aside, changes.at(first).to}, false});
}

/// A name that no entry has or gets. Each circle gives it back, so one is enough.
QString Planner::FreeName()
{
    const Qt::CaseSensitivity sensitivity = rules.withCase ? Qt::CaseSensitive : Qt::CaseInsensitive;
    for (int number = 1; freeName.isNull(); ++number) {
        const QString name = u".rename-%1.tmp"_s.arg(number);
        if (!takers.contains(Key(name)) && !present.contains(name, sensitivity))
            freeName = name;
    }
    return freeName;
}

} // namespace

RenamePlan PlanRenames(const QStringList &present, const QList<NameChange> &wanted, const NameRules &rules)
{
    return Planner(present, wanted, rules).Plan();
}

} // namespace tressel
