// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// Settings that could put the window, or what is on it, out of reach.

#include "DesktopStage.h"
#include "gui/GuiTest.h"

#include <QScreen>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

constexpr int entryCount = 7;
constexpr QSize firstSize(722, 524);

/// A run button of each entry's page that has one.
QStringList RunButtons()
{
    return {QString(),          u"btnGBMakeList"_s,      u"btnGBMake"_s,  u"btnGBSplitFile"_s,
            u"btnGBLoadList"_s, u"btnGBToolbarSearch"_s, u"btnGBRename"_s};
}

bool IsSeenWhole(const QWidget &widget)
{
    return widget.isVisible() && QRegion(widget.rect()).subtracted(widget.visibleRegion()).isEmpty();
}

} // namespace

class WayBackTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void AWindowWhosePlaceIsOnNoScreenComesBackOntoOne_data()
    {
        QTest::addColumn<QString>("left");
        QTest::addColumn<QString>("top");
        QTest::newRow("right of it") << u"90000"_s << u"300"_s;
        QTest::newRow("left of it") << u"-90000"_s << u"300"_s;
        QTest::newRow("below") << u"300"_s << u"90000"_s;
        QTest::newRow("above, its title out of sight") << u"300"_s << u"-7500"_s;
        QTest::newRow("as far as numbers go") << u"2147483647"_s << u"-2147483648"_s;
    }

    void AWindowWhosePlaceIsOnNoScreenComesBackOntoOne()
    {
        QFETCH(QString, left);
        QFETCH(QString, top);
        DesktopStage stage;
        stage.Put(keys::MainLeft, left);
        stage.Put(keys::MainTop, top);
        stage.Start();
        // The window's frame, which nothing is known of before there is one, comes on top.
        const QRect screen = stage.Window().screen()->availableGeometry().adjusted(-4, -4, 4, 4);
        const QRect place = stage.Window().geometry();
        QVERIFY2(screen.contains(place), qPrintable(u"%1, %2"_s.arg(place.x()).arg(place.y())));
        QCOMPARE(place.size(), firstSize);
        // So does the form, which stores it at the end, and the dialog over it.
        QCOMPARE(stage.Form().Left(), stage.Window().x() * 15);
        QCOMPARE(stage.Form().Top(), stage.Window().y() * 15);
        stage.Form().btnGBToolbarOption.UserClicks();
        stage.Settle();
        const QRect dialog = stage.desktop->FaceOf(u"frmOption"_s)->Window().geometry();
        QVERIFY2(screen.contains(dialog.center()) && dialog.top() >= -12,
                 qPrintable(u"%1, %2"_s.arg(dialog.x()).arg(dialog.y())));
    }

    void APlaceThatIsPartlyOnTheScreenStays()
    {
        DesktopStage stage;
        stage.Put(keys::MainLeft, u"-4500"_s);
        stage.Put(keys::MainTop, u"1500"_s);
        stage.Start();
        QCOMPARE(stage.Window().pos(), QPoint(-300, 100));
    }

    void AFontOfAnySizeLeavesThePagesTheirRoom_data()
    {
        QTest::addColumn<QString>("points");
        for (const char *points : {"0", "-5", "0.001", "200", "5000", "2147483647", "1e300"})
            QTest::newRow(points) << QString::fromLatin1(points);
    }

    void AFontOfAnySizeLeavesThePagesTheirRoom()
    {
        QFETCH(QString, points);
        DesktopStage stage;
        stage.Put(keys::TitleBarSize, points);
        stage.Put(keys::TitleCapSize, points);
        stage.Start();
        stage.Window().grab();
        QCOMPARE(stage.Window().size(), firstSize);
        QVERIFY(IsSeenWhole(stage.Face<QWidget>(u"btnGBToolbarOption"_s)));
        for (int entry = 2; entry <= entryCount; ++entry) {
            stage.OpenEntry(entry);
            const QString name = RunButtons().at(entry - 1);
            QVERIFY2(IsSeenWhole(stage.Face<QWidget>(name)), qPrintable(name));
        }
    }
};

TRESSEL_GUI_TEST(WayBackTest)
#include "WayBackTest.moc"
