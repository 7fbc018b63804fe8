// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "DesktopStage.h"
#include "gui/Dropping.h"
#include "gui/FileContents.h"
#include "gui/GuiTest.h"
#include "gui/WhenUp.h"
#include "widgets/IsButtonWidget.h"
#include "widgets/SideBarWidget.h"

#include <QAccessible>
#include <QCheckBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QTreeView>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

constexpr int entryCount = 7;

/// Answers the next file dialog.
void WillChoose(const QString &path)
{
    WhenUp<QFileDialog>([path](QFileDialog &dialog) {
        dialog.selectFile(path);
        Accept(dialog);
    });
}

void Click(QWidget &widget)
{
    QTest::mouseClick(&widget, Qt::LeftButton);
}

/// The stops of the tab key from the window's first one on, each once.
QList<QWidget *> TabStops(QWidget &window)
{
    QList<QWidget *> stops;
    QWidget *first = window.focusWidget();
    do {
        stops += window.focusWidget();
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    } while (window.focusWidget() != first && stops.size() < 1000);
    return stops;
}

QString SpokenName(QWidget *widget)
{
    QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(widget);
    return spoken ? spoken->text(QAccessible::Name).trimmed() : QString();
}

} // namespace

class WindowsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void EveryControlOfTheMainFormHasAFaceAndTheOtherWayRound()
    {
        DesktopStage stage;
        stage.Start();
        QCOMPARE(stage.MainFace().Faces().ControlsWithoutFace(), QStringList());
        QCOMPARE(stage.MainFace().Faces().WidgetsWithoutControl(), QStringList());
    }

    void EveryControlOfTheTipFormHasAFaceAndTheOtherWayRound()
    {
        DesktopStage stage;
        stage.Put(keys::ShowTips, u"1"_s);
        stage.Start();
        const WindowFace *face = stage.desktop->FaceOf(u"frmTip"_s);
        QVERIFY(face);
        QCOMPARE(face->Faces().ControlsWithoutFace(), QStringList());
        QCOMPARE(face->Faces().WidgetsWithoutControl(), QStringList());
    }

    void ListIsLoadedMadeAndSavedOnTheDisc()
    {
        DesktopStage stage;
        stage.Put(keys::IndxBar, u"2"_s);
        stage.Put(keys::FileExt, u"0"_s);
        QVERIFY(WriteFile(stage.Place(u"names.txt"_s), "; a comment\r\nSales\\2024\\Q1\r\nLetters\r\n"));
        QVERIFY(QDir(stage.Place({})).mkdir(u"made"_s));
        stage.Start();

        WillChoose(stage.Place(u"names.txt"_s));
        Click(stage.Face<IsButtonWidget>(u"btnGBLoadFile"_s));
        stage.Settle();
        const QAbstractItemModel &names = *stage.Face<QListView>(u"LstItem"_s).model();
        QCOMPARE(names.rowCount(), 2);
        QCOMPARE(names.index(0, 0).data().toString(), u"Sales\\2024\\Q1"_s);

        QVERIFY(DropPath(stage.Face<QLineEdit>(u"txtStrtPath"_s), stage.Place(u"made"_s)));
        stage.Settle();
        QCOMPARE(stage.Face<QLineEdit>(u"txtStrtPath"_s).text(), stage.Place(u"made"_s));

        Click(stage.Face<IsButtonWidget>(u"btnGBToolbarCreate"_s));
        stage.Settle();
        QVERIFY(QDir(stage.Place(u"made/Sales/2024/Q1"_s)).exists());
        QVERIFY(QDir(stage.Place(u"made/Letters"_s)).exists());
        QCOMPARE(stage.Face<QLabel>(u"lblStatusLine"_s).text(), u"Finished, folders created successfully"_s);
        const QAbstractItemModel &tree = *stage.Face<QTreeView>(u"TVList"_s).model();
        QCOMPARE(tree.rowCount(), 1);
        QCOMPARE(tree.rowCount(tree.index(0, 0)), 2);

        WillChoose(stage.Place(u"saved.txt"_s));
        Click(stage.Face<IsButtonWidget>(u"btnGBSaveFile"_s));
        stage.Settle();
        QCOMPARE(ContentsOf(stage.Place(u"saved.txt"_s)), QByteArray("Sales\\2024\\Q1\r\nLetters\r\n"));
    }

    void TabKeyReachesEveryEnabledControlAndEachHasAName()
    {
        DesktopStage stage;
        stage.Start();
        stage.Window().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&stage.Window()));
        for (int entry = 1; entry <= entryCount; ++entry) {
            stage.OpenEntry(entry);
            stage.Face<SideBarWidget>(u"EyeDropper1"_s).setFocus();
            const QList<QWidget *> stops = TabStops(stage.Window());
            for (QWidget *stop : stops)
                QVERIFY2(!SpokenName(stop).isEmpty(), qPrintable(stop->objectName()));
            for (const Control *control : stage.Form().Controls()) {
                auto *widget = stage.Window().findChild<QWidget *>(control->Name());
                // Of round buttons of a group only the selected one is a stop.
                if (!widget || !widget->isVisible() || !widget->isEnabled()
                    || widget->inherits("QRadioButton") || !(widget->focusPolicy() & Qt::TabFocus))
                    continue;
                QWidget *stop = widget->focusProxy() ? widget->focusProxy() : widget;
                QVERIFY2(stops.contains(stop) || stops.contains(widget), qPrintable(control->Name()));
            }
        }
    }

    void WindowKeepsItsLeastSize()
    {
        DesktopStage stage;
        stage.Start();
        QCOMPARE(stage.Window().size(), QSize(722, 524));
        stage.Window().resize(100, 100);
        stage.Settle();
        QCOMPARE(stage.Window().size(), QSize(542, 455));
        QVERIFY(stage.Form().Width() >= 8120);
        QVERIFY(stage.Form().Height() >= 6825);
    }

    void ToolbarHidesAndThePathRowMovesUpAndBack()
    {
        DesktopStage stage;
        stage.Start();
        const auto &path = stage.Face<QLineEdit>(u"txtStrtPath"_s);
        auto &tree = stage.Face<QTreeView>(u"TVList"_s);
        const int before = path.y();
        const int treeHeight = tree.height();
        stage.Face<QCheckBox>(u"chkButtonBar"_s).click();
        stage.Settle();
        QVERIFY(!stage.Face<QWidget>(u"FrmeToolbar"_s).isVisible());
        QVERIFY(path.y() < before - 50);
        QVERIFY(tree.height() > treeHeight);
        stage.Face<QCheckBox>(u"chkButtonBar"_s).click();
        stage.Settle();
        QCOMPARE(path.y(), before);
        QCOMPARE(tree.height(), treeHeight);
    }

    void SplitBarStaysWithinItsLimits_data()
    {
        QTest::addColumn<QString>("grip");
        QTest::addColumn<int>("by");
        QTest::addColumn<int>("left");
        QTest::newRow("bar to the far left") << u"PicStrip"_s << -400 << 340;
        QTest::newRow("bar to the far right") << u"PicStrip"_s << 600 << 722 - 233;
        QTest::newRow("bar a little") << u"PicStrip"_s << 60 << 400;
        QTest::newRow("grip a little") << u"PicHold"_s << 60 << 400;
    }

    void SplitBarStaysWithinItsLimits()
    {
        QFETCH(QString, grip);
        QFETCH(int, by);
        QFETCH(int, left);
        DesktopStage stage;
        stage.Start();
        auto &bar = stage.Face<QWidget>(u"PicStrip"_s);
        auto &page = stage.Face<SideBarWidget>(u"EyeDropper1"_s);
        // What the start left to the timer is laid out now, and not in the middle of the drag.
        stage.Form().erase.Timer1.Elapse();
        stage.Settle();
        QCOMPARE(bar.x(), 340); // The settings' first place is below the limit.
        QCOMPARE(page.width(), 340);

        auto &held = stage.Face<QWidget>(grip);
        QWindow *window = stage.Window().windowHandle();
        // From the edge of what is held: where the mouse is over it is what the bar moves by.
        const QPoint start = held.mapTo(&stage.Window(), QPoint(0, 5));
        QTest::mousePress(window, Qt::LeftButton, {}, start);
        for (int step = 1; step <= 4; ++step)
            QTest::mouseMove(window, start + QPoint(by * step / 4, 0));
        stage.Settle();
        QCOMPARE(page.width(), 340);
        QTest::mouseRelease(window, Qt::LeftButton, {}, start + QPoint(by, 0));
        stage.Settle();
        QVERIFY2(qAbs(bar.x() - left) <= 2, qPrintable(QString::number(bar.x())));
        QCOMPARE(page.width(), bar.x());
        QVERIFY(stage.Face<QTreeView>(u"TVList"_s).mapTo(&stage.Window(), QPoint()).x() > bar.x());
    }

    void ArrowKeysMoveTheSplitBar()
    {
        DesktopStage stage;
        stage.Start();
        auto &bar = stage.Face<QWidget>(u"PicStrip"_s);
        QTest::keyClick(&bar, Qt::Key_Right);
        stage.Settle();
        QCOMPARE(bar.x(), 350);
        QTest::keyClick(&bar, Qt::Key_Left);
        QTest::keyClick(&bar, Qt::Key_Left);
        stage.Settle();
        QCOMPARE(bar.x(), 340);
    }

    void ClosingAnimationFoldsTheWindowBelowItsLeastSize()
    {
        DesktopStage stage;
        stage.Start();
        stage.desktop->application.frmOption().ChkAnimOption.SetChecked(true);
        struct Sizes : QObject {
            bool eventFilter(QObject *, QEvent *event) override
            {
                if (event->type() == QEvent::Resize)
                    seen += static_cast<QResizeEvent *>(event)->size();
                return false;
            }
            QList<QSize> seen;
        } sizes;
        stage.Window().installEventFilter(&sizes);
        QVERIFY_THROWS_EXCEPTION(ProcessEnded, stage.Form().Unload());
        // Each step shows: 15 of 500 twips in height, then 46 of 200 in width.
        QCOMPARE(sizes.seen.size(), 15 + 46);
        QCOMPARE(sizes.seen.at(0), QSize(722, 491));
        QCOMPARE(sizes.seen.at(14), QSize(722, 24));
        QCOMPARE(sizes.seen.last(), QSize(109, 24));
        QCOMPARE(stage.desktop->application.settings.ReadInt32(keys::MainHeight), 7860);
    }

    void MainWindowHasNoCloseBox()
    {
        DesktopStage stage;
        stage.Start();
        QVERIFY(!(stage.Window().windowFlags() & Qt::WindowCloseButtonHint));
    }

    void TipWindowGoesAndTheMainOneComes()
    {
        DesktopStage stage;
        stage.Put(keys::ShowTips, u"1"_s);
        stage.Start();
        QVERIFY(!stage.desktop->FaceOf(u"frmMain"_s));
        QWidget &tip = stage.desktop->FaceOf(u"frmTip"_s)->Window();
        QVERIFY(tip.isVisible());
        Click(*tip.findChild<IsButtonWidget *>(u"cmdOK"_s));
        stage.Settle();
        QVERIFY(!tip.isVisible());
        QVERIFY(stage.Window().isVisible());
    }

    void AltAndTheUnderlinedLetterPressAButton()
    {
        DesktopStage stage;
        stage.Start();
        QVERIFY(QTest::qWaitForWindowActive(&stage.Window()));
        int clicks = 0;
        IsButton &button = stage.Form().btnGBToolbarLoadList;
        button.Click.Also([&] { ++clicks; });
        button.SetCaption(u"&Zebra"_s);
        stage.Settle();
        QTest::keyClick(&stage.Window(), Qt::Key_Z, Qt::AltModifier);
        QCOMPARE(clicks, 1);
        QVERIFY(button.HasFocus());
        button.SetEnabled(false);
        stage.Settle();
        QTest::keyClick(&stage.Window(), Qt::Key_Z, Qt::AltModifier);
        QCOMPARE(clicks, 1);
    }

    void FocusThatTheTabKeyGaveIsSeenInEveryLook()
    {
        DesktopStage stage;
        stage.Start();
        QVERIFY(QTest::qWaitForWindowActive(&stage.Window()));
        auto &face = stage.Face<QWidget>(u"btnGBToolbarBrowse"_s);
        auto &before = stage.Face<QWidget>(u"btnGBToolbarLoadList"_s);
        for (int style = 0; style <= 10; ++style) {
            stage.Form().btnGBToolbarBrowse.SetStyle(static_cast<ButtonStyle>(style));
            before.setFocus(Qt::TabFocusReason);
            stage.Settle();
            const QImage unfocused = face.grab().toImage();
            QTest::keyClick(&before, Qt::Key_Tab);
            stage.Settle();
            QVERIFY(face.hasFocus());
            QVERIFY2(face.grab().toImage() != unfocused, qPrintable(QString::number(style)));
        }
    }
};

TRESSEL_GUI_TEST(WindowsTest)
#include "WindowsTest.moc"
