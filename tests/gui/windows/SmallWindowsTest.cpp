// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "DesktopStage.h"
#include "gui/GuiTest.h"
#include "widgets/IsButtonWidget.h"
#include "windows/ClickPlaces.h"

#include <QAccessible>
#include <QCheckBox>
#include <QFile>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QWindow>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

/// The window of a form that was made.
QWidget &WindowOf(const DesktopStage &stage, const QString &form)
{
    return stage.desktop->FaceOf(form)->Window();
}

QWidget &PartOf(const DesktopStage &stage, const QString &form, const QString &name)
{
    auto *widget = WindowOf(stage, form).findChild<QWidget *>(name);
    if (!widget)
        qFatal("There is no %s.", qPrintable(name));
    return *widget;
}

/// Names of the stops of the tab key; a stop without a spoken name is "?" and its own.
QStringList StopsIn(QWidget &window)
{
    QStringList stops;
    QWidget *first = window.nextInFocusChain();
    for (QWidget *widget = first; widget != &window; widget = widget->nextInFocusChain()) {
        if (!widget->isVisibleTo(&window) || !widget->isEnabled() || !(widget->focusPolicy() & Qt::TabFocus))
            continue;
        QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(widget);
        const bool hasName = spoken && !spoken->text(QAccessible::Name).trimmed().isEmpty();
        stops += (hasName ? QString() : u"?"_s) + widget->objectName();
    }
    return stops;
}

/// Names of what the tab key itself comes to, each once, from what has the keyboard on.
QStringList WalkWithTab(QWidget &window)
{
    QStringList names;
    for (int step = 0; step < 50; ++step) {
        QTest::keyClick(window.focusWidget() ? window.focusWidget() : &window, Qt::Key_Tab);
        const QString name = window.focusWidget()->objectName();
        if (names.contains(name))
            break;
        names += name;
    }
    names.sort();
    return names;
}

void StartWithAbout(DesktopStage &stage)
{
    stage.Start();
    stage.Form().btnGBToolbarAbout.UserClicks();
    stage.Settle();
}

} // namespace

class SmallWindowsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void EveryControlOfTheAboutFormHasAFaceAndTheOtherWayRound()
    {
        DesktopStage stage;
        StartWithAbout(stage);
        const WindowFace *face = stage.desktop->FaceOf(u"frmAbout"_s);
        QVERIFY(face);
        QCOMPARE(face->Faces().ControlsWithoutFace(), QStringList());
        QCOMPARE(face->Faces().WidgetsWithoutControl(), QStringList());
    }

    void AboutStandsBesideTheMainWindowAndGoesWithItsButton()
    {
        DesktopStage stage;
        StartWithAbout(stage);
        QWidget &about = WindowOf(stage, u"frmAbout"_s);
        QVERIFY(about.isVisible());
        QVERIFY(!about.isModal());
        QCOMPARE(about.windowTitle(), u"About Tressel"_s);
        QCOMPARE(about.windowHandle()->transientParent(), stage.Window().windowHandle());
        QCOMPARE(about.windowHandle()->type(), Qt::Dialog);
        QTest::mouseClick(&PartOf(stage, u"frmAbout"_s, u"btnGBOK"_s), Qt::LeftButton);
        stage.Settle();
        QVERIFY(!about.isVisible());
        QVERIFY(stage.Window().isVisible());
    }

    void TheTabKeyFindsEverythingOfAboutByName()
    {
        DesktopStage stage;
        StartWithAbout(stage);
        const QStringList stops = StopsIn(WindowOf(stage, u"frmAbout"_s));
        for (const QString &name :
             {u"lblHomePage"_s, u"lblEMail"_s, u"Text1"_s, u"chkLoadTipsAtStartup"_s, u"btnGBOK"_s})
            QVERIFY2(stops.contains(name), qPrintable(name + u" of "_s + stops.join(u' ')));
        QVERIFY2(!stops.join(u' ').contains(u'?'), qPrintable(stops.join(u' ')));
    }

    void TheTabKeyWalksThroughBothWindows()
    {
        DesktopStage stage;
        stage.Put(keys::ShowTips, u"1"_s);
        QVERIFY(QFile::copy(QString::fromLocal8Bit(TRESSEL_ASSETS "/TIPOFDAY.TXT"),
                            stage.Place(u"TIPOFDAY.TXT"_s)));
        stage.Start();
        QWidget &tip = WindowOf(stage, u"frmTip"_s);
        QVERIFY(QTest::qWaitForWindowActive(&tip));
        QCOMPARE(WalkWithTab(tip),
                 QStringList({u"chkLoadTipsAtStartup"_s, u"cmdAbout"_s, u"cmdNextTip"_s, u"cmdOK"_s,
                              u"layoutTip"_s}));
        QVERIFY2(!StopsIn(tip).join(u' ').contains(u'?'), qPrintable(StopsIn(tip).join(u' ')));
        PartOf(stage, u"frmTip"_s, u"cmdAbout"_s).setFocus();
        QTest::keyClick(tip.focusWidget(), Qt::Key_Space);
        stage.Settle();
        QWidget &about = WindowOf(stage, u"frmAbout"_s);
        QVERIFY(QTest::qWaitForWindowActive(&about));
        QCOMPARE(WalkWithTab(about),
                 QStringList(
                     {u"Text1"_s, u"btnGBOK"_s, u"chkLoadTipsAtStartup"_s, u"lblEMail"_s, u"lblHomePage"_s}));
    }

    void TheTipWindowsOwnCloseBoxShowsTheMainWindowToo()
    {
        DesktopStage stage;
        stage.Put(keys::ShowTips, u"1"_s);
        stage.Start();
        QWidget &tip = WindowOf(stage, u"frmTip"_s);
        tip.close();
        stage.Settle();
        QVERIFY(!tip.isVisible());
        QVERIFY(stage.Window().isVisible());
    }

    void AnAddressIsALinkThatEnterAndAssistiveTechnologyWork()
    {
        DesktopStage stage;
        StartWithAbout(stage);
        int clicks = 0;
        stage.desktop->application.frmAbout().lblHomePage.SetCaption(u"nothing to open"_s);
        stage.desktop->application.frmAbout().lblHomePage.Click.Also([&] { ++clicks; });
        stage.Settle();
        QWidget &link = PartOf(stage, u"frmAbout"_s, u"lblHomePage"_s);
        QTest::keyClick(&link, Qt::Key_Return);
        QCOMPARE(clicks, 1);
        QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(&link);
        QCOMPARE(spoken->role(), QAccessible::Link);
        QCOMPARE(spoken->text(QAccessible::Name), u"nothing to open"_s);
        spoken->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        stage.Settle();
        QCOMPARE(clicks, 2);
    }

    void TheLogoIsPressedInAsLongAsTheMouseIs()
    {
        DesktopStage stage;
        StartWithAbout(stage);
        QWidget &logo = PartOf(stage, u"frmAbout"_s, u"picLogo"_s);
        QWidget &pressed = PartOf(stage, u"frmAbout"_s, u"picLogo2"_s);
        QWindow *window = WindowOf(stage, u"frmAbout"_s).windowHandle();
        const QPoint middle = logo.mapTo(&WindowOf(stage, u"frmAbout"_s), logo.rect().center());
        QVERIFY(logo.isVisible() && !pressed.isVisible());
        const QImage before = logo.grab().toImage();
        QTest::mousePress(window, Qt::LeftButton, {}, middle);
        stage.Settle();
        QVERIFY(!logo.isVisible() && pressed.isVisible());
        QVERIFY(pressed.grab().toImage() != before);
        QTest::mouseRelease(window, Qt::LeftButton, {}, middle);
        stage.Settle();
        QVERIFY(logo.isVisible() && !pressed.isVisible());
    }

    void ThePictureHasALightTileOnADarkDesktop()
    {
        const QPalette before = QApplication::palette();
        for (const bool isDark : {false, true}) {
            if (isDark)
                QApplication::setPalette(QPalette(QColor(60, 60, 64), QColor(45, 45, 48)));
            DesktopStage stage;
            stage.Put(keys::ShowTips, u"1"_s);
            stage.Start();
            const QImage picture = PartOf(stage, u"frmTip"_s, u"Image1"_s).grab().toImage();
            const QColor ground = picture.pixelColor(2, picture.height() / 2);
            QCOMPARE(ground, isDark ? QColor(0xF5, 0xF5, 0xF5) : before.color(QPalette::Window));
        }
        QApplication::setPalette(before);
    }

    void ALongTipScrollsAndIsNeverCut()
    {
        DesktopStage stage;
        QFile tips(stage.Place(u"TIPOFDAY.TXT"_s));
        QVERIFY(tips.open(QIODevice::WriteOnly));
        tips.write("short\n" + QByteArray("long tips go on ").repeated(700));
        tips.close();
        stage.Put(keys::ShowTips, u"1"_s);
        stage.Start();
        auto *area = WindowOf(stage, u"frmTip"_s).findChild<QScrollArea *>();
        QCOMPARE(area->verticalScrollBar()->maximum(), 0);
        QTest::mouseClick(&PartOf(stage, u"frmTip"_s, u"cmdNextTip"_s), Qt::LeftButton);
        stage.Settle();
        auto *text = WindowOf(stage, u"frmTip"_s).findChild<QLabel *>(u"lblTipText"_s);
        QVERIFY(text->height() >= text->heightForWidth(text->width()));
        QCOMPARE(area->verticalScrollBar()->maximum(), text->height() - area->viewport()->height());
        QVERIFY(area->verticalScrollBar()->maximum() > 0);
        const QStringList stops = StopsIn(WindowOf(stage, u"frmTip"_s));
        QVERIFY2(!stops.join(u' ').contains(u'?'), qPrintable(stops.join(u' ')));
        QVERIFY(stops.contains(u"cmdAbout"_s));
    }

    void AWordThatIsLongerThanALineIsBroken()
    {
        DesktopStage stage;
        QFile tips(stage.Place(u"TIPOFDAY.TXT"_s));
        QVERIFY(tips.open(QIODevice::WriteOnly));
        tips.write(QByteArray(2000, 'W') + "\n");
        tips.close();
        stage.Put(keys::ShowTips, u"1"_s);
        stage.Start();
        auto *area = WindowOf(stage, u"frmTip"_s).findChild<QScrollArea *>();
        auto &text = PartOf(stage, u"frmTip"_s, u"lblTipText"_s);
        QCOMPARE(area->horizontalScrollBar()->maximum(), 0);
        const int lines = text.height() / text.fontMetrics().height();
        // So many letters need so many lines at the least, and the last one has some of them.
        QVERIFY(lines >= 2000 * text.fontMetrics().horizontalAdvance(u'W') / text.width());
        const QImage picture = text.grab().toImage();
        const QRgb ground = picture.pixel(picture.width() - 1, picture.height() - 1);
        const auto isWritten = [&](int top) {
            for (int y = top; y < top + text.fontMetrics().height() && y < picture.height(); ++y) {
                for (int x = 0; x < picture.width(); ++x) {
                    if (picture.pixel(x, y) != ground)
                        return true;
                }
            }
            return false;
        };
        QVERIFY(isWritten(0));
        QVERIFY(isWritten(picture.height() - text.fontMetrics().height()));
    }

    void TheBuiltInLinesStandEachOnALineOfItsOwn()
    {
        DesktopStage stage;
        stage.Put(keys::ShowTips, u"1"_s);
        stage.Start();
        auto &text = PartOf(stage, u"frmTip"_s, u"lblTipText"_s);
        auto *area = WindowOf(stage, u"frmTip"_s).findChild<QScrollArea *>();
        QVERIFY(text.heightForWidth(100000) >= 4 * text.fontMetrics().height());
        QCOMPARE(area->verticalScrollBar()->maximum(), 0);
        QVERIFY(!PartOf(stage, u"frmTip"_s, u"cmdNextTip"_s).isEnabled());
    }

    void TheNoticeIsReachedByTabAndWorkedByKeyMouseAndAssistiveTechnology()
    {
        DesktopStage stage;
        stage.Start();
        UpdateCheck &update = stage.Form().update;
        auto &notice = stage.Face<NoticeBox>(u"PicUpdate"_s);
        for (int way = 0; way < 3; ++way) {
            update.lblUpdate.SetCaption(u" (New version 5.1451 is available)"_s);
            update.PicUpdate.SetVisible(true);
            stage.Settle();
            QVERIFY(notice.isVisible());
            QVERIFY(StopsIn(stage.Window()).contains(u"PicUpdate"_s));
            QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(&notice);
            QCOMPARE(spoken->role(), QAccessible::Button);
            QCOMPARE(spoken->text(QAccessible::Name), u"(New version 5.1451 is available)"_s);
            QCOMPARE(notice.cursor().shape(), Qt::PointingHandCursor);
            if (way == 0)
                QTest::keyClick(&notice, Qt::Key_Return);
            else if (way == 1)
                QTest::mouseClick(&stage.Face<QLabel>(u"lblUpdate"_s), Qt::LeftButton);
            else
                spoken->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
            stage.Settle();
            QVERIFY(!notice.isVisible());
        }
    }

    void TheNoticeIsYellowOnRed()
    {
        DesktopStage stage;
        stage.Start();
        stage.Form().update.PicUpdate.SetVisible(true);
        stage.Settle();
        const auto &notice = stage.Face<NoticeBox>(u"PicUpdate"_s);
        const auto &text = stage.Face<QLabel>(u"lblUpdate"_s);
        QCOMPARE(notice.palette().color(QPalette::Window), QColor(255, 0, 0));
        QCOMPARE(text.palette().color(QPalette::WindowText), QColor(255, 255, 0));
        QVERIFY(text.font().bold());
        QCOMPARE(stage.Face<NoticeBox>(u"PicUpdate"_s).grab().toImage().pixelColor(1, 1), QColor(255, 0, 0));
    }

    void ATextWithALineBreakLeavesTheBandsHeight()
    {
        DesktopStage stage;
        stage.Start();
        const int height = stage.Face<QWidget>(u"PicStatus"_s).height();
        stage.Form().update.lblUpdate.SetCaption(u" (New version .1450\n is available)"_s);
        stage.Form().update.PicUpdate.SetVisible(true);
        stage.Settle();
        QCOMPARE(stage.Face<QWidget>(u"PicStatus"_s).height(), height);
    }
};

TRESSEL_GUI_TEST(SmallWindowsTest)
#include "SmallWindowsTest.moc"
