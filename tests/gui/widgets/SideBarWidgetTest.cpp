// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "gui/GuiTest.h"
#include "gui/faces/Bound.h"
#include "gui/widgets/SideBarHands.h"
#include "widgets/OwnKinds.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QMenu>
#include <QToolTip>

using namespace tressel;
using namespace Qt::StringLiterals;

/// What the hand, the keyboard and assistive technology do with it.
class SideBarWidgetTest : public QObject, private SideBarHands {
    Q_OBJECT

private Q_SLOTS:
    void init() { QVERIFY(Up()); }
    void cleanup() { QCOMPARE(Down(), QStringList()); }

    void ClickOpensAnEntryAndItsPage();
    void ReleaseElsewhereOpensNothing();
    void ClickOnASmallIconOpensWithoutMovingIt();
    void TheWheelScrollsTheRows();
    void ChevronsScrollByOneRow();
    void ArrowsHomeAndEndOpenEntries();
    void LeftAndRightAreMirrored();
    void LettersOpenTheNextEntryThatStartsWithThem();
    void ControlTabCyclesFromInsideAPage();
    void KeysOfAPageAreNotTaken();
    void ControlArrowsAndTheGripSetTheRows();
    void TheFocusStaysWithTheSideBarWhenAPageGoes();
    void FocusIsShownForKeysOnly();
    void AssistantsSeeATabList();
    void AssistantsCanOpenAndFocusAnEntry();
    void TheMenuShowsAndHidesEntries();
    void WithoutShowMenuThereIsNoMenu();
    void EntriesHaveToolTipsWithTheirKeys();
    void PropertiesTellTheState();
    void WithoutAControlItIsEmpty();
    void TheBinderTiesItToItsControl();
};

void SideBarWidgetTest::ClickOpensAnEntryAndItsPage()
{
    QCOMPARE(ShownPages(), QList<int>{1});
    Click(Middle(5));
    QCOMPARE(stage->opened, QList<int>{5});
    QCOMPARE(ShownPages(), QList<int>{5});
    QCOMPARE(stage->pages.at(4)->geometry(), Widget().PageRect());
    QCOMPARE(Widget().Caption(), u"Load from Database "_s);
}

void SideBarWidgetTest::ReleaseElsewhereOpensNothing()
{
    QTest::mousePress(&Widget(), Qt::LeftButton, {}, Middle(5));
    QTest::mouseRelease(&Widget(), Qt::LeftButton, {}, Middle(6));
    QTest::mouseClick(&Widget(), Qt::RightButton, {}, Middle(4));
    QVERIFY(stage->opened.isEmpty());
    QCOMPARE(Widget().SelectedIndex(), 1);
}

void SideBarWidgetTest::ClickOnASmallIconOpensWithoutMovingIt()
{
    Bar().SetVisibleItems(2);
    Widget().Refresh();
    const QRect place = Widget().EntryRect(6);
    QVERIFY(Widget().Places().Bar().contains(place));
    Click(place.center());
    QCOMPARE(stage->opened, QList<int>{6});
    QCOMPARE(Widget().EntryRect(6), place);
}

void SideBarWidgetTest::TheWheelScrollsTheRows()
{
    Bar().SetVisibleItems(3);
    Widget().Refresh();
    Wheel(Middle(1), -120);
    QCOMPARE(Widget().View().rows, (QList<int>{2, 3, 4}));
    Wheel(Middle(2), -60);
    QCOMPARE(Widget().View().rows, (QList<int>{2, 3, 4}));
    Wheel(Middle(2), -60);
    QCOMPARE(Widget().View().rows, (QList<int>{3, 4, 5}));
    Wheel(Middle(3), 1200);
    QCOMPARE(Widget().View().rows, (QList<int>{1, 2, 3}));
    Wheel(Widget().Places().Header().center(), -120);
    QCOMPARE(Widget().View().rows, (QList<int>{1, 2, 3}));
    QVERIFY(stage->opened.isEmpty());
}

void SideBarWidgetTest::ChevronsScrollByOneRow()
{
    Bar().SetVisibleItems(6);
    Widget().Refresh();
    Click(Widget().Places().ScrollUp().center());
    QCOMPARE(Widget().View().rows.first(), 1);
    Click(Widget().Places().ScrollDown().center());
    QCOMPARE(Widget().View().rows.first(), 2);
    Click(Widget().Places().ScrollUp().center());
    QCOMPARE(Widget().View().rows.first(), 1);
}

void SideBarWidgetTest::ArrowsHomeAndEndOpenEntries()
{
    Bar().Items()[2].SetVisible(false);
    Widget().Refresh();
    Key(Qt::Key_Down);
    Key(Qt::Key_Right);
    Key(Qt::Key_End);
    Key(Qt::Key_Down);
    Key(Qt::Key_Up);
    Key(Qt::Key_Left);
    Key(Qt::Key_Home);
    Key(Qt::Key_Up);
    QCOMPARE(stage->opened, (QList<int>{3, 4, 7, 6, 5, 1}));
    QCOMPARE(ShownPages(), QList<int>{1});
}

void SideBarWidgetTest::LeftAndRightAreMirrored()
{
    Bar().SetRightToLeft(true);
    Widget().Refresh();
    Key(Qt::Key_Left);
    QCOMPARE(Widget().SelectedIndex(), 2);
    Key(Qt::Key_Right);
    QCOMPARE(Widget().SelectedIndex(), 1);
}

void SideBarWidgetTest::LettersOpenTheNextEntryThatStartsWithThem()
{
    Key(Qt::Key_F);
    Key(Qt::Key_F, Qt::ShiftModifier);
    Key(Qt::Key_X);
    Key(Qt::Key_M, Qt::ControlModifier);
    Key(Qt::Key_M);
    QCOMPARE(stage->opened, (QList<int>{4, 7, 3}));
}

void SideBarWidgetTest::ControlTabCyclesFromInsideAPage()
{
    stage->fields.first()->setFocus();
    QTest::keyClick(stage->fields.first(), Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(Widget().SelectedIndex(), 7);
    stage->fields.last()->setFocus();
    QTest::keyClick(stage->fields.last(), Qt::Key_Tab, Qt::ControlModifier);
    QCOMPARE(Widget().SelectedIndex(), 1);
    stage->fields.first()->setFocus();
    QTest::keyClick(stage->fields.first(), Qt::Key_PageDown, Qt::ControlModifier);
    QTest::keyClick(stage->fields.first(), Qt::Key_PageUp, Qt::ControlModifier);
    QCOMPARE(stage->opened, (QList<int>{7, 1, 2, 1}));
}

void SideBarWidgetTest::KeysOfAPageAreNotTaken()
{
    stage->fields.first()->setFocus();
    for (const auto key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_F})
        QTest::keyClick(stage->fields.first(), key);
    QVERIFY(stage->opened.isEmpty());
    QVERIFY(stage->fields.first()->text().endsWith(u'f'));
}

void SideBarWidgetTest::ControlArrowsAndTheGripSetTheRows()
{
    Key(Qt::Key_Down, Qt::ControlModifier);
    QCOMPARE(Widget().Rows(), 6);
    QCOMPARE(Widget().VisibleItems(), 6);
    Key(Qt::Key_Up, Qt::ControlModifier);
    QCOMPARE(Widget().Rows(), 7);
    const QPoint grip = Widget().Places().Grip().center();
    const int rowHeight = Widget().EntryRect(1).height();
    QTest::mousePress(&Widget(), Qt::LeftButton, {}, grip);
    MoveMouse(grip + QPoint(0, 3 * rowHeight));
    QCOMPARE(Widget().Rows(), 3);
    MoveMouse(grip + QPoint(0, 20 * rowHeight));
    QCOMPARE(Widget().Rows(), 0);
    MoveMouse(grip);
    QTest::mouseRelease(&Widget(), Qt::LeftButton, {}, grip);
    QCOMPARE(Widget().Rows(), 7);
}

void SideBarWidgetTest::TheFocusStaysWithTheSideBarWhenAPageGoes()
{
    stage->fields.first()->setFocus();
    Click(Middle(3));
    QCOMPARE(QApplication::focusWidget(), &Widget());
    QVERIFY(stage->opened == QList<int>{3});
    stage->fields.at(2)->setFocus();
    Bar().Items()[6].SetSelected(true);
    Widget().Refresh();
    QCOMPARE(QApplication::focusWidget(), &Widget());
}

void SideBarWidgetTest::FocusIsShownForKeysOnly()
{
    const QImage clicked = Picture();
    stage->fields.first()->setFocus();
    Widget().setFocus(Qt::TabFocusReason);
    const QImage tabbed = Picture();
    QVERIFY(clicked.copy(Widget().EntryRect(1)) != tabbed.copy(Widget().EntryRect(1)));
    QCOMPARE(clicked.copy(Widget().EntryRect(2)), tabbed.copy(Widget().EntryRect(2)));
}

void SideBarWidgetTest::AssistantsSeeATabList()
{
    Bar().Items()[3].SetVisible(false);
    Widget().Refresh();
    QAccessibleInterface *tabs = Tabs();
    QVERIFY(tabs);
    QCOMPARE(tabs->role(), QAccessible::PageTabList);
    QCOMPARE(tabs->text(QAccessible::Name), u"Browse Files"_s);
    const QStringList names{u"Browse Files"_s,      u"Get Text, File List, Safe Erase"_s,
                            u"File Splitter"_s,     u"Load from Database"_s,
                            u"Empty Dir Remover"_s, u"Filerename Utility"_s};
    QVERIFY(tabs->childCount() > names.size());
    for (int index = 0; index < names.size(); ++index) {
        QAccessibleInterface *tab = tabs->child(index);
        QCOMPARE(tab->role(), QAccessible::PageTab);
        QCOMPARE(tab->text(QAccessible::Name), names.at(index));
        QCOMPARE(tab->parent(), tabs);
        QCOMPARE(tabs->indexOfChild(tab), index);
        QCOMPARE(static_cast<bool>(tab->state().selected), index == 0);
        QCOMPARE(static_cast<bool>(tab->state().focused), index == 0);
        const QPoint middle = tab->rect().center();
        QCOMPARE(tabs->childAt(middle.x(), middle.y()), tab);
    }
    QCOMPARE(tabs->focusChild(), tabs->child(0));
    QAccessibleInterface *page = tabs->child(6);
    QCOMPARE(page->object(), stage->pages.first());
    QCOMPARE(tabs->indexOfChild(page), 6);
    QVERIFY(!tabs->child(tabs->childCount()));
}

void SideBarWidgetTest::AssistantsCanOpenAndFocusAnEntry()
{
    stage->fields.first()->setFocus();
    QAccessibleInterface *tab = Tabs()->child(4);
    QAccessibleActionInterface *actions = tab->actionInterface();
    QVERIFY(actions);
    QVERIFY(actions->actionNames().contains(QAccessibleActionInterface::pressAction()));
    // The caller is another process and isn't made to wait for what opening the page does.
    actions->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(stage->opened, QList<int>());
    QTRY_COMPARE(stage->opened, QList<int>{5});
    QVERIFY(tab->state().selected);
    actions->doAction(QAccessibleActionInterface::setFocusAction());
    QVERIFY(tab->state().focused);
    Bar().Items()[5].SetVisible(false);
    Widget().Refresh();
    QVERIFY(!tab->isValid());
    actions->doAction(QAccessibleActionInterface::pressAction());
    QApplication::processEvents();
    QCOMPARE(Widget().SelectedIndex(), 6);
}

void SideBarWidgetTest::TheMenuShowsAndHidesEntries()
{
    Bar().SetShowMenu(true);
    Widget().Refresh();
    Click(Widget().Places().MenuButton().center());
    auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    QVERIFY(menu);
    QCOMPARE(menu->actions().size(), 7);
    QCOMPARE(menu->actions().at(1)->text(), u"Get Text, File List, Safe Erase"_s);
    QVERIFY(menu->actions().at(1)->isChecked());
    menu->actions().at(1)->trigger();
    QVERIFY(!Bar().Items()[2].IsVisible());
    QVERIFY(Widget().EntryRect(2).isEmpty());
    menu->close();

    QContextMenuEvent byKey(QContextMenuEvent::Keyboard, {}, {});
    QApplication::sendEvent(&Widget(), &byKey);
    menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    QVERIFY(menu);
    QVERIFY(!menu->actions().at(1)->isChecked());
    menu->actions().at(1)->trigger();
    QVERIFY(Bar().Items()[2].IsVisible());
    menu->close();
    QVERIFY(stage->opened.isEmpty());
}

void SideBarWidgetTest::WithoutShowMenuThereIsNoMenu()
{
    QVERIFY(Widget().Places().MenuButton().isEmpty());
    QContextMenuEvent event(QContextMenuEvent::Mouse, Middle(2), Widget().mapToGlobal(Middle(2)));
    QApplication::sendEvent(&Widget(), &event);
    QVERIFY(!event.isAccepted());
    QVERIFY(!QApplication::activePopupWidget());
}

void SideBarWidgetTest::EntriesHaveToolTipsWithTheirKeys()
{
    Bar().SetVisibleItems(4);
    Widget().resize(200, 640);
    Widget().Refresh();
    const auto tipAt = [this](int number) {
        QHelpEvent event(QEvent::ToolTip, Middle(number), Widget().mapToGlobal(Middle(number)));
        QApplication::sendEvent(&Widget(), &event);
        return QToolTip::isVisible() ? QToolTip::text() : QString();
    };
    QCOMPARE(tipAt(1), u"Browse Files (Ctrl+1)"_s);
    QCOMPARE(tipAt(2), u"Get Text, File List, Safe Erase (Ctrl+2)"_s);
    QCOMPARE(tipAt(6), u"Empty Dir Remover (Ctrl+6)"_s);
    QToolTip::hideText();
}

void SideBarWidgetTest::PropertiesTellTheState()
{
    QCOMPARE(Widget().objectName(), u"EyeDropper1"_s);
    QVERIFY(Widget().setProperty("SelectedIndex", 4));
    QCOMPARE(stage->opened, QList<int>{4});
    QCOMPARE(Widget().property("SelectedIndex").toInt(), 4);
    QCOMPARE(Widget().property("Caption").toString(), u"File Splitter "_s);
    QCOMPARE(Widget().property("text").toString(), u"File Splitter "_s);
    QCOMPARE(Widget().property("Count").toInt(), 7);
    QCOMPARE(Widget().property("VisibleItems").toInt(), 11);
    QVERIFY(Widget().setProperty("VisibleItems", 2));
    QCOMPARE(Widget().property("Rows").toInt(), 2);
    QCOMPARE(Bar().VisibleItems(), 2);
    QVERIFY(!Widget().property("RightToLeft").toBool());
    QVERIFY(!Widget().property("OutlookColors").toBool());
    QVERIFY(!Widget().property("ShowMenu").toBool());
    Bar().SetRightToLeft(true);
    Bar().SetOutlookColors(true);
    Bar().SetShowMenu(true);
    Widget().Refresh();
    for (const char *name : {"RightToLeft", "OutlookColors", "ShowMenu"})
        QVERIFY2(Widget().property(name).toBool(), name);
    QRect place;
    QVERIFY(QMetaObject::invokeMethod(&Widget(), "EntryRect", Q_RETURN_ARG(QRect, place), Q_ARG(int, 2)));
    QCOMPARE(place, Widget().EntryRect(2));
}

void SideBarWidgetTest::WithoutAControlItIsEmpty()
{
    Widget().SetControl(nullptr);
    Picture();
    Key(Qt::Key_Down);
    Click(QPoint(20, 600));
    QCOMPARE(Widget().Count(), 0);
    QVERIFY(ShownPages().isEmpty());
    QVERIFY(stage->opened.isEmpty());
}

void SideBarWidgetTest::TheBinderTiesItToItsControl()
{
    Form form(u"frmMain"_s);
    SideBar bar(form, u"EyeDropper1"_s);
    Frame first(form, u"FrameXPMenu(0)"_s);
    Frame second(form, u"FrameXPMenu(6)"_s);
    bar.Items().Add(u"Item: 1"_s, u"Browse Files "_s).SetPage(first);
    bar.Items().Add(u"Item: 2"_s, u"Get Text, File List, Safe Erase"_s).SetPage(second);
    Bound bound(form);
    AddOwnKinds(bound.makers);
    auto &widget = bound.Add<SideBarWidget>(bar.Name());
    widget.resize(300, 300);
    for (const Frame *frame : {&first, &second}) {
        auto *page = new QWidget;
        page->setObjectName(frame->Name());
        widget.AddPage(page, frame->Name());
    }
    QVERIFY(bound.Bind());
    QCOMPARE(bound.face->Faces().ControlsWithoutFace(), QStringList());
    QCOMPARE(bound.face->Faces().WidgetsWithoutControl(), QStringList());
    QCOMPARE(widget.SelectedIndex(), 1);
    bar.Items()[2].SetSelected(true);
    bound.updates.Flush();
    QCOMPARE(widget.Caption(), u"Get Text, File List, Safe Erase"_s);
    QVERIFY(bound.window.findChild<QWidget *>(second.Name())->isVisible());
    QVERIFY(!bound.window.findChild<QWidget *>(first.Name())->isVisible());
    QTest::mouseClick(&widget, Qt::LeftButton, {}, widget.EntryRect(1).center());
    bound.updates.Flush();
    QVERIFY(first.IsVisible() && !second.IsVisible());
    QVERIFY(bound.window.findChild<QWidget *>(first.Name())->isVisible());
}

TRESSEL_GUI_TEST(SideBarWidgetTest)
#include "SideBarWidgetTest.moc"
