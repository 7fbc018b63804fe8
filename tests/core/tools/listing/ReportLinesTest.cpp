// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/listing/ReportLines.h"

#include "support/Text.h"

#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

const ReportStyle asReport{false, true};
const ReportStyle asList{false, false};
const ReportStyle foldersAlone{true, true};

QList<FolderEntry> Entries()
{
    FolderEntry file;
    file.name = u"a.mp3"_s;
    FolderEntry folder;
    folder.name = u"Live"_s;
    folder.kind = EntryKind::Folder;
    FolderEntry link;
    link.name = u"z"_s;
    link.kind = EntryKind::Link;
    return {file, folder, link};
}

TEST(ReportLines, ABlockHasThePathAndTheFilesBetweenTwoBlankLines)
{
    EXPECT_EQ(ReportBlock(u"D:\\Music"_s, Entries(), asReport),
              (QStringList{u" "_s, u"D:\\Music"_s, u"   a.mp3"_s, u"   z"_s, u" "_s}));
    EXPECT_EQ(ReportBlock(u"D:\\Music"_s, Entries(), asList),
              (QStringList{u" "_s, u"D:\\Music"_s, u"a.mp3"_s, u"z"_s, u" "_s}));
    EXPECT_EQ(ReportBlock(u"D:\\Empty"_s, {}, asReport), (QStringList{u" "_s, u"D:\\Empty"_s, u" "_s}));
}

TEST(ReportLines, AFolderAloneIsOneLineWithABlankBehind)
{
    EXPECT_EQ(ReportBlock(u"D:\\Music"_s, Entries(), foldersAlone), QStringList{u"D:\\Music "_s});
}

TEST(ReportLines, OnlyAReportOfNamesHasAHeader)
{
    EXPECT_EQ(ReportHeader(asReport),
              (QStringList{u"************************"_s, u" Start Of File Listing: "_s,
                           u"************************"_s}));
    EXPECT_TRUE(ReportHeader(asList).isEmpty());
    EXPECT_TRUE(ReportHeader(foldersAlone).isEmpty());
}

} // namespace
