// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "Command.h"
#include "CommandStage.h"

#include <csignal>
#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

class Series : public CommandStage {
protected:
    Series() { memory.files.PutFolder(u"C:\\Work\\w"_s); }

    Ended Act(const QString &act, const QString &from, const QString &to, const QStringList &more = {})
    {
        return Run(QStringList{u"series"_s, act, u"--in"_s, u"w"_s, u"--base"_s, u"Disk"_s, u"--from"_s, from,
                               u"--to"_s, to}
                   + more);
    }
    QStringList Made() { return Below(u"C:\\Work\\w"_s); }
};

TEST_F(Series, FoldersAreMadeAndGoAgain)
{
    memory.files.PutFile(u"C:\\Work\\w\\stays"_s);
    EXPECT_EQ(Act(u"make"_s, u"8"_s, u"10"_s).out, "made 3, already there 0, failed 0\n");
    EXPECT_EQ(Act(u"make"_s, u"8"_s, u"11"_s).out, "made 1, already there 3, failed 0\n");
    memory.files.PutFile(u"C:\\Work\\w\\Disk09\\file"_s);
    EXPECT_EQ(Act(u"delete"_s, u"08"_s, u"12"_s).out, "removed 3, kept 1, not there 1, failed 0\n");
    EXPECT_EQ(Made(), (QStringList{u"Disk09\\"_s, u"Disk09\\file"_s, u"stays"_s}));
}

TEST_F(Series, AFolderThatCannotBeLookedAtIsNotTakenForOneThatIsNotThere)
{
    memory.files.PutFile(u"C:\\Work\\w\\Disk1\\file"_s);
    memory.files.FailAt(Operation::Status, u"C:\\Work\\w\\Disk1"_s, 0, FailureNumber::DeviceIoError);
    const Ended ended = Act(u"delete"_s, u"1"_s, u"2"_s);
    EXPECT_EQ(ended.status, SomethingFailed);
    EXPECT_EQ(ended.out, "removed 0, kept 0, not there 1, failed 1\n");
    EXPECT_EQ(ended.err, "tressel-cli: C:\\Work\\w\\Disk1: Path/File access error\n");
}

TEST_F(Series, PathWithTwoDotsLeavesTheFolderItWasRunInAlone)
{
    memory.files.PutFolder(u"C:\\Work\\a"_s);
    memory.files.PutFolder(u"C:\\Work\\w\\Disk1"_s);
    memory.files.PutFile(u"C:\\Work\\w\\stays"_s);
    workingFolder = u"C:\\Work\\a"_s;
    const Ended ended = Run({u"series"_s, u"delete"_s, u"--in"_s, u"..\\w"_s, u"--base"_s, u"Disk"_s,
                             u"--from"_s, u"1"_s, u"--to"_s, u"2"_s});
    EXPECT_EQ(ended.out, "removed 1, kept 0, not there 1, failed 0\n");
    EXPECT_EQ(Below(u"C:\\Work"_s), (QStringList{u"a\\"_s, u"w\\"_s, u"w\\stays"_s}));
}

TEST_F(Series, DryRunOfMakingNamesEachFolderOnce)
{
    memory.files.PutFolder(u"C:\\Work\\w\\Disk\\In2"_s);
    const Ended dry =
        Act(u"make"_s, u"1"_s, u"3"_s, {u"--sub"_s, u"In"_s, u"--number-sub"_s, u"--dry-run"_s});
    EXPECT_EQ(dry.out, "make C:\\Work\\w\\Disk\\In1\nmake C:\\Work\\w\\Disk\\In3\n");
    EXPECT_EQ(dry.err, "would have made 2, already there 1, failed 0\n");
    EXPECT_EQ(Changes(), 0);
}

TEST_F(Series, DryRunOfDeletingSaysWhatARunDoes)
{
    for (const QString &folder : {u"Disk1"_s, u"Disk2\\In"_s, u"Disk3\\In"_s})
        memory.files.PutFolder(u"C:\\Work\\w\\"_s + folder);
    memory.files.PutFile(u"C:\\Work\\w\\Disk3\\In\\file"_s);
    const Ended dry = Act(u"delete"_s, u"1"_s, u"4"_s, {u"--sub"_s, u"In"_s, u"--dry-run"_s});
    EXPECT_EQ(dry.out, "remove C:\\Work\\w\\Disk1\nremove C:\\Work\\w\\Disk2\\In\n");
    EXPECT_EQ(dry.err, "would have removed 2, kept 1, not there 2, failed 0\n");
    EXPECT_EQ(Changes(), 0);
    EXPECT_EQ(Act(u"delete"_s, u"1"_s, u"4"_s, {u"--sub"_s, u"In"_s}).out,
              "removed 2, kept 1, not there 2, failed 0\n");
}

TEST_F(Series, DryRunKnowsThatEmptyParentsGoOneANumber)
{
    memory.files.PutFolder(u"C:\\Work\\w\\x\\y"_s);
    memory.files.PutFile(u"C:\\Work\\stays"_s);
    const QStringList words{u"series"_s, u"delete"_s, u"--in"_s, u"w\\x\\y"_s, u"--base"_s,
                            u"D"_s,      u"--from"_s, u"1"_s,    u"--to"_s,    u"2"_s};
    EXPECT_EQ(Run(words + QStringList{u"--dry-run"_s}).out,
              "remove C:\\Work\\w\\x\\y\nremove C:\\Work\\w\\x\n");
    EXPECT_EQ(Run(words).out, "removed 2, kept 0, not there 2, failed 0\n");
    EXPECT_EQ(Below(u"C:\\Work"_s), (QStringList{u"stays"_s, u"w\\"_s}));
}

TEST_F(Series, EachFailureIsNamedAlsoWhereItIsQuiet)
{
    memory.files.PutFile(u"C:\\Work\\w\\Disk2"_s, "precious");
    const Ended made = Act(u"make"_s, u"1"_s, u"2"_s, {u"--quiet"_s});
    EXPECT_EQ(made.out, "");
    EXPECT_EQ(made.err, "tressel-cli: C:\\Work\\w\\Disk2: Something that is no folder is in its place\n");
    EXPECT_EQ(made.status, SomethingFailed);
    const Ended removed = Act(u"delete"_s, u"1"_s, u"2"_s);
    EXPECT_EQ(removed.err, "tressel-cli: C:\\Work\\w\\Disk2: It is no folder\n");
    EXPECT_EQ(removed.out, "removed 1, kept 0, not there 0, failed 1\n");
}

TEST_F(Series, FolderThatIsRefusedFails)
{
    memory.files.PutFolder(u"C:\\Work\\w\\Disk1"_s);
    memory.files.FailAt(Operation::RemoveFolder, u"C:\\Work\\w\\Disk1"_s, 1,
                        FailureNumber::PathFileAccessError);
    const Ended ended = Act(u"delete"_s, u"1"_s, u"1"_s);
    EXPECT_EQ(ended.err, "tressel-cli: C:\\Work\\w\\Disk1: Path/File access error\n");
    EXPECT_EQ(ended.status, SomethingFailed);
}

TEST_F(Series, TextsThatLeadOutOrCannotBeNamesAreRefused)
{
    const QString tooLong(256, u'x');
    for (const QString &text : {u"..\\Disk"_s, u"a\\..\\..\\b"_s, tooLong}) {
        for (const QString &act : {u"make"_s, u"delete"_s}) {
            const Ended ended = Act(act, u"1"_s, u"2"_s, {u"--sub"_s, text});
            EXPECT_EQ(ended.status, SomethingFailed);
            EXPECT_TRUE(ended.err.startsWith("tressel-cli: " + text.toUtf8() + ": It "));
        }
    }
    EXPECT_EQ(Changes(), 0);
}

TEST_F(Series, PlantedLinkIsNotGoneThrough)
{
    memory.files.PutFolder(u"C:\\Else\\In"_s);
    memory.files.PutLink(u"C:\\Work\\w\\Disk1"_s, u"C:\\Else"_s);
    EXPECT_EQ(Act(u"delete"_s, u"1"_s, u"1"_s, {u"--sub"_s, u"In"_s}).out.left(10), "removed 0,");
    EXPECT_EQ(Act(u"make"_s, u"1"_s, u"1"_s, {u"--sub"_s, u"New"_s}).status, SomethingFailed);
    EXPECT_EQ(Below(u"C:\\Else"_s), QStringList{u"In\\"_s});
}

TEST_F(Series, MissingFolderIsNamed)
{
    const Ended ended =
        Run({u"series"_s, u"make"_s, u"--in"_s, u"none"_s, u"--base="_s, u"--from=1"_s, u"--to=2"_s});
    EXPECT_EQ(ended.err, "tressel-cli: C:\\Work\\none: It is no folder for a series to stand in\n");
    EXPECT_EQ(ended.status, SomethingFailed);
    EXPECT_EQ(Changes(), 0);
}

TEST_F(Series, SignalIsTakenBetweenTwoNumbers)
{
    stops.signal = SIGINT;
    stops.after = 3;
    const Ended ended = Act(u"make"_s, u"1"_s, u"9"_s);
    EXPECT_EQ(ended.status, 130);
    EXPECT_EQ(ended.out, "made " + QByteArray::number(Made().size()) + ", already there 0, failed 0\n");
    EXPECT_LT(Made().size(), 9);
}

TEST_F(Series, WrongUsageIsTold)
{
    const QStringList whole{u"series"_s, u"make"_s, u"--in=w"_s, u"--base=B"_s, u"--from=1"_s, u"--to=2"_s};
    for (int missing = 1; missing < whole.size(); ++missing) {
        QStringList words = whole;
        words.removeAt(missing);
        EXPECT_EQ(Run(words).status, WrongUsage) << words.join(u' ').toStdString();
    }
    const QStringList open{u"series"_s, u"make"_s, u"--in=w"_s, u"--base=B"_s};
    const QList<QStringList> rests = {
        {u"--from=x"_s, u"--to=2"_s},
        {u"--from=1"_s, u"--to="_s},
        {u"--from=-1"_s, u"--to=2"_s},
        {u"--from=1.5"_s, u"--to=2"_s},
        {u"--from=1"_s, u"--to=99999999999"_s, u"--digits=1"_s},
        {u"--from=3"_s, u"--to=2"_s},
        {u"--from=1"_s, u"--to=10000"_s},
        {u"--from=1"_s, u"--to=00002"_s, u"--digits=auto"_s},
        {u"--from=1"_s, u"--to=2"_s, u"--digits=5"_s},
        {u"--from=1"_s, u"--to=2"_s, u"--digits=0"_s},
        {u"--from=1"_s, u"--to=2"_s, u"--number-sub"_s},
        {u"--from=1"_s, u"--to=2"_s, u"rest"_s},
    };
    for (const QStringList &rest : rests)
        EXPECT_EQ(Run(open + rest).status, WrongUsage) << rest.join(u' ').toStdString();
    EXPECT_EQ(Changes(), 0);
}

TEST_F(Series, DoubledOptionSaysSo)
{
    EXPECT_EQ(Act(u"make"_s, u"1"_s, u"2"_s, {u"--from"_s, u"2"_s}).err,
              "tressel-cli: --from is given twice (see tressel-cli series --help)\n");
    EXPECT_EQ(Act(u"make"_s, u"1"_s, u"2"_s, {u"--in=w"_s}).err,
              "tressel-cli: --in is given twice (see tressel-cli series --help)\n");
}

} // namespace
