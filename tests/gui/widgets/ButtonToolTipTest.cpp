// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "widgets/ButtonToolTip.h"

#include "gui/GuiTest.h"
#include "gui/widgets/ButtonStage.h"

#include <QHelpEvent>

using namespace tressel;
using namespace Qt::StringLiterals;

class ButtonToolTipTest : public QObject, private ButtonStage {
    Q_OBJECT

private Q_SLOTS:
    void init() { QVERIFY(Up()); }
    void cleanup() { Down(); }

    void ToolTipIsHandedOver();
    void ToolTipHasTitleIconColoursAndBalloon();
    void EmptyToolTipShowsNothing();
    void ADisabledButtonShowsNoTipThatItHasNoMore();
    void ToolTipColourZeroIsTheDesktops();

private:
    void AskForTheTip()
    {
        QHelpEvent help(QEvent::ToolTip, QPoint(5, 5), button->mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(button, &help);
    }
};

void ButtonToolTipTest::ToolTipIsHandedOver()
{
    button->hide();
    control->Control::SetToolTip(u" Browse... "_s);
    button->show();
    QCOMPARE(control->ToolTip(), u" Browse... "_s);
    QCOMPARE(control->Control::ToolTip(), u""_s);
    button->hide();
    QCOMPARE(control->Control::ToolTip(), u" Browse... "_s);
}

void ButtonToolTipTest::ToolTipHasTitleIconColoursAndBalloon()
{
    control->SetToolTip(u"Makes the folders of the list"_s);
    control->SetToolTipTitle(u"Make"_s);
    control->SetToolTipIcon(ToolTipIconKind::Information);
    control->SetToolTipType(ToolTipShape::Balloon);
    control->SetToolTipBackColor(0x102030);
    control->SetToolTipForeColor(0xE0F0FF);
    QVERIFY(!button->Tip());
    Hover({5, 5});
    QVERIFY(button->Tip());
    QCOMPARE(button->Tip()->Text(), u"Makes the folders of the list"_s);
    QCOMPARE(button->Tip()->Title(), u"Make"_s);
    QVERIFY(button->Tip()->HasIcon());
    QVERIFY(button->Tip()->IsBalloon());
    QCOMPARE(button->Tip()->Face(), QColor(0x30, 0x20, 0x10));
    QCOMPARE(button->Tip()->TextColour(), QColor(0xFF, 0xF0, 0xE0));
    QVERIFY(!button->Tip()->isVisible());

    const QPoint place = button->mapToGlobal(QPoint(5, 5));
    QHelpEvent help(QEvent::ToolTip, QPoint(5, 5), place);
    QApplication::sendEvent(button, &help);
    QVERIFY(button->Tip()->isVisible());
    auto *shown = const_cast<ButtonToolTip *>(button->Tip());
    const QImage drawn = shown->grab().toImage();
    QCOMPARE(drawn.pixelColor(drawn.width() - 4, drawn.height() / 2), QColor(0x30, 0x20, 0x10));

    QTest::mousePress(button, Qt::LeftButton);
    QVERIFY(!button->Tip()->isVisible());
    QTest::mouseRelease(button, Qt::LeftButton);

    // Built anew each time the pointer comes.
    control->SetToolTip(u"Other"_s);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(button, &leave);
    QCOMPARE(button->Tip()->Text(), u"Makes the folders of the list"_s);
    Hover({6, 6});
    QCOMPARE(button->Tip()->Text(), u"Other"_s);
}

void ButtonToolTipTest::EmptyToolTipShowsNothing()
{
    control->SetToolTipTitle(u"Make"_s);
    Hover({5, 5});
    QVERIFY(button->Tip());
    QHelpEvent help(QEvent::ToolTip, QPoint(5, 5), button->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(button, &help);
    QVERIFY(!button->Tip()->isVisible());
}

void ButtonToolTipTest::ToolTipColourZeroIsTheDesktops()
{
    control->SetToolTip(u"tip"_s);
    control->SetToolTipBackColor(0);
    control->SetToolTipForeColor(0);
    const ButtonToolTip zero(*control, *button);
    control->SetToolTipBackColor(NumberOf(SystemColour::ToolTipFace));
    control->SetToolTipForeColor(NumberOf(SystemColour::ToolTipText));
    const ButtonToolTip system(*control, *button);
    QCOMPARE(zero.Face(), system.Face());
    QCOMPARE(zero.TextColour(), system.TextColour());
    QVERIFY(!zero.IsBalloon());
    QVERIFY(!zero.HasIcon());
}

void ButtonToolTipTest::ADisabledButtonShowsNoTipThatItHasNoMore()
{
    control->SetToolTip(u"Makes the folders"_s);
    Hover({5, 5});
    AskForTheTip();
    QVERIFY(button->Tip()->isVisible());
    control->SetEnabled(false);
    button->TakeOver();
    QVERIFY(!button->Tip());

    control->SetToolTip(u"There is no list"_s);
    AskForTheTip();
    QVERIFY(button->Tip()->isVisible());
    QCOMPARE(button->Tip()->Text(), u"There is no list"_s);
    control->SetToolTip(u""_s);
    AskForTheTip();
    QVERIFY(!button->Tip()->isVisible());
}

TRESSEL_GUI_TEST(ButtonToolTipTest)
#include "ButtonToolTipTest.moc"
