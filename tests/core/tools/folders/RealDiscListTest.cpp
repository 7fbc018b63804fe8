// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// Lists on the real disc that are no files.

#include "machine/posix/PosixFileSystem.h"
#include "support/StartedProgram.h"
#include "support/TemporaryFolder.h"
#include "support/Text.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

class RealDiscList : public testing::Test {
protected:
    RealDiscList()
    {
        application.settings.Write(keys::ShowTips, u"0"_s);
        machine.program.folder = folder.Path();
        EXPECT_FALSE(files.TryMakeFolder(folder.Path() + u"/Lang"_s));
        files.Open(folder.Path() + u"/Lang/Language.dat"_s, OpenFor::Creating)->Close();
        machine.databases.PutTexts(folder.Path() + u"/data.mdb"_s, u"Products"_s, u"Name"_s, {u"Chair"_s});
    }
    int CountOfEntries() { return application.frmMain().area.LstItem.ListCount(); }

    TemporaryFolder folder;
    MemoryMachine machine;
    PosixFileSystem files;
    Application application{machine.With(files)};
};

TEST_F(RealDiscList, AStoredOneThatIsAPipeHoldsNobodyUp)
{
    ASSERT_EQ(mkfifo(folder.Native("list").constData(), 0600), 0);
    application.settings.Write(keys::LastFile, folder.Path() + u"/list"_s);
    application.Start();
    EXPECT_EQ(application.session.ListFile, folder.Path() + u"/list"_s);
    EXPECT_EQ(CountOfEntries(), 0);
}

TEST_F(RealDiscList, AnEndlessOneIsNone)
{
    application.Start();
    machine.dialogs.ExpectOpenFile(u"/dev/zero"_s, u"/dev"_s);
    machine.dialogs.ExpectBox(u"The list /dev/zero can't be loaded. It is no regular file."_s);
    application.frmMain().textLists.btnGBLoadFile.UserClicks();
    EXPECT_EQ(application.session.ListFile, u"/dev/zero"_s);
    EXPECT_EQ(CountOfEntries(), 0);
}

} // namespace
