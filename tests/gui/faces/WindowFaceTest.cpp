// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "controls/Label.h"
#include "controls/TextBox.h"
#include "gui/GuiTest.h"
#include "gui/faces/Bound.h"

#include <QDialog>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include <limits>

using namespace tressel;
using namespace Qt::StringLiterals;

class WindowFaceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void CaptionPlaceAndSizeAreShown()
    {
        Form form(u"frmMain"_s);
        form.SetCaption(u"Tressel v5.1450 - saved to ... /a/[*]b"_s);
        form.Move(1500, 750);
        form.SetSize(8120, 6825);
        Bound bound(form);
        QVERIFY(bound.Bind());
        QVERIFY(bound.window.isVisible());
        QCOMPARE(bound.window.windowTitle(), u"Tressel v5.1450 - saved to ... /a/[*][*]b"_s);
        QCOMPARE(bound.window.pos(), QPoint(100, 50));
        QCOMPARE(bound.window.size(), QSize(542, 455));
        // Not rounded by having been shown.
        QCOMPARE(form.Width(), 8120);
        QCOMPARE(form.Height(), 6825);
        QCOMPARE(form.Left(), 1500);

        form.SetCaption(u"Option"_s);
        form.Hide();
        bound.updates.Flush();
        QVERIFY(!bound.window.isVisible());
        form.Show();
        bound.updates.Flush();
        QVERIFY(bound.window.isVisible());
        QCOMPARE(bound.window.windowTitle(), u"Option"_s);
        QCOMPARE(bound.window.pos(), QPoint(100, 50));
    }

    void TheUsersGeometryIsTold()
    {
        Form form(u"frmMain"_s);
        form.SetSize(9000, 7500);
        int resizes = 0;
        form.Resize.Handle([&] { ++resizes; });
        Bound bound(form);
        QVERIFY(bound.Bind());
        bound.window.resize(700, 510);
        bound.window.move(30, 40);
        QTRY_COMPARE(form.Width(), 10500);
        QCOMPARE(form.Height(), 7650);
        QCOMPARE(form.Left(), 450);
        QCOMPARE(form.Top(), 600);
        QCOMPARE(resizes, 1);
        bound.updates.Flush();
        QCOMPARE(bound.window.size(), QSize(700, 510));
        QCOMPARE(bound.window.pos(), QPoint(30, 40));
    }

    void ASizeBeyondAllScreensIsCut()
    {
        Form form(u"frmMain"_s);
        form.SetSize(std::numeric_limits<int>::max(), 7500);
        Bound bound(form);
        QVERIFY(bound.Bind());
        QCOMPARE(bound.window.size(), QSize(32767, 500));
        QCOMPARE(form.Width(), 32767 * 15);
    }

    void AHandlerMayRefuseASize()
    {
        Form form(u"frmMain"_s);
        form.SetSize(9000, 7500);
        form.Resize.Handle([&] {
            if (form.Width() < 8120)
                form.SetSize(8120, form.Height());
        });
        Bound bound(form);
        QVERIFY(bound.Bind());
        bound.window.resize(300, 500);
        QTRY_COMPARE(bound.window.size(), QSize(542, 500));
        QCOMPARE(form.Width(), 8120);
    }

    void AFormWithoutASizeTakesTheWindows()
    {
        Form form(u"frmTip"_s);
        Bound bound(form);
        QVERIFY(bound.Bind());
        QCOMPARE(form.Width(), 600 * 15);
        QCOMPARE(form.Height(), 400 * 15);
        QCOMPARE(bound.window.size(), QSize(600, 400));
    }

    void StatesGoBothWays()
    {
        Form form(u"frmMain"_s);
        form.SetSize(9000, 7500);
        Bound bound(form);
        QVERIFY(bound.Bind());
        form.SetState(WindowState::Maximised);
        bound.updates.Flush();
        QTRY_VERIFY(bound.window.isMaximized());
        bound.window.showNormal();
        QTRY_COMPARE(form.State(), WindowState::Normal);
        bound.window.showMinimized();
        QTRY_COMPARE(form.State(), WindowState::Minimised);
    }

    void FullScreenCountsAsMaximisedAndKeepsThePlace()
    {
        Form form(u"f"_s);
        form.SetSize(9000, 6000);
        form.Move(1500, 1500);
        Bound bound(form);
        QVERIFY(bound.Bind());
        const QRect before = bound.window.geometry();
        bound.window.showFullScreen();
        QTRY_COMPARE(form.State(), WindowState::Maximised);
        form.SetCaption(u"changed"_s);
        bound.updates.Flush();
        QVERIFY(bound.window.isFullScreen());
        QVERIFY(!bound.window.isMaximized());
        bound.window.showNormal();
        QTRY_COMPARE(form.State(), WindowState::Normal);
        QTRY_COMPARE(bound.window.geometry(), before);
    }

    void ClosingUnloadsTheForm()
    {
        Form form(u"frmTip"_s);
        bool refuse = true;
        form.Unloading.Handle([&](bool &refused) { refused = refuse; });
        Bound bound(form);
        QVERIFY(bound.Bind());
        QVERIFY(!bound.window.close());
        QVERIFY(bound.window.isVisible());
        QVERIFY(form.IsLoaded());
        refuse = false;
        QVERIFY(bound.window.close());
        QVERIFY(!bound.window.isVisible());
        QVERIFY(!form.IsLoaded());
    }

    void AWindowThatComesUpInsteadIsThereInTime()
    {
        Form tip(u"frmTip"_s);
        Form main(u"frmMain"_s);
        Bound bound(tip);
        QWidget mainWindow;
        WindowFace mainFace(main, mainWindow, bound.makers, bound.updates);
        QVERIFY(bound.Bind());
        tip.Unloading.Handle([&](bool &) { main.Show(); });
        bool lastClosed = false;
        connect(qApp, &QGuiApplication::lastWindowClosed, this, [&] { lastClosed = true; });
        QVERIFY(bound.window.close());
        QVERIFY(mainWindow.isVisible());
        QCoreApplication::processEvents();
        QVERIFY(!lastClosed);
    }

    void MainWindowHasNoCloseBox()
    {
        Form form(u"frmMain"_s);
        QWidget window;
        FaceMakers makers;
        FaceUpdates updates;
        WindowFace face(form, window, makers, updates);
        form.SetCloseBox(false);
        updates.Flush();
        QVERIFY(!(window.windowFlags() & Qt::WindowCloseButtonHint));
        QVERIFY(window.windowFlags() & Qt::CustomizeWindowHint);
        QVERIFY(window.windowFlags() & Qt::WindowMinMaxButtonsHint);

        // A request from the outside still goes to the form.
        int unloads = 0;
        form.Unloading.Handle([&](bool &) { ++unloads; });
        form.Show();
        updates.Flush();
        QVERIFY(window.close());
        QCOMPARE(unloads, 1);
    }

    void TurningToAnotherFormActivatesIt()
    {
        Form first(u"frmMain"_s);
        Form second(u"frmAbout"_s);
        QStringList told;
        first.Activate.Handle([&] { told += u"first"_s; });
        second.Activate.Handle([&] { told += u"second"_s; });
        Bound bound(first);
        QWidget other;
        WindowFace otherFace(second, other, bound.makers, bound.updates);
        QVERIFY(bound.Bind());
        second.Show();
        bound.updates.Flush();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        QCOMPARE(told, QStringList({u"first"_s, u"second"_s}));
        bound.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&bound.window));
        QCOMPARE(told, QStringList({u"first"_s, u"second"_s, u"first"_s}));
    }

    void ComingBackFromAWindowOfNoFormActivatesToo()
    {
        Form form(u"frmMain"_s);
        int activations = 0;
        form.Activate.Handle([&] { ++activations; });
        Bound bound(form);
        QVERIFY(bound.Bind());
        QVERIFY(QTest::qWaitForWindowActive(&bound.window));
        QCOMPARE(activations, 1);
        QWidget stranger;
        stranger.show();
        stranger.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&stranger));
        bound.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&bound.window));
        QCOMPARE(activations, 2);
    }

    void TheKeyboardComesBackToWhatWasDisabled()
    {
        Form form(u"f"_s);
        TextBox first(form, u"first"_s);
        TextBox second(form, u"second"_s);
        TextBox third(form, u"third"_s);
        second.SetEnabled(false);
        Bound bound(form);
        auto &firstEdit = bound.Add<QLineEdit>(u"first"_s);
        auto &secondEdit = bound.Add<QLineEdit>(u"second"_s);
        auto &thirdEdit = bound.Add<QLineEdit>(u"third"_s);
        QVERIFY(bound.Bind());
        const auto lock = [&](bool locked) {
            first.SetEnabled(!locked);
            second.SetEnabled(locked);
            if (locked)
                second.SetFocus();
            bound.updates.Flush();
        };
        firstEdit.setFocus();
        lock(true);
        QVERIFY(secondEdit.hasFocus());
        third.SetText(u"meanwhile"_s);
        bound.updates.Flush();
        lock(false);
        QVERIFY(firstEdit.hasFocus());

        // Who went elsewhere stays there.
        lock(true);
        thirdEdit.setFocus();
        lock(false);
        QVERIFY(thirdEdit.hasFocus());
        first.SetEnabled(false);
        bound.updates.Flush();
        first.SetEnabled(true);
        bound.updates.Flush();
        QVERIFY(thirdEdit.hasFocus());
    }

    void AFailureInAHandlerGoesToTheFatalHandler()
    {
        Form form(u"frmMain"_s);
        Label label(form, u"lblTitle"_s);
        label.Click.Handle([] { throw Failure(FailureNumber::TypeMismatch); });
        int fatal = 0;
        form.SetFatalHandler([&](const Failure &failure) { fatal = static_cast<int>(failure.number); });
        Bound bound(form);
        auto &widget = bound.Add<QLabel>(u"lblTitle"_s);
        QVERIFY(bound.Bind());
        QTest::mouseClick(&widget, Qt::LeftButton);
        QCOMPARE(fatal, 13);
    }
};

TRESSEL_GUI_TEST(WindowFaceTest)
#include "WindowFaceTest.moc"
