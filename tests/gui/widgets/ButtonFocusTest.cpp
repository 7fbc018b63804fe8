// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "gui/GuiTest.h"
#include "gui/widgets/ButtonStage.h"

#include <QDialog>
#include <QLineEdit>

using namespace tressel;
using namespace Qt::StringLiterals;

/// When the focus of a button is marked: for people who use the keyboard, and for nobody else.
class ButtonFocusTest : public QObject, private ButtonStage {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { Down(); }

    void AClosedBoxAfterAMouseClickBringsNoMark();
    void AClosedBoxGivesTheMarkBack();
    void AWindowThatOpensBringsNoMark();
    void FocusThatOnlyMovedOnBringsNoMark();
    void TheSpaceKeyBringsTheMark();

private:
    QImage Picture()
    {
        control->UserLeaves();
        return button->grab().toImage();
    }
    /// False if the focus didn't go to the box and come back.
    [[nodiscard]] bool OpenAndCloseABox();

    QImage unmarked;
};

void ButtonFocusTest::init()
{
    QVERIFY(Up());
    control->SetStyle(ButtonStyle::Flat);
    button->TakeOver();
    button->clearFocus();
    unmarked = Picture();
}

bool ButtonFocusTest::OpenAndCloseABox()
{
    QDialog box(window.get());
    new QLineEdit(&box);
    box.setModal(true);
    box.show();
    if (!QTest::qWaitForWindowActive(&box) || !QTest::qWaitFor([this] { return !button->hasFocus(); }))
        return false;
    box.close();
    window->activateWindow();
    return QTest::qWaitForWindowActive(window.get())
        && QTest::qWaitFor([this] { return button->hasFocus(); });
}

void ButtonFocusTest::AClosedBoxAfterAMouseClickBringsNoMark()
{
    bool didItsWork = false;
    control->Click.Handle([&] { didItsWork = OpenAndCloseABox(); });
    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(didItsWork);
    QVERIFY(button->hasFocus());
    QCOMPARE(Picture(), unmarked);
}

void ButtonFocusTest::AClosedBoxGivesTheMarkBack()
{
    QTest::keyClick(window.get(), Qt::Key_Tab);
    QVERIFY(button->hasFocus());
    QVERIFY(Picture() != unmarked);
    QVERIFY(OpenAndCloseABox());
    QVERIFY(Picture() != unmarked);
}

void ButtonFocusTest::AWindowThatOpensBringsNoMark()
{
    QDialog box(window.get());
    auto *first = new IsButtonWidget(&box);
    first->SetStyle(2);
    first->resize(button->size());
    box.show();
    QVERIFY(QTest::qWaitForWindowActive(&box));
    QTRY_VERIFY(first->hasFocus());
    const QImage opened = first->grab().toImage();
    first->clearFocus();
    QCOMPARE(opened, first->grab().toImage());
}

void ButtonFocusTest::FocusThatOnlyMovedOnBringsNoMark()
{
    // As where a run disables the button that started it: the toolkit hands the focus to the next one.
    IsButton second(*form, u"btnSecond"_s, u"Next"_s);
    second.SetStyle(ButtonStyle::Flat);
    auto *next = new IsButtonWidget(window.get());
    next->SetControl(&second);
    next->setGeometry(50, 100, 100, 30);
    next->show();
    const QImage plain = next->grab().toImage();
    QTest::mouseClick(button, Qt::LeftButton);
    control->SetEnabled(false);
    button->TakeOver();
    QVERIFY(next->hasFocus());
    QCOMPARE(next->grab().toImage(), plain);
    next->SetControl(nullptr);
}

void ButtonFocusTest::TheSpaceKeyBringsTheMark()
{
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(Picture(), unmarked);
    QTest::keyClick(button, Qt::Key_Space);
    QVERIFY(Picture() != unmarked);
}

TRESSEL_GUI_TEST(ButtonFocusTest)
#include "ButtonFocusTest.moc"
