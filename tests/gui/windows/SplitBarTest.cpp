// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "windows/SplitBar.h"

#include "gui/GuiTest.h"
#include "gui/windows/DesktopStage.h"
#include "widgets/SystemColours.h"

#include <QWindow>

using namespace tressel;
using namespace Qt::StringLiterals;

/// The split bar and its grip in the real window.
class SplitBarTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void AMoveOverTheGripIsHandledOnce()
    {
        DesktopStage stage;
        stage.Start();
        auto &grip = stage.Face<QWidget>(u"PicHold"_s);
        int gripMoves = 0;
        int barMoves = 0;
        int barReleases = 0;
        stage.Form().PicHold.MouseMove.Also([&](int, int) { ++gripMoves; });
        stage.Form().PicStrip.MouseMove.Also([&](int, int) { ++barMoves; });
        stage.Form().PicStrip.MouseUp.Also([&] { ++barReleases; });

        QWindow *window = stage.Window().windowHandle();
        const QPoint start = grip.mapTo(&stage.Window(), QPoint(0, 5));
        const int before = stage.Form().PicStrip.Left();
        QTest::mousePress(window, Qt::LeftButton, {}, start);
        for (const int x : {5, 6, 7, 8, 20})
            QTest::mouseMove(window, start + QPoint(x, 0));
        QCOMPARE(gripMoves, 5);
        QCOMPARE(barMoves, 0);
        // From the grip's left edge: to the pixel, the bar goes where the mouse goes.
        QCOMPARE(stage.Form().PicStrip.Left() - before, 20 * 15);
        QTest::mouseRelease(window, Qt::LeftButton, {}, start + QPoint(20, 0));
        QCOMPARE(barReleases, 0);
        stage.Settle();
        QCOMPARE(stage.Form().PicStrip.Left() - before, 20 * 15);
    }

    void TheBarHasAColourOfItsOwnWhileItIsDragged()
    {
        DesktopStage stage;
        stage.Start();
        // What the start left to the timer is laid out now, and not in the middle of the drag.
        stage.Form().erase.Timer1.Elapse();
        stage.Settle();
        auto &bar = stage.Face<QWidget>(u"PicStrip"_s);
        const auto colour = [&] { return bar.grab().toImage().pixelColor(1, bar.height() / 4); };
        const QPalette &desktop = bar.palette();
        QCOMPARE(colour(), ColourOf(SystemColour::ButtonFace, desktop));
        QWindow *window = stage.Window().windowHandle();
        const QPoint start = bar.mapTo(&stage.Window(), QPoint(0, 5));
        QTest::mousePress(window, Qt::LeftButton, {}, start);
        QTest::mouseMove(window, start + QPoint(30, 0));
        stage.Settle();
        QCOMPARE(colour(), ColourOf(SystemColour::GrayText, desktop));
        QTest::mouseRelease(window, Qt::LeftButton, {}, start + QPoint(30, 0));
        stage.Settle();
        QCOMPARE(colour(), ColourOf(SystemColour::ButtonFace, desktop));
    }

    void APressOnTheBarBesideTheGripDragsIt()
    {
        DesktopStage stage;
        stage.Start();
        auto &bar = stage.Face<QWidget>(u"PicStrip"_s);
        int releases = 0;
        stage.Form().PicStrip.MouseUp.Also([&] { ++releases; });
        QWindow *window = stage.Window().windowHandle();
        const QPoint start = bar.mapTo(&stage.Window(), QPoint(0, 5));
        const int before = stage.Form().PicStrip.Left();
        QTest::mousePress(window, Qt::LeftButton, {}, start);
        QTest::mouseMove(window, start + QPoint(30, 0));
        QTest::mouseRelease(window, Qt::LeftButton, {}, start + QPoint(30, 0));
        QCOMPARE(releases, 1);
        QCOMPARE(stage.Form().PicStrip.Left() - before, 30 * 15);
    }
};

TRESSEL_GUI_TEST(SplitBarTest)
#include "SplitBarTest.moc"
