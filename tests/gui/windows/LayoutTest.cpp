// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "DesktopStage.h"
#include "gui/GuiTest.h"
#include "widgets/CtlProgressWidget.h"
#include "widgets/IsButtonWidget.h"
#include "widgets/SideBarWidget.h"

#include <QAccessible>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QProgressBar>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyleOptionGroupBox>
#include <QTreeView>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

constexpr int entryCount = 7;
constexpr QSize leastSize(542, 455);
constexpr QSize firstSize(722, 524);

QRect PlaceIn(const QWidget &window, const QWidget &widget)
{
    return {widget.mapTo(&window, QPoint()), widget.size()};
}

/// Whether all of a widget can be seen: nothing that holds it cuts it off.
bool IsSeenWhole(const QWidget &widget)
{
    QRect place = widget.rect();
    for (const QWidget *inner = &widget; !inner->isWindow(); inner = inner->parentWidget()) {
        place.translate(inner->pos());
        if (!inner->parentWidget()->rect().contains(place))
            return false;
    }
    return widget.isVisible();
}

/// Where a group's title begins, from the left of the group.
int TitleLeft(const QGroupBox &group)
{
    QStyleOptionGroupBox option;
    option.initFrom(&group);
    option.text = group.title();
    option.lineWidth = 1;
    option.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel;
    option.textAlignment = Qt::AlignLeft;
    return group.style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel, &group).x();
}

/// Run buttons and progress bars of each entry's page.
QStringList Foot(int entry)
{
    static const QList<QStringList> feet{
        {},
        {u"btnGBLoadFile"_s, u"btnGBSaveFile"_s, u"ProgressBar1"_s, u"btnGBMakeList"_s, u"btnGBResult"_s,
         u"ProgrBar"_s, u"btnGBErase"_s},
        {u"btnGBMake"_s},
        {u"ctlProgress1"_s, u"btnGBSplitFile"_s, u"btnGBJoinFile"_s},
        {u"btnGBLoadList"_s},
        {u"btnGBToolbarSearch"_s, u"btnGBToolbarOpenDir"_s, u"btnGBToolbarDelDir"_s,
         u"btnGBToolbarDeleteAll"_s, u"btnGBToolbarCopy"_s},
        {u"btnGBRename"_s, u"btnGBReplace"_s, u"btnGBExtension"_s, u"btnGBCancel"_s, u"ProgressBar"_s},
    };
    return feet.at(entry - 1);
}

/// The stops of the tab key from the window's first one on, each once, by their controls' names.
QStringList TabStops(QWidget &window, const Form &form)
{
    QStringList stops;
    QWidget *first = window.focusWidget();
    QWidget *stop = first;
    do {
        QWidget *named = stop;
        while (!form.Find(named->objectName()))
            named = named->parentWidget();
        stops += named->objectName();
        QTest::keyClick(stop, Qt::Key_Tab);
        stop = window.focusWidget();
    } while (stop != first && stops.size() < 1000);
    return stops;
}

} // namespace

class LayoutTest : public QObject {
    Q_OBJECT

private:
    static void Resize(DesktopStage &stage, const QSize &size)
    {
        stage.Window().resize(size);
        stage.Settle();
    }

    static QScrollArea *ShownArea(const DesktopStage &stage)
    {
        for (QScrollArea *area : stage.Window().findChildren<QScrollArea *>()) {
            if (area->isVisible())
                return area;
        }
        return nullptr;
    }

private Q_SLOTS:
    void RunButtonsAndProgressAreInViewOnEveryPage_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::newRow("least") << leastSize;
        QTest::newRow("first") << firstSize;
    }

    void RunButtonsAndProgressAreInViewOnEveryPage()
    {
        QFETCH(QSize, size);
        DesktopStage stage;
        stage.Start();
        Resize(stage, size);
        for (int entry = 1; entry <= entryCount; ++entry) {
            stage.OpenEntry(entry);
            for (const QString &name : Foot(entry))
                QVERIFY2(IsSeenWhole(stage.Face<QWidget>(name)), qPrintable(name));
        }
    }

    void NothingOfAPageIsCutOffSideways_data() { RunButtonsAndProgressAreInViewOnEveryPage_data(); }

    void NothingOfAPageIsCutOffSideways()
    {
        QFETCH(QSize, size);
        DesktopStage stage;
        stage.Start();
        Resize(stage, size);
        for (int entry = 1; entry <= entryCount; ++entry) {
            stage.OpenEntry(entry);
            const QRect page(stage.Face<SideBarWidget>(u"EyeDropper1"_s).PageRect());
            QScrollArea *area = ShownArea(stage);
            QVERIFY(area);
            QVERIFY2(area->horizontalScrollBar()->maximum() == 0, qPrintable(QString::number(entry)));
            for (const Control *control : stage.Form().Controls()) {
                auto *widget = stage.Window().findChild<QWidget *>(control->Name());
                if (!widget || !widget->isVisible() || !area->widget()->isAncestorOf(widget))
                    continue;
                // In the page's own room, which a scroll bar makes less.
                const QRect place = PlaceIn(*area->widget(), *widget);
                QVERIFY2(place.left() >= 0 && place.right() < area->viewport()->width(),
                         qPrintable(control->Name()));
                // Captions need their whole width.
                if (qobject_cast<QCheckBox *>(widget) || qobject_cast<QRadioButton *>(widget)
                    || qobject_cast<IsButtonWidget *>(widget))
                    QVERIFY2(widget->width() >= widget->sizeHint().width()
                                 || widget->maximumWidth() < widget->sizeHint().width(),
                             qPrintable(control->Name()));
            }
            QVERIFY(page.width() >= area->widget()->minimumSizeHint().width());
            QVERIFY(stage.Face<QTreeView>(u"TVList"_s).viewport()->height() > 60);
            QVERIFY(stage.Face<QListView>(u"LstItem"_s).viewport()->height() > 60);
        }
    }

    void TheStripFallsToItsIconsBeforeAPageScrolls()
    {
        DesktopStage stage;
        stage.Start();
        auto &bar = stage.Face<SideBarWidget>(u"EyeDropper1"_s);
        for (int height = leastSize.height(); height <= 900; height += 40) {
            Resize(stage, QSize(800, height));
            for (int entry = 1; entry <= entryCount; ++entry) {
                stage.OpenEntry(entry);
                const bool scrolls = ShownArea(stage)->verticalScrollBar()->maximum() > 0;
                QVERIFY2(!scrolls || bar.Rows() == 0,
                         qPrintable(u"%1 high, entry %2"_s.arg(height).arg(entry)));
            }
        }
        // With room for all there is a row for each.
        Resize(stage, QSize(800, 1080));
        QCOMPARE(bar.Rows(), entryCount);
    }

    void TheStripGrowsPastThreeRowsWhereTheGripIsDrawnUp()
    {
        DesktopStage stage;
        stage.Start();
        auto &bar = stage.Face<SideBarWidget>(u"EyeDropper1"_s);
        const QPoint grip = bar.Places().Grip().center();
        QTest::mousePress(&bar, Qt::LeftButton, {}, grip);
        QMouseEvent move(QEvent::MouseMove, grip - QPoint(0, 130), bar.mapToGlobal(grip - QPoint(0, 130)),
                         Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&bar, &move);
        QTest::mouseRelease(&bar, Qt::LeftButton, {}, grip - QPoint(0, 130));
        stage.Settle();
        QVERIFY2(bar.Rows() > 3, qPrintable(QString::number(bar.Rows())));
        for (int entry = 1; entry <= entryCount; ++entry) {
            stage.OpenEntry(entry);
            for (const QString &name : Foot(entry))
                QVERIFY2(IsSeenWhole(stage.Face<QWidget>(name)), qPrintable(name));
        }
    }

    void TheTabKeyGoesInReadingOrder_data()
    {
        QTest::addColumn<int>("entry");
        QTest::addColumn<QStringList>("page");
        QTest::newRow("browse") << 1 << QStringList{u"DrvList"_s, u"DirList"_s, u"FileList"_s};
        QTest::newRow("text") << 2 << QStringList{u"CboFilePath"_s,   u"btnGBBrowse"_s,   u"txtReport"_s,
                                                  u"ChckValg"_s,      u"ChckDir"_s,       u"lstErase"_s,
                                                  u"btnGBLoadFile"_s, u"btnGBSaveFile"_s, u"btnGBMakeList"_s,
                                                  u"btnGBResult"_s};
        QTest::newRow("numbered") << 3 << QStringList{u"DrvBox"_s,        u"DirBox"_s,       u"txtFeltDir"_s,
                                                      u"txtFeltDirSub"_s, u"cboFrom"_s,      u"cboTo"_s,
                                                      u"chkMain_Sub"_s,   u"Chck_MakeDel"_s, u"btnGBMake"_s};
        QTest::newRow("splitter") << 4 << QStringList{u"cboFileName"_s,     u"btnBrowse"_s,
                                                      u"optSplit(0)"_s,     u"cmbSplitSize"_s,
                                                      u"chkCopyToFloppy"_s, u"chkOpenExplorer"_s,
                                                      u"chkDeleteParts"_s,  u"btnGBSplitFile"_s,
                                                      u"btnGBJoinFile"_s};
        QTest::newRow("database") << 5
                                  << QStringList{u"txtDatabaseFile"_s, u"btnGBOpenDatabase"_s,
                                                 u"ListBox(0)"_s, u"ListBox(1)"_s, u"btnGBLoadList"_s};
        QTest::newRow("empty folders")
            << 6
            << QStringList{u"DrvListRemove"_s, u"DirListRemove"_s, u"ListRemove"_s, u"btnGBToolbarSearch"_s};
        QTest::newRow("rename") << 7 << QStringList{u"txtCurrentPath"_s,        u"btnGBBrowsePath"_s,
                                                    u"optRenameFile"_s,         u"optNoChange"_s,
                                                    u"chkCapFirstLetter"_s,     u"chkCapAfterEverySpace"_s,
                                                    u"optSpecificExtensions"_s, u"txtSpecificExtFrom"_s,
                                                    u"txtSpecificExtTo"_s,      u"optReplacePresetNone"_s,
                                                    u"txtReplaceFrom"_s,        u"txtReplaceTo"_s,
                                                    u"optReplaceFile"_s,        u"btnGBRename"_s,
                                                    u"btnGBReplace"_s,          u"btnGBExtension"_s};
    }

    void TheTabKeyGoesInReadingOrder()
    {
        QFETCH(int, entry);
        QFETCH(QStringList, page);
        DesktopStage stage;
        stage.Start();
        stage.Window().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&stage.Window()));
        stage.OpenEntry(entry);
        stage.Face<QLineEdit>(u"txtStrtPath"_s).setFocus();
        const QStringList around{u"txtStrtPath"_s, u"chkExtension"_s, u"chkButtonBar"_s, u"EyeDropper1"_s};
        const QStringList behind{u"PicStrip"_s, u"TVList"_s, u"LstItem"_s, u"btnGBToolbarCreate"_s};
        const QStringList stops = TabStops(stage.Window(), stage.Form());
        QCOMPARE(stops.mid(0, around.size() + page.size() + behind.size()), around + page + behind);
    }

    void NoPageShowsWhereTheLoadEndedBeforeTheSideBarHadItsEntries()
    {
        DesktopStage stage;
        stage.Put(keys::WindowLeft, u"no number"_s);
        stage.Start();
        const auto &bar = stage.Face<SideBarWidget>(u"EyeDropper1"_s);
        QCOMPARE(bar.Count(), 0);
        QVERIFY(bar.isVisible());
        for (int page = 0; page < 8; ++page) {
            const QString name = u"FrameXPMenu(%1)"_s.arg(page);
            QVERIFY2(!stage.Face<QWidget>(name).isVisible(), qPrintable(name));
        }
    }

    void ThePageOfEachEntryIsTheOnlyOneOnShow()
    {
        DesktopStage stage;
        stage.Start();
        const QList<int> pages{0, 6, 2, 7, 4, 5, 1};
        for (int entry = 1; entry <= entryCount; ++entry) {
            stage.OpenEntry(entry);
            for (int page = 0; page < 8; ++page)
                QCOMPARE(stage.Face<QWidget>(u"FrameXPMenu(%1)"_s.arg(page)).isVisible(),
                         page == pages.at(entry - 1));
        }
    }

    void TheStripHasTheSameRowsOnEveryPage()
    {
        DesktopStage stage;
        stage.Start();
        const auto &bar = stage.Face<SideBarWidget>(u"EyeDropper1"_s);
        for (const int height : {524, 700, 768, 900}) {
            Resize(stage, QSize(800, height));
            stage.OpenEntry(1);
            const int rows = bar.Rows();
            for (int entry = 2; entry <= entryCount; ++entry) {
                stage.OpenEntry(entry);
                QCOMPARE(bar.Rows(), rows);
            }
        }
    }

    void TheFirstFocusIsThePath()
    {
        DesktopStage stage;
        stage.Start();
        QVERIFY(QTest::qWaitForWindowActive(&stage.Window()));
        QCOMPARE(stage.Window().focusWidget(), &stage.Face<QWidget>(u"txtStrtPath"_s));
    }

    void TheNoticeStandsBesideAStatusTextOfAnyLength()
    {
        DesktopStage stage;
        stage.Start();
        stage.Form().update.PicUpdate.SetVisible(true);
        const auto &line = stage.Face<QLabel>(u"lblStatusLine"_s);
        const auto &notice = stage.Face<QWidget>(u"PicUpdate"_s);
        for (const QString &text : {u"Ready"_s, u"Finished, folders created successfully"_s, u"x"_s}) {
            stage.Form().area.lblStatusLine.SetCaption(text);
            stage.Settle();
            QCOMPARE(line.width(), line.sizeHint().width());
            QCOMPARE(notice.x() - (line.x() + line.width()), 20);
        }
        stage.Form().area.lblStatusLine.SetCaption(QString(400, u'w'));
        stage.Settle();
        QVERIFY(IsSeenWhole(notice));
        QCOMPARE(notice.x() - (line.x() + line.width()), 20);
        QCOMPARE(stage.Window().size(), firstSize);
    }

    void TheBandsHaveTheirHeights()
    {
        DesktopStage stage;
        stage.Start();
        QVERIFY(stage.Face<QWidget>(u"PicStatus"_s).height() >= 21);
        QCOMPARE(stage.Face<QWidget>(u"PicHold"_s).size(), QSize(7, 43));
        const auto &bar = stage.Face<QWidget>(u"PicStrip"_s);
        const auto &grip = stage.Face<QWidget>(u"PicHold"_s);
        QVERIFY(qAbs(grip.geometry().center().y() - bar.rect().center().y()) <= 1);
        QCOMPARE(PlaceIn(stage.Window(), stage.Face<QWidget>(u"PicStatus"_s)).bottom(),
                 stage.Window().height() - 1);
    }

    void TheStoredWidthOfTheBarIsItsWidth_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<int>("width");
        QTest::newRow("narrow") << u"60"_s << 4;
        QTest::newRow("wider than its place") << u"1980"_s << 8;
        QTest::newRow("none") << u"0"_s << 8;
        QTest::newRow("never stored") << QString() << 8;
    }

    void TheStoredWidthOfTheBarIsItsWidth()
    {
        QFETCH(QString, stored);
        QFETCH(int, width);
        DesktopStage stage;
        if (!stored.isNull())
            stage.Put(keys::Separate, stored);
        stage.Start();
        QCOMPARE(stage.Face<QWidget>(u"PicStrip"_s).width(), width);
    }

    void AMoveOverTheGripMovesTheBarOnce()
    {
        DesktopStage stage;
        stage.Start();
        auto &grip = stage.Face<QWidget>(u"PicHold"_s);
        const int before = stage.Form().PicStrip.Left();
        int moves = 0;
        stage.Form().PicHold.MouseMove.Also([&](int, int) { ++moves; });
        stage.Form().PicStrip.MouseMove.Also([&](int, int) { ++moves; });
        QWindow *window = stage.Window().windowHandle();
        const QPoint start = grip.mapTo(&stage.Window(), QPoint(0, 5));
        QTest::mousePress(window, Qt::LeftButton, {}, start);
        QTest::mouseMove(window, start + QPoint(30, 0));
        QCOMPARE(moves, 1);
        QCOMPARE(stage.Form().PicStrip.Left(), before + 30 * 15);
        QTest::mouseRelease(window, Qt::LeftButton, {}, start + QPoint(30, 0));
        stage.Settle();
        QCOMPARE(stage.Form().PicStrip.Left(), before + 30 * 15);
    }

    void TheGroupsOfAPageStandInOneLine()
    {
        DesktopStage stage;
        stage.Start();
        stage.OpenEntry(4);
        QSet<int> lefts;
        QSet<int> rights;
        QSet<int> contents;
        QSet<int> titles;
        for (const QString &name : {u"Frame1"_s, u"fraEst"_s, u"Frame2"_s, u"fraStats"_s}) {
            auto &group = stage.Face<QGroupBox>(name);
            lefts += group.x();
            rights += group.geometry().right();
            int left = group.width();
            for (const QWidget *part : group.findChildren<QWidget *>(Qt::FindDirectChildrenOnly)) {
                if (part->isVisible())
                    left = std::min(left, part->x());
            }
            contents += left;
            titles += TitleLeft(group);
        }
        QCOMPARE(lefts.size(), 1);
        QCOMPARE(rights.size(), 1);
        QCOMPARE(contents.size(), 1);
        QCOMPARE(titles.size(), 1);
        // Titles begin where the boxes do.
        const int title = *titles.begin();
        QVERIFY2(title >= 0 && title <= 1, qPrintable(QString::number(title)));
    }

    void IdleBarsReadNothing()
    {
        DesktopStage stage;
        stage.Start();
        for (int entry = 1; entry <= entryCount; ++entry) {
            stage.OpenEntry(entry);
            for (const QString &name : Foot(entry)) {
                if (const auto *bar = stage.Window().findChild<QProgressBar *>(name))
                    QVERIFY2(!bar->isTextVisible(), qPrintable(name));
                auto *own = stage.Window().findChild<CtlProgressWidget *>(name);
                if (own)
                    QCOMPARE(QAccessible::queryAccessibleInterface(own)->text(QAccessible::Value), QString());
            }
        }
    }

    void ShortNumbersAreNotDrawnAcrossAWidePage()
    {
        DesktopStage stage;
        stage.Put(keys::TabStrip, u"25000"_s);
        stage.Start();
        Resize(stage, QSize(1920, 1080));
        stage.Form().PicStrip.SetLeft(25000);
        stage.Form().LayoutPanes();
        stage.Settle();
        QVERIFY(stage.Face<QWidget>(u"EyeDropper1"_s).width() > 1500);
        stage.OpenEntry(3);
        for (const QString &name : {u"cboFrom"_s, u"cboTo"_s})
            QVERIFY2(stage.Face<QWidget>(name).width() <= 120, qPrintable(name));
        const QWidget &from = stage.Face<QWidget>(u"cboFrom"_s);
        const QWidget &to = stage.Face<QWidget>(u"cboTo"_s);
        QVERIFY(PlaceIn(stage.Window(), to).left() - PlaceIn(stage.Window(), from).right() < 80);
        stage.OpenEntry(4);
        for (const QString &name : {u"cmbSplitSize"_s, u"txtSplitCount"_s})
            QVERIFY2(stage.Face<QWidget>(name).width() <= 120, qPrintable(name));
    }
};

TRESSEL_GUI_TEST(LayoutTest)
#include "LayoutTest.moc"
