// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "support/Failures.h"
#include "support/MemoryMachine.h"
#include "support/Text.h"
#include "tools/dialogs/BrowseForFolder.h"
#include "tools/dialogs/OpenDialog.h"

#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

TEST(BrowseForFolder, TrailingSeparatorMakesNoDifference)
{
    MemoryMachine memory;
    memory.dialogs.ExpectChooseFolder(u"C:\\Work"_s);
    memory.dialogs.ExpectChooseFolder(u"C:\\Work"_s);
    memory.dialogs.ExpectChooseFolder(u"C:\\"_s);
    EXPECT_EQ(BrowseForFolder(memory.dialogs, memory.files, u"Where?"_s, u"C:\\Work\\"_s), u"C:\\Work"_s);
    EXPECT_EQ(BrowseForFolder(memory.dialogs, memory.files, u"Where?"_s, u"C:\\Work"_s), u"C:\\Work"_s);
    EXPECT_EQ(BrowseForFolder(memory.dialogs, memory.files, u"Where?"_s, u"C:\\"_s), u"C:\\"_s);
    EXPECT_EQ(memory.dialogs.StartFolders(), QStringList({u"C:\\Work"_s, u"C:\\Work"_s, u"C:"_s}));
}

TEST(BrowseForFolder, EmptyTitleAsksForAFolder)
{
    MemoryMachine memory;
    memory.dialogs.ExpectChooseFolder(std::nullopt);
    EXPECT_EQ(BrowseForFolder(memory.dialogs, memory.files, {}, {}), QString());
    EXPECT_EQ(memory.journal.About(u"ChooseFolder"_s), QStringList({u"Please, Select a folder."_s}));
    EXPECT_EQ(memory.dialogs.StartFolders(), QStringList({QString()}));
}

TEST(BrowseForFolder, CancelGivesTheEmptyText)
{
    MemoryMachine memory;
    memory.dialogs.ExpectChooseFolder(std::nullopt);
    EXPECT_TRUE(BrowseForFolder(memory.dialogs, memory.files, u"Where?"_s, u"C:\\Work"_s).isEmpty());
}

TEST(BrowseForFolder, AStartPathBeyondSixteenBitsFails)
{
    MemoryMachine memory;
    EXPECT_EQ(
        NumberThrownBy([&] { BrowseForFolder(memory.dialogs, memory.files, {}, QString(32768, u'x')); }),
        FailureNumber::Overflow);
}

TEST(ShowOpenDialog, OneFileIsSplitIntoFolderAndName)
{
    MemoryMachine memory;
    memory.dialogs.ExpectOpenFile(u"C:\\Work\\a.txt"_s, u"C:\\Work"_s);
    OpenFileRequest request{u"All Files (*.*)|*.*"_s, u"C:\\Work"_s, 4100};
    const OpenFileResult result = ShowOpenDialog(memory.dialogs, memory.files, request, true);
    EXPECT_EQ(result.Count, 1);
    EXPECT_FALSE(result.Cancelled);
    EXPECT_EQ(result.Path, u"C:\\Work\\"_s);
    EXPECT_EQ(result.Path + result.Files(1), u"C:\\Work\\a.txt"_s);
    EXPECT_EQ(request.Flags, 0x382204);

    const FileDialogRequest &asked = memory.dialogs.FileRequests().constFirst();
    EXPECT_EQ(asked.folder, u"C:\\Work"_s);
    EXPECT_EQ(asked.filter, u"All Files (*.*)|*.*"_s);
    EXPECT_TRUE(asked.several);
    EXPECT_TRUE(asked.centreOnOwner);
}

TEST(ShowOpenDialog, SeveralFilesKeepTheirOrder)
{
    MemoryMachine memory;
    memory.dialogs.ExpectOpenFile(FileDialogAnswer{{u"C:\\b"_s, u"C:\\a"_s}, u"C:\\"_s});
    OpenFileRequest request;
    const OpenFileResult result = ShowOpenDialog(memory.dialogs, memory.files, request, false);
    EXPECT_EQ(result.Path, u"C:\\"_s);
    EXPECT_EQ(result.Count, 2);
    EXPECT_EQ(result.Files(1), u"b"_s);
    EXPECT_EQ(result.Files(2), u"a"_s);
    EXPECT_EQ(NumberThrownBy([&] { static_cast<void>(result.Files(3)); }),
              FailureNumber::SubscriptOutOfRange);
    EXPECT_FALSE(memory.dialogs.FileRequests().constFirst().centreOnOwner);
}

TEST(ShowOpenDialog, CancelCountsNothing)
{
    MemoryMachine memory;
    memory.dialogs.ExpectOpenFile(std::nullopt);
    OpenFileRequest request;
    const OpenFileResult result = ShowOpenDialog(memory.dialogs, memory.files, request, true);
    EXPECT_TRUE(result.Cancelled);
    EXPECT_EQ(result.Count, 0);
    EXPECT_TRUE(result.Path.isEmpty());
}

TEST(ShowOpenDialog, TwoHundredNamesFit)
{
    MemoryMachine memory;
    FileDialogAnswer answer;
    for (int number = 1; number <= 200; ++number)
        answer.paths += u"C:\\f%1"_s.arg(number);
    memory.dialogs.ExpectOpenFile(answer);
    answer.paths += u"C:\\f201"_s;
    memory.dialogs.ExpectOpenFile(answer);
    OpenFileRequest request;
    EXPECT_EQ(ShowOpenDialog(memory.dialogs, memory.files, request, true).Count, 200);
    EXPECT_EQ(NumberThrownBy([&] { ShowOpenDialog(memory.dialogs, memory.files, request, true); }),
              FailureNumber::SubscriptOutOfRange);
}
