// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "DesktopStage.h"
#include "base/Twips.h"
#include "gui/GuiTest.h"
#include "machine/QtScreen.h"

#include <QGuiApplication>
#include <QScreen>

using namespace tressel;
using namespace Qt::StringLiterals;

/// A desktop of two screens, the second one neither at the origin nor of the first one's size.
class TwoScreensTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY2(QGuiApplication::screens().size() == 2,
                 "The platform has to have the two screens of two-screens.json.");
        second = QGuiApplication::screens().at(1)->availableGeometry();
        QVERIFY(second.x() > 0 && second.y() > 0);
    }

    void TheScreenOfTheWindowIsMeasuredWithItsOrigin()
    {
        QWidget window;
        window.setGeometry(QRect(second.topLeft() + QPoint(50, 60), QSize(300, 200)));
        window.show();
        QtScreen screen;
        screen.SetMainWindow(&window);
        QTRY_COMPARE(screen.Left(), ToTwips(second.x()));
        QCOMPARE(screen.Top(), ToTwips(second.y()));
        QCOMPARE(screen.Width(), ToTwips(second.width()));
        QCOMPARE(screen.Height(), ToTwips(second.height()));
    }

    void TheWindowFoldsUpInTheMiddleOfTheScreenThatItIsOn()
    {
        DesktopStage stage;
        stage.Start();
        stage.desktop->application.frmOption().ChkAnimOption.SetChecked(true);
        stage.Window().move(second.topLeft() + QPoint(20, 30));
        stage.Settle();
        QCOMPARE(stage.Window().screen(), QGuiApplication::screens().at(1));
        QVERIFY_THROWS_EXCEPTION(ProcessEnded, stage.Form().btnGBToolbarExit.UserClicks());
        const MainForm &form = stage.Form();
        const QPoint middle(ToPixels(form.Left() + form.Width() / 2),
                            ToPixels(form.Top() + form.Height() / 2));
        QVERIFY2((middle - second.center()).manhattanLength() <= 4,
                 qPrintable(u"%1, %2"_s.arg(middle.x()).arg(middle.y())));
    }

private:
    QRect second;
};

TRESSEL_GUI_TEST(TwoScreensTest)
#include "TwoScreensTest.moc"
