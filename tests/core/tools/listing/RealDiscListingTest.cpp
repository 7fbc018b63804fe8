// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// Listings of the real disc: trees of a size and depth that the memory machine has no limits for.

#include "ListingFixture.h"
#include "machine/Paths.h"
#include "machine/posix/PosixFileSystem.h"
#include "support/TemporaryFolder.h"

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

class RealDiscListingTest : public testing::Test {
protected:
    RealDiscListingTest()
    {
        machine.program.writableFolder = folder.Path();
        tool.page.CboFilePath.SetText(folder.Path());
        tool.page.ChckValg.SetChecked(true);
    }

    /// Makes a run and gives the lines of its report.
    QList<QByteArray> ReportLines()
    {
        tool.page.btnGBMakeList.UserClicks();
        QFile report(tool.page.txtReport.Text());
        EXPECT_TRUE(report.open(QIODevice::ReadOnly));
        QList<QByteArray> lines = report.readAll().split('\n');
        lines.removeLast();
        return lines;
    }

    TemporaryFolder folder;
    PosixFileSystem files;
    MemoryMachine machine;
    ListingTool tool{machine.With(files)};
};

TEST_F(RealDiscListingTest, ATreeOfTwoThousandLevels)
{
    constexpr int levels = 2000;
    int parent = open(folder.Native("").constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    for (int level = 0; level < levels; ++level) {
        ASSERT_EQ(mkdirat(parent, "level", 0755), 0);
        const int child = openat(parent, "level", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        close(parent);
        parent = child;
    }
    close(openat(parent, "deepest", O_WRONLY | O_CREAT | O_CLOEXEC, 0644));
    close(parent);

    const QList<QByteArray> lines = ReportLines();
    EXPECT_EQ(lines.count(" \r"), 2 * (levels + 1));
    EXPECT_EQ(lines.at(lines.size() - 2), "   deepest\r");
    const QByteArray deepestFolder = folder.Path().toUtf8() + QByteArray("/level").repeated(levels) + '\r';
    EXPECT_EQ(lines.at(lines.size() - 3), deepestFolder);
}

TEST_F(RealDiscListingTest, AHundredThousandFilesInOneFolderSortedByName)
{
    constexpr int count = 100'000;
    const int parent = open(folder.Native("").constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    // Links are quicker to make than files and are listed in the same way.
    for (int number = 0; number < count; ++number) {
        const QByteArray name = QByteArray::number(number).rightJustified(6, '0');
        ASSERT_EQ(symlinkat("nowhere", parent, name.constData()), 0);
    }
    close(parent);

    const QList<QByteArray> lines = ReportLines();
    ASSERT_EQ(lines.size(), 3 + 2 + count + 1 + 1);
    EXPECT_EQ(lines.at(5), "   000000\r");
    EXPECT_EQ(lines.at(count + 4), "   099999\r");
    EXPECT_EQ(lines.at(count + 5), "   List-01 2004-03-31.txt\r");
    EXPECT_EQ(machine.events.Calls(), count + 1);
}

TEST_F(RealDiscListingTest, ALoopOfLinksEnds)
{
    ASSERT_EQ(symlink(".", folder.Native("self").constData()), 0);
    ASSERT_EQ(symlink("..", folder.Native("up").constData()), 0);
    EXPECT_EQ(ReportLines().count(" \r"), 2);
}

TEST_F(RealDiscListingTest, APipeInTheReportsPlaceHoldsNobodyUp)
{
    ReportLines();
    const QByteArray path = QFile::encodeName(tool.page.txtReport.Text());
    ASSERT_EQ(unlink(path.constData()), 0);
    ASSERT_EQ(mkfifo(path.constData(), 0600), 0);
    machine.dialogs.ExpectBox(u"NB! Report is saved on /List-01 2004-03-31.txt"_s);
    tool.page.btnGBMakeList.UserClicks();
    struct stat status = {};
    ASSERT_EQ(lstat(path.constData(), &status), 0);
    EXPECT_TRUE(S_ISFIFO(status.st_mode));
    EXPECT_FALSE(QFile::exists(u"/List-01 2004-03-31.txt"_s));
}

TEST_F(RealDiscListingTest, NamesOfAnyBytesComeOutAsTheyAre)
{
    const QByteArray name = "caf\xE9 \xFF";
    close(open(folder.Native(name).constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0644));
    ASSERT_EQ(mkdir(folder.Native("d" + name).constData(), 0755), 0);
    const QList<QByteArray> lines = ReportLines();
    EXPECT_TRUE(lines.contains("   " + name + '\r'));
    EXPECT_TRUE(lines.contains(folder.Path().toUtf8() + "/d" + name + '\r'));
}

TEST_F(RealDiscListingTest, TheReportGoesToTheListThroughTheTemporaryFile)
{
    tool.page.ChckValg.SetChecked(false);
    tool.page.btnGBMakeList.UserClicks();
    EXPECT_EQ(tool.session.ReportFile, folder.Path() + u"/~TR24D0.tmp"_s);
    const QString asEntry = folder.Path().replace(u'/', u'\\');
    EXPECT_EQ(tool.area.LstItem.Items(), (QStringList{u" "_s, asEntry, u"List-01 2004-03-31.txt"_s, u" "_s}));
}

} // namespace
