// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "ListingFixture.h"

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

/// What a listing tells its watch.
class ListingWatch : public ListingFixture { };

TEST_F(ListingWatch, TellsEachFolderAndFile)
{
    Make();
    EXPECT_EQ(told.lines,
              (QStringList{u"started -1"_s, u"next D:\\Music"_s, u"searched D:\\Music"_s,
                           u"found D:\\Music\\a.mp3"_s, u"found D:\\Music\\b.mp3"_s,
                           u"found "_s + ReportPath(), u"next D:\\Music\\Live"_s,
                           u"searched D:\\Music\\Live"_s, u"found D:\\Music\\Live\\c.mp3"_s}));
}

TEST_F(ListingWatch, TellsOfABlockThatCannotBeWritten)
{
    machine.files.FailAt(Operation::WriteBytes, ReportPath(), 2, FailureNumber::DiskFull);
    Make();
    EXPECT_EQ(told.Of(u"failed"_s), QStringList{ReportPath() + u" 61"_s});
}

TEST_F(ListingWatch, TellsOfTheFailureThatEndsTheRun)
{
    machine.files.FailAt(Operation::OpenForWriting, ReportPath(), 0, FailureNumber::DiskNotReady);
    ExpectFailureBox(u"71, Disk not ready"_s);
    Make();
    EXPECT_EQ(told.lines, (QStringList{u"started -1"_s, u"failed "_s + ReportPath() + u" 71"_s}));
}

TEST_F(ListingWatch, TellsOfTheReportThatMayNotBeWritten)
{
    machine.files.FailAt(Operation::OpenForWriting, ReportPath(), 1, FailureNumber::PermissionDenied);
    machine.dialogs.ExpectBox(u"NB! Report is saved on C:\\List-01 2004-03-31.txt"_s);
    Make();
    EXPECT_EQ(told.Of(u"failed"_s).value(0), ReportPath() + u" 70"_s);
}

TEST_F(ListingWatch, TellsAFolderThatCannotBeReadAndOneThatIsNotThere)
{
    machine.files.FailAt(Operation::List, u"D:\\Music\\Live"_s, 0, FailureNumber::PathFileAccessError);
    Make();
    EXPECT_EQ(told.Of(u"failed"_s), QStringList{u"D:\\Music\\Live 75"_s});
    told.lines.clear();
    machine.files.FailAt(Operation::List, u"D:\\Music"_s, 0, FailureNumber::PathNotFound);
    Make();
    EXPECT_EQ(told.Of(u"not there"_s), QStringList{u"D:\\Music"_s});
}

} // namespace
