// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/numbered/NumberedTarget.h"

#include "support/MemoryMachine.h"
#include "support/Text.h"

#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

constexpr auto Make = NumberedRun::Make;
constexpr auto Delete = NumberedRun::Delete;

/// A platform whose levels are parted by "/".
class SlashFileSystem : public MemoryFileSystem {
public:
    using MemoryFileSystem::MemoryFileSystem;
    QChar Separator() const override { return u'/'; }
};

TEST(NumberedTarget, EveryBranchOfTheTree)
{
    struct Row {
        QString sub;
        bool numbersSub;
        bool manualPadding;
        QString folder;
        QString made;
        QString deleted;
    };
    const QList<Row> rows{
        {u""_s, false, false, u"D:\\W"_s, u"D:\\W\\Disk08"_s, u"D:\\W\\Disk08"_s},
        {u""_s, true, false, u"D:\\W"_s, u"D:\\W\\Disk08"_s, u"D:\\W\\Disk08"_s},
        {u""_s, true, true, u"D:\\W"_s, u"D:\\W\\Disk08"_s, u"D:\\W\\Disk08"_s},
        {u""_s, true, false, u"D:\\"_s, u"D:\\Disk08"_s, u"D:\\Disk08"_s},
        {u"Sub"_s, false, false, u"D:\\W"_s, u"D:\\W\\Disk08\\Sub"_s, u"D:\\W\\Disk08\\Sub"_s},
        {u"Sub"_s, false, false, u"D:\\"_s, u"D:\\Disk08\\Sub"_s, u"D:\\Disk08\\Sub"_s},
        {u"Sub"_s, false, true, u"D:\\W"_s, u"D:\\W\\Disk08\\Sub"_s, u"D:\\W\\Disk08\\Sub"_s},
        {u"Sub"_s, false, true, u"D:\\"_s, u"D:\\Disk08\\Sub"_s, u"D:\\Disk08\\Sub"_s},
        {u"Sub"_s, true, true, u"D:\\W"_s, u"D:\\W\\Disk\\Sub08"_s, u"D:\\W\\Disk\\Sub08"_s},
        {u"Sub"_s, true, true, u"D:\\"_s, u"D:\\Disk\\Sub08"_s, u"D:\\Disk\\Sub08"_s},
        {u"Sub"_s, true, false, u"D:\\"_s, u"D:\\Disk\\Sub08"_s, u"D:\\Disk\\Sub08"_s},
        {u"Sub"_s, true, false, u"D:\\W"_s, u"D:\\W\\Disk\\Sub08"_s, u"D:\\W\\Sub08"_s},
    };
    const MemoryMachine machine;
    for (const Row &row : rows) {
        const NumberedNaming naming{row.folder, u"Disk"_s, row.sub, row.numbersSub, row.manualPadding, 1, 2};
        EXPECT_EQ(NumberedTarget(machine.files, naming, 8, Make), row.made);
        EXPECT_EQ(NumberedTarget(machine.files, naming, 8, Delete), row.deleted);
    }
}

TEST(NumberedTarget, TheDeleteRunLeavesTheMainFolderOutUnderAllFourPictures)
{
    const MemoryMachine machine;
    const QStringList targets{u"D:\\W\\S7"_s, u"D:\\W\\S07"_s, u"D:\\W\\S007"_s, u"D:\\W\\S0007"_s};
    for (qsizetype length = 1; length <= 4; ++length) {
        const NumberedNaming naming{u"D:\\W"_s, u"B"_s, u"S"_s, true, false, 0, length};
        EXPECT_EQ(NumberedTarget(machine.files, naming, 7, Delete), targets.at(length - 1));
    }
}

TEST(NumberedTarget, PaddingsAndPictures)
{
    struct Row {
        double number;
        QStringList printed; ///< with at least 1, 2, 3 and 4 digits
    };
    const QList<Row> rows{
        {0, {u""_s, u"00"_s, u"000"_s, u"0000"_s}},
        {1, {u"1"_s, u"01"_s, u"001"_s, u"0001"_s}},
        {12, {u"12"_s, u"12"_s, u"012"_s, u"0012"_s}},
        {100, {u"100"_s, u"100"_s, u"100"_s, u"0100"_s}},
        {1000, {u"1000"_s, u"1000"_s, u"1000"_s, u"1000"_s}},
        {12000, {u"12000"_s, u"12000"_s, u"12000"_s, u"12000"_s}},
    };
    const MemoryMachine machine;
    for (const Row &row : rows) {
        for (int digit = 0; digit < 4; ++digit) {
            const QString expected = u"D:\\B"_s + row.printed.at(digit);
            NumberedNaming naming{u"D:\\"_s, u"B"_s, {}, false, true, digit, 9};
            EXPECT_EQ(NumberedTarget(machine.files, naming, row.number, Make), expected);
            naming = {u"D:\\"_s, u"B"_s, {}, false, false, 9, digit + 1};
            EXPECT_EQ(NumberedTarget(machine.files, naming, row.number, Make), expected);
        }
    }
}

TEST(NumberedTarget, ALengthWithoutAPictureHasNoTarget)
{
    const MemoryMachine machine;
    for (const qsizetype length : {0, 5, 6}) {
        const NumberedNaming naming{u"D:\\"_s, u"B"_s, {}, false, false, 0, length};
        EXPECT_EQ(NumberedTarget(machine.files, naming, 1, Make), std::nullopt);
        EXPECT_EQ(NumberedTarget(machine.files, naming, 1, Delete), std::nullopt);
    }
    const NumberedNaming noneSelected{u"D:\\"_s, u"B"_s, {}, false, true, -1, 2};
    EXPECT_EQ(NumberedTarget(machine.files, noneSelected, 1, Make), std::nullopt);
}

TEST(NumberedTarget, ABackslashIsALevelOnEveryPlatform)
{
    Journal journal;
    const MemoryClock clock;
    const SlashFileSystem slashes(journal, clock);
    const NumberedNaming naming{u"/home/me"_s, u"Sales\\2004"_s, u"Q\\1"_s, true, false, 0, 2};
    EXPECT_EQ(NumberedTarget(slashes, naming, 3, Make), u"/home/me/Sales/2004/Q/103"_s);
    EXPECT_EQ(NumberedTarget(slashes, naming, 3, Delete), u"/home/me/Q/103"_s);
    const NumberedNaming inRoot{u"/"_s, u"Disk"_s, u"Sub"_s, true, false, 0, 2};
    EXPECT_EQ(NumberedTarget(slashes, inRoot, 3, Delete), u"/Disk/Sub03"_s);
}

TEST(NumberedTarget, ABackslashInTheFolderOfTheSeriesIsPartOfAName)
{
    Journal journal;
    const MemoryClock clock;
    const SlashFileSystem slashes(journal, clock);
    const NumberedNaming naming{u"/home/a\\b"_s, u"Disk"_s, {}, false, false, 0, 1};
    EXPECT_EQ(NumberedTarget(slashes, naming, 3, Make), u"/home/a\\b/Disk3"_s);
}

TEST(NumberedSeries, GivesEachTargetInRisingOrder)
{
    const MemoryMachine machine;
    const NumberedNaming naming{u"D:\\"_s, u"B"_s, u"S"_s, false, false, 0, 2};
    NumberedSeries series(machine.files, naming, 9, 11, Make);
    EXPECT_EQ(series.Count(), 3);
    QStringList targets;
    while (const auto target = series.Next())
        targets += *target;
    EXPECT_EQ(targets, (QStringList{u"D:\\B09\\S"_s, u"D:\\B10\\S"_s, u"D:\\B11\\S"_s}));
    EXPECT_EQ(series.Next(), std::nullopt);
}

TEST(NumberedSeries, IsEmptyBackwardsAndWithoutAPicture)
{
    const MemoryMachine machine;
    const NumberedNaming naming{u"D:\\"_s, u"B"_s, {}, false, false, 0, 2};
    EXPECT_EQ(NumberedSeries(machine.files, naming, 3, 2, Make).Count(), 0);
    EXPECT_EQ(NumberedSeries(machine.files, naming, 3, 2, Make).Next(), std::nullopt);
    const NumberedNaming noPicture{u"D:\\"_s, u"B"_s, {}, false, false, 0, 10};
    EXPECT_EQ(NumberedSeries(machine.files, noPicture, 1, 2147483647, Make).Next(), std::nullopt);
}

TEST(NumberedSeries, ReachesTheLastNumberThatThereIs)
{
    const MemoryMachine machine;
    const NumberedNaming naming{u"D:\\"_s, u"B"_s, {}, false, true, 0, 10};
    NumberedSeries series(machine.files, naming, 2147483646, 2147483647, Make);
    EXPECT_EQ(series.Next(), u"D:\\B2147483646"_s);
    EXPECT_EQ(series.Next(), u"D:\\B2147483647"_s);
    EXPECT_EQ(series.Next(), std::nullopt);
}

} // namespace
