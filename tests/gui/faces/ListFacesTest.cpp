// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "controls/ListBox.h"
#include "controls/TreeView.h"
#include "gui/GuiTest.h"
#include "gui/faces/Bound.h"

#include <QListView>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTreeView>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

void ClickRow(QAbstractItemView &view, const QModelIndex &index)
{
    view.scrollTo(index);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(index).center());
}

void PointAt(QAbstractItemView &view, QPoint place)
{
    QMouseEvent move(QEvent::MouseMove, place, view.viewport()->mapToGlobal(place), Qt::NoButton,
                     Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(view.viewport(), &move);
}

} // namespace

class ListFacesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void RowsAndSelectionAreShown()
    {
        Form form(u"f"_s);
        ListBox list(form, u"lstErase"_s);
        list.SetItems({u"a"_s, u"b"_s, u"a"_s});
        list.SetListIndex(2);
        int clicks = 0;
        list.Click.Handle([&] { ++clicks; });
        Bound bound(form);
        auto &view = bound.Add<QListView>(u"lstErase"_s);
        QVERIFY(bound.Bind());
        QVERIFY(view.uniformItemSizes());
        QCOMPARE(view.model()->rowCount(), 3);
        QCOMPARE(view.currentIndex().row(), 2);
        QCOMPARE(clicks, 0);

        list.RemoveItem(0);
        bound.updates.Flush();
        QCOMPARE(view.model()->rowCount(), 2);
        QCOMPARE(view.currentIndex().row(), 1);
        QCOMPARE(view.selectionModel()->selectedIndexes().size(), 1);
        list.SetListIndex(-1);
        bound.updates.Flush();
        QVERIFY(!view.selectionModel()->hasSelection());
        QCOMPARE(clicks, 1);
    }

    void EveryClickOnARowCounts()
    {
        Form form(u"f"_s);
        ListBox list(form, u"lstErase"_s);
        list.SetItems({u"a"_s, u"b"_s, u"c"_s});
        QList<int> chosen;
        int opened = 0;
        list.Click.Handle([&] { chosen += list.ListIndex(); });
        list.DoubleClick.Handle([&] { ++opened; });
        Bound bound(form);
        auto &view = bound.Add<QListView>(u"lstErase"_s);
        view.resize(300, 200);
        QVERIFY(bound.Bind());

        ClickRow(view, view.model()->index(1, 0));
        QCOMPARE(chosen, QList<int>({1}));
        ClickRow(view, view.model()->index(1, 0));
        QCOMPARE(chosen, QList<int>({1, 1}));
        QTest::keyClick(&view, Qt::Key_Down);
        QCOMPARE(chosen, QList<int>({1, 1, 2}));
        QTest::keyClick(&view, Qt::Key_Return);
        QCOMPARE(opened, 1);
        ClickRow(view, view.model()->index(0, 0));
        QTest::mouseDClick(view.viewport(), Qt::LeftButton, {},
                           view.visualRect(view.model()->index(0, 0)).center());
        QCOMPARE(opened, 2);
        QCOMPARE(list.ListIndex(), 0);
    }

    void TabbingIntoAListChoosesNothing()
    {
        Form form(u"f"_s);
        ListBox list(form, u"lstErase"_s);
        list.SetItems({u"a"_s, u"b"_s});
        int clicks = 0;
        list.Click.Handle([&] { ++clicks; });
        Bound bound(form);
        auto &view = bound.Add<QListView>(u"lstErase"_s);
        QVERIFY(bound.Bind());
        bound.window.setFocus();
        view.setFocus(Qt::TabFocusReason);
        QVERIFY(view.hasFocus());
        QCOMPARE(clicks, 0);
        QCOMPARE(list.ListIndex(), -1);
    }

    void ThePointersRowIsTold()
    {
        Form form(u"f"_s);
        ListBox list(form, u"lstErase"_s);
        list.SetItems({u"a long name"_s, u"b"_s});
        list.MouseMove.Handle(
            [&](int row) { list.SetToolTip(row < 0 ? QString() : u" "_s + list.Item(row) + u" "_s); });
        Bound bound(form);
        auto &view = bound.Add<QListView>(u"lstErase"_s);
        view.resize(300, 200);
        QVERIFY(bound.Bind());
        PointAt(view, view.visualRect(view.model()->index(0, 0)).center());
        QTRY_COMPARE(view.toolTip(), u" a long name "_s);
        PointAt(view, QPoint(20, 190));
        QTRY_COMPARE(view.toolTip(), QString());
    }

    void ManyRowsReachTheViewInFewBlocks()
    {
        Form form(u"f"_s);
        ListBox list(form, u"LstItem"_s);
        Bound bound(form);
        auto &view = bound.Add<QListView>(u"LstItem"_s);
        QVERIFY(bound.Bind());
        QSignalSpy inserted(view.model(), &QAbstractItemModel::rowsInserted);
        QSignalSpy reset(view.model(), &QAbstractItemModel::modelReset);

        const int flushesBefore = bound.updates.Count();
        for (int row = 0; row < 32767; ++row)
            list.AddItem(QString::number(row));
        QTRY_COMPARE(view.model()->rowCount(), 32767);
        QCOMPARE(inserted.count(), 1);
        QCOMPARE(reset.count(), 0);
        QCOMPARE(bound.updates.Count(), flushesBefore + 1);
        QTRY_VERIFY(view.verticalScrollBar()->maximum() > 0);
    }

    void ScrollPlaceOutlivesARemoval()
    {
        Form form(u"f"_s);
        ListBox list(form, u"ListRemove"_s);
        for (int row = 0; row < 500; ++row)
            list.AddItem(QString::number(row));
        Bound bound(form);
        auto &view = bound.Add<QListView>(u"ListRemove"_s);
        QVERIFY(bound.Bind());
        view.verticalScrollBar()->setValue(250);
        const int before = view.verticalScrollBar()->value();
        QVERIFY(before > 0);
        list.RemoveItem(255);
        bound.updates.Flush();
        QCOMPARE(view.verticalScrollBar()->value(), before);
    }

    void TreeShowsNodesWithTheirIcons()
    {
        Form form(u"f"_s);
        TreeView tree(form, u"TVList"_s);
        QList<int> clicked;
        tree.NodeClick.Handle([&](int node) { clicked += node; });
        tree.AddRoot(u"main"_s, u"Create 2 Main Folders"_s, 4);
        tree.AddChild(u"main"_s, u"a"_s, 5);
        tree.AddChild(u"main"_s, u"b"_s, 5);
        tree.Expand(0);
        Bound bound(form);
        QPixmap red(16, 16);
        red.fill(Qt::red);
        FaceLooks looks;
        looks.nodes.insert(5, QIcon(red));
        bound.makers = FaceMakers(looks);
        auto &view = bound.Add<QTreeView>(u"TVList"_s);
        view.resize(300, 200);
        QVERIFY(bound.Bind());

        const QModelIndex root = view.model()->index(0, 0);
        QCOMPARE(root.data().toString(), u"Create 2 Main Folders"_s);
        QVERIFY(view.isExpanded(root));
        QVERIFY(view.isHeaderHidden() && view.uniformRowHeights());
        const QModelIndex child = view.model()->index(1, 0, root);
        const QImage picture = view.viewport()->grab(view.visualRect(child)).toImage();
        bool isRed = false;
        for (int x = 0; x < picture.width(); ++x)
            isRed |= picture.pixelColor(x, picture.height() / 2) == QColor(Qt::red);
        QVERIFY(isRed);

        ClickRow(view, child);
        QCOMPARE(clicked, QList<int>({2}));
        QCOMPARE(tree.SelectedNode(), 2);
        QTest::keyClick(&view, Qt::Key_Up);
        QCOMPARE(clicked, QList<int>({2}));
        QTest::keyClick(&view, Qt::Key_Enter);
        QCOMPARE(clicked, QList<int>({2, 1}));
    }

    void TreeKeepsWhatTheUserClosed()
    {
        Form form(u"f"_s);
        TreeView tree(form, u"TVList"_s);
        tree.AddRoot(u"main"_s, u"root"_s, 4);
        tree.AddChild(u"main"_s, u"a"_s, 5);
        tree.Expand(0);
        Bound bound(form);
        auto &view = bound.Add<QTreeView>(u"TVList"_s);
        QVERIFY(bound.Bind());
        QVERIFY(view.isExpanded(view.model()->index(0, 0)));
        view.setFocus();
        view.setCurrentIndex(view.model()->index(0, 0));
        QTest::keyClick(&view, Qt::Key_Left);
        QVERIFY(!view.isExpanded(view.model()->index(0, 0)));
        QVERIFY(!tree.IsExpanded(0));
        // Another tree under the same name, so that the view starts anew.
        tree.AddRoot(QString(), u"second root"_s, 4);
        tree.AddChild(u"main"_s, u"b"_s, 5);
        bound.updates.Flush();
        QCOMPARE(view.model()->rowCount(), 2);
        QCOMPARE(view.model()->rowCount(view.model()->index(0, 0)), 2);
        QVERIFY(!view.isExpanded(view.model()->index(0, 0)));
        // And what the user opens stays open.
        QTest::keyClick(&view, Qt::Key_Right);
        QVERIFY(tree.IsExpanded(0));
        tree.AddChild(u"main"_s, u"c"_s, 5);
        tree.AddRoot(QString(), u"third root"_s, 4);
        bound.updates.Flush();
        QVERIFY(view.isExpanded(view.model()->index(0, 0)));

        // Built anew: the old state goes with the old nodes.
        tree.Clear();
        tree.AddRoot(u"main"_s, u"new root"_s, 4);
        tree.AddChild(u"main"_s, u"c"_s, 6);
        tree.Expand(0);
        bound.updates.Flush();
        QVERIFY(view.isExpanded(view.model()->index(0, 0)));
        QVERIFY(tree.IsExpanded(0));
    }
};

TRESSEL_GUI_TEST(ListFacesTest)
#include "ListFacesTest.moc"
