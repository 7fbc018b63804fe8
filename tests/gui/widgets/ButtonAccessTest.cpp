// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "gui/GuiTest.h"
#include "widgets/IsButtonWidget.h"

#include <QAccessible>
#include <QApplication>
#include <QTest>

#include <memory>

using namespace tressel;
using namespace Qt::StringLiterals;

class ButtonAccessTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void AccessOfAPushButton();
    void AccessOfACheckButton();

private:
    std::unique_ptr<Form> form;
    std::unique_ptr<IsButton> control;
    int clicks = 0;
};

void ButtonAccessTest::init()
{
    control.reset();
    form = std::make_unique<Form>(u"frmTest"_s);
    control = std::make_unique<IsButton>(*form, u"btnTest"_s, u"&Apply"_s);
    clicks = 0;
    control->Click.Handle([this] { ++clicks; });
}

void ButtonAccessTest::AccessOfAPushButton()
{
    IsButtonWidget widget;
    widget.SetControl(control.get());
    QAccessibleInterface *access = QAccessible::queryAccessibleInterface(&widget);
    QVERIFY(access);
    QCOMPARE(access->role(), QAccessible::Button);
    QCOMPARE(access->text(QAccessible::Name), u"Apply"_s);
    QVERIFY(access->state().focusable);
    QVERIFY(!access->state().disabled);
    QVERIFY(!access->state().checkable);
    control->SetCaption(u"Cut && Copy"_s);
    QCOMPARE(access->text(QAccessible::Name), u"Cut & Copy"_s);

    QAccessibleActionInterface *actions = access->actionInterface();
    QVERIFY(actions);
    QVERIFY(actions->actionNames().contains(QAccessibleActionInterface::pressAction()));
    // The caller is another process and isn't made to wait for what the press does.
    actions->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(clicks, 0);
    QTRY_COMPARE(clicks, 1);
    QCOMPARE(control->ShownState(), LookState::Normal);
    QCOMPARE(actions->keyBindingsForAction(QAccessibleActionInterface::pressAction()),
             QStringList{u"Space"_s});
    QCOMPARE(actions->keyBindingsForAction(QAccessibleActionInterface::setFocusAction()), QStringList());
    control->SetCaption(u"&Join"_s);
    QCOMPARE(actions->keyBindingsForAction(QAccessibleActionInterface::pressAction()),
             QStringList({u"Space"_s, u"Alt+J"_s}));

    control->SetEnabled(false);
    widget.TakeOver();
    QVERIFY(access->state().disabled);
    QVERIFY(!actions->actionNames().contains(QAccessibleActionInterface::pressAction()));
    actions->doAction(QAccessibleActionInterface::pressAction());
    QApplication::processEvents();
    QCOMPARE(clicks, 1);
}

void ButtonAccessTest::AccessOfACheckButton()
{
    control->SetButtonType(ButtonKind::Check);
    IsButtonWidget widget;
    widget.SetControl(control.get());
    QAccessibleInterface *access = QAccessible::queryAccessibleInterface(&widget);
    QCOMPARE(access->role(), QAccessible::CheckBox);
    QVERIFY(access->state().checkable);
    QVERIFY(!access->state().checked);
    access->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    QTRY_VERIFY(access->state().checked);
    QVERIFY(control->Value());
    QCOMPARE(clicks, 1);
}

TRESSEL_GUI_TEST(ButtonAccessTest)
#include "ButtonAccessTest.moc"
