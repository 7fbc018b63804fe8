// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// Two running copies of the program, which share nothing but the file of their settings.

#include "machine/posix/PosixSystemFacts.h"
#include "settings/FileHive.h"
#include "support/StartedProgram.h"
#include "support/TemporaryFolder.h"
#include "support/Text.h"

#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

/// A window on a computer of its own, with the settings of a real disc.
struct OneWindow {
    explicit OneWindow(const QString &folder)
        : hive(folder, facts)
    {
        rest.files.PutFolder(u"C:\\Work"_s);
        rest.files.PutFile(u"C:\\report"_s, "from a report\r\n");
    }
    MainForm &Form() { return application.frmMain(); }
    /// Closed by its user; the program writes down what it holds as its last act.
    void Close()
    {
        EXPECT_THROW(Form().btnGBToolbarExit.UserClicks(), ProcessEnded);
        EXPECT_EQ(hive.FlushAtEnd(), QString());
    }

    MemoryMachine rest;
    PosixSystemFacts facts;
    FileHive hive;
    Application application{rest.With(rest.files, hive)};
};

class TwoWindows : public testing::Test {
protected:
    TwoWindows()
    {
        first.application.settings.Write(keys::ShowTips, u"0"_s);
        first.hive.Flush();
        first.application.Start();
        second.application.Start();
    }

    TemporaryFolder folder;
    OneWindow first{folder.Path()};
    OneWindow second{folder.Path()};
};

TEST_F(TwoWindows, TheLastToCloseWins)
{
    first.Form().area.txtStrtPath.SetText(u"C:\\First"_s);
    second.Form().area.txtStrtPath.SetText(u"C:\\Second"_s);
    second.Close();
    EXPECT_EQ(first.application.settings.ReadText(keys::FilePath), u"C:\\Second"_s);
    first.Close();
    EXPECT_EQ(second.application.settings.ReadText(keys::FilePath), u"C:\\First"_s);
}

TEST_F(TwoWindows, AReportOfTheOneIsOpenedInTheOther)
{
    second.application.settings.Write(keys::ReportFile, u"C:\\report"_s);
    second.application.settings.Flush();
    first.Form().listing.ChckValg.SetChecked(false);
    first.Form().listing.btnGBResult.SetEnabled(true);
    first.Form().listing.btnGBResult.UserClicks();
    EXPECT_EQ(first.Form().area.LstItem.Items(), QStringList{u"from a report"_s});
}

} // namespace
