// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/rename/RenamePlan.h"

#include "support/Text.h"

#include <gtest/gtest.h>
#include <ostream>

namespace tressel {

void PrintTo(const RefusedName &refused, std::ostream *out)
{
    *out << refused.change.from.toStdString() << " -> " << refused.change.to.toStdString() << " problem "
         << static_cast<int>(refused.problem) << ' ' << refused.other.toStdString();
}

} // namespace tressel

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

const NameRules withCase{u'/', true};
const NameRules withoutCase{u'\\', false};

/// The steps as "a -> b", and " (aside)" behind one to a name for the time being.
QStringList Steps(const RenamePlan &plan)
{
    QStringList steps;
    for (const RenameStep &step : plan.steps) {
        steps += plan.From(step) + u" -> "_s + plan.To(step);
        if (step.way == RenameStep::Aside)
            steps.last() += u" (aside)"_s;
    }
    return steps;
}

/// A plan for a folder that holds nothing but what is to change.
RenamePlan PlanAlone(const QList<NameChange> &wanted, const NameRules &rules = withCase)
{
    QStringList present;
    for (const NameChange &change : wanted)
        present += change.from;
    return PlanRenames(present, wanted, rules);
}

TEST(RenamePlan, NamesThatDontChangeAreNoPartOfIt)
{
    const RenamePlan plan = PlanAlone({{u"a"_s, u"a"_s}, {u"b"_s, u"c"_s}});
    EXPECT_EQ(Steps(plan), QStringList{u"b -> c"_s});
    EXPECT_TRUE(plan.refused.isEmpty());
}

TEST(RenamePlan, AChainStartsAtItsEnd)
{
    const RenamePlan plan = PlanAlone({{u"a"_s, u"aa"_s}, {u"aa"_s, u"aaaa"_s}, {u"aaaa"_s, u"x"_s}});
    EXPECT_EQ(Steps(plan), (QStringList{u"aaaa -> x"_s, u"aa -> aaaa"_s, u"a -> aa"_s}));
}

TEST(RenamePlan, AChainMetFromItsMiddleIsOrderedOnce)
{
    const RenamePlan plan = PlanAlone({{u"b"_s, u"c"_s}, {u"a"_s, u"b"_s}});
    EXPECT_EQ(Steps(plan), (QStringList{u"b -> c"_s, u"a -> b"_s}));
}

TEST(RenamePlan, ACircleGoesByANameForTheTimeBeing)
{
    const RenamePlan plan = PlanAlone({{u"a"_s, u"b"_s}, {u"b"_s, u"c"_s}, {u"c"_s, u"a"_s}});
    EXPECT_EQ(
        Steps(plan),
        (QStringList{u"a -> .rename-1.tmp (aside)"_s, u"c -> a"_s, u"b -> c"_s, u".rename-1.tmp -> b"_s}));
}

TEST(RenamePlan, TheNameForTheTimeBeingIsNobodys)
{
    const QStringList present{u"a"_s, u"b"_s, u"x"_s, u".rename-1.tmp"_s};
    const RenamePlan plan =
        PlanRenames(present, {{u"a"_s, u"b"_s}, {u"b"_s, u"a"_s}, {u"x"_s, u".rename-2.tmp"_s}}, withCase);
    EXPECT_EQ(Steps(plan).value(0), u"a -> .rename-3.tmp (aside)"_s);
}

TEST(RenamePlan, TwoThatWouldMeetAreRefused)
{
    const RenamePlan plan =
        PlanAlone({{u"a.jpg"_s, u"a.gif"_s}, {u"a.png"_s, u"a.gif"_s}, {u"b.jpg"_s, u"b.gif"_s}});
    EXPECT_TRUE(plan.steps.isEmpty());
    EXPECT_EQ(plan.refused, (QList<RefusedName>{{{u"a.png"_s, u"a.gif"_s}, NameProblem::Meets, u"a.jpg"_s}}));
}

TEST(RenamePlan, ANameThatAnotherKeepsIsRefused)
{
    const RenamePlan plan = PlanRenames({u"a"_s, u"b"_s}, {{u"a"_s, u"b"_s}}, withCase);
    EXPECT_EQ(plan.refused, (QList<RefusedName>{{{u"a"_s, u"b"_s}, NameProblem::Taken, u"b"_s}}));
    const RenamePlan kept = PlanAlone({{u"a"_s, u"b"_s}, {u"b"_s, u"b"_s}});
    EXPECT_EQ(kept.refused, (QList<RefusedName>{{{u"a"_s, u"b"_s}, NameProblem::Taken, u"b"_s}}));
}

TEST(RenamePlan, NamesThatCantBe)
{
    const QString half(QChar(char16_t(0xD800)));
    const QList<std::pair<QString, NameProblem>> rows{
        {u""_s, NameProblem::Empty},
        {u"."_s, NameProblem::Dots},
        {u".."_s, NameProblem::Dots},
        {u"a/b"_s, NameProblem::HasSeparator},
        {QString(256, u'x'), NameProblem::TooLong},
        {QString(128, u'é'), NameProblem::TooLong},
        {u"a"_s + half, NameProblem::NotText},
    };
    for (const auto &[name, problem] : rows) {
        const RenamePlan plan = PlanAlone({{u"old"_s, name}});
        EXPECT_EQ(plan.refused, (QList<RefusedName>{{{u"old"_s, name}, problem, {}}}));
        EXPECT_TRUE(plan.steps.isEmpty());
    }
}

TEST(RenamePlan, NamesThatCanJustBe)
{
    const QString oddBytes(255, QChar(char16_t(0xDCFF)));
    for (const QString &name : {u"..."_s, u"a\\b"_s, QString(255, u'x'), QString(127, u'é'), oddBytes}) {
        const RenamePlan plan = PlanAlone({{u"old"_s, name}});
        EXPECT_TRUE(plan.refused.isEmpty()) << name.toStdString();
        EXPECT_EQ(Steps(plan), QStringList{u"old -> "_s + name});
    }
}

TEST(RenamePlan, EveryReasonIsTold)
{
    const RenamePlan plan = PlanRenames({u"a"_s, u"b"_s, u"c"_s, u"d"_s},
                                        {{u"a"_s, u""_s}, {u"b"_s, u"d"_s}, {u"c"_s, u"d"_s}}, withCase);
    EXPECT_EQ(plan.refused,
              (QList<RefusedName>{{{u"a"_s, u""_s}, NameProblem::Empty, {}},
                                  {{u"b"_s, u"d"_s}, NameProblem::Taken, u"d"_s},
                                  {{u"c"_s, u"d"_s}, NameProblem::Meets, u"b"_s}}));
}

TEST(RenamePlan, CaseTellsNamesApartOnlyWhereItDoes)
{
    EXPECT_EQ(Steps(PlanAlone({{u"a"_s, u"A"_s}}, withoutCase)), QStringList{u"a -> A"_s});
    EXPECT_EQ(PlanRenames({u"a"_s, u"B"_s}, {{u"a"_s, u"b"_s}}, withoutCase).refused,
              (QList<RefusedName>{{{u"a"_s, u"b"_s}, NameProblem::Taken, u"B"_s}}));
    EXPECT_TRUE(PlanRenames({u"a"_s, u"B"_s}, {{u"a"_s, u"b"_s}}, withCase).refused.isEmpty());
    EXPECT_EQ(PlanAlone({{u"x"_s, u"N"_s}, {u"y"_s, u"n"_s}}, withoutCase).refused,
              (QList<RefusedName>{{{u"y"_s, u"n"_s}, NameProblem::Meets, u"x"_s}}));
    EXPECT_EQ(Steps(PlanAlone({{u"a"_s, u"B"_s}, {u"b"_s, u"c"_s}}, withoutCase)),
              (QStringList{u"b -> c"_s, u"a -> B"_s}));
}

TEST(RenamePlan, AHundredThousandNamesInOneChain)
{
    constexpr int count = 100'000;
    QList<NameChange> wanted;
    for (int number = 0; number < count; ++number)
        wanted.append({QString::number(number), QString::number(number + 1)});
    const RenamePlan plan = PlanAlone(wanted);
    ASSERT_EQ(plan.steps.size(), count);
    EXPECT_EQ(Steps(plan).first(), u"99999 -> 100000"_s);
    EXPECT_EQ(Steps(plan).last(), u"0 -> 1"_s);
}

} // namespace
