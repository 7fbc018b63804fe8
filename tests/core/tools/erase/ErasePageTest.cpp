// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/erase/ErasePage.h"

#include "support/Failures.h"
#include "support/MemoryMachine.h"
#include "support/Text.h"
#include "support/ToolBench.h"

#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

class ErasePageTest : public testing::Test {
protected:
    MemoryMachine machine;
    ToolBench bench{machine.machine};
    ErasePage page{bench.context};
};

TEST_F(ErasePageTest, ShowsItsTextsAndFirstValues)
{
    const QString tip = u" Double Click on Item in list for remove a item from list "_s;
    EXPECT_EQ(page.lstErase.ToolTip(), tip);
    EXPECT_TRUE(page.lstErase.TakesDrops());
    EXPECT_EQ(page.lblEraseMessage.Caption(), u"Drag and drop files into list"_s);
    EXPECT_EQ(page.lblEraseMessage.ToolTip(), tip);
    EXPECT_EQ(page.lblOverwrite.Caption(), u"Ready"_s);
    EXPECT_EQ(page.btnGBErase.Caption(), u"Erase"_s);
    EXPECT_EQ(page.Timer1.Interval(), 100);
}

TEST_F(ErasePageTest, TheTimerKeepsButtonAndHint)
{
    page.Timer1.Elapse();
    EXPECT_FALSE(page.btnGBErase.IsEnabled());
    page.lstErase.AddItem(u"C:\\a"_s);
    page.lblEraseMessage.SetCaption(u"File size: 1 Byte"_s);
    page.Timer1.Elapse();
    EXPECT_TRUE(page.btnGBErase.IsEnabled());
    EXPECT_EQ(page.lblEraseMessage.Caption(), u"File size: 1 Byte"_s);
    page.lstErase.Clear();
    page.lblEraseMessage.SetCaption(u"Successfully Deleted"_s);
    page.Timer1.Elapse();
    EXPECT_FALSE(page.btnGBErase.IsEnabled());
    EXPECT_EQ(page.lblEraseMessage.Caption(), u"Drag and drop files into list"_s);
}

TEST_F(ErasePageTest, DroppedPathsComeInOrderAndOnce)
{
    page.lblEraseMessage.SetForeColor(0x0000FF);
    page.lblEraseMessage.SetCaption({});
    page.lstErase.UserDrops({u"C:\\b"_s, u"C:\\a"_s, u"C:\\B"_s});
    page.lstErase.UserDrops({u"C:\\a"_s, u"C:\\folder"_s});
    EXPECT_EQ(page.lstErase.Items(), (QStringList{u"C:\\b"_s, u"C:\\a"_s, u"C:\\folder"_s}));
    EXPECT_EQ(page.lblEraseMessage.Caption(), u"Drag and drop files into list"_s);
    EXPECT_EQ(page.lblEraseMessage.ForeColor(), NumberOf(SystemColour::ButtonText));
}

TEST_F(ErasePageTest, AClickTellsTheLength)
{
    machine.files.PutFile(u"C:\\empty"_s);
    machine.files.PutFile(u"C:\\large"_s, QByteArray(1234567, 'x'));
    page.lstErase.UserDrops({u"C:\\empty"_s, u"C:\\large"_s});
    page.lstErase.UserSelects(1);
    EXPECT_EQ(page.lblEraseMessage.Caption(), u"File size: 1,234,567 Byte"_s);
    page.lstErase.UserSelects(0);
    EXPECT_EQ(page.lblEraseMessage.Caption(), u"File size:  Byte"_s);
}

TEST_F(ErasePageTest, AClickOnAFileThatHasGoneIsFatal)
{
    page.lstErase.UserDrops({u"C:\\gone"_s});
    EXPECT_EQ(NumberThrownBy([&] { page.lstErase.SetListIndex(0); }), FailureNumber::FileNotFound);
}

TEST_F(ErasePageTest, ADoubleClickTakesTheItemOut)
{
    page.lstErase.UserDrops({u"C:\\a"_s, u"C:\\b"_s});
    machine.files.PutFile(u"C:\\a"_s);
    page.lstErase.UserSelects(0);
    page.lstErase.UserActivates(0);
    EXPECT_EQ(page.lstErase.Items(), QStringList{u"C:\\b"_s});
    EXPECT_TRUE(machine.files.Exists(u"C:\\a"_s));
}

TEST_F(ErasePageTest, TheRowUnderThePointerIsTheToolTip)
{
    page.lstErase.UserDrops({u"C:\\a"_s, u"C:\\b"_s});
    page.lstErase.UserPointsAt(1);
    EXPECT_EQ(page.lstErase.ToolTip(), u" C:\\b "_s);
    page.lstErase.UserPointsAt(-1);
    EXPECT_EQ(page.lstErase.ToolTip(), QString());
}

} // namespace
