// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "controls/CheckBox.h"
#include "controls/ComboBox.h"
#include "controls/Frame.h"
#include "controls/Label.h"
#include "controls/OptionGroup.h"
#include "controls/ProgressBar.h"
#include "controls/TextBox.h"
#include "gui/Dropping.h"
#include "gui/GuiTest.h"
#include "gui/faces/Bound.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTest>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

class PaintCounter : public QLabel {
public:
    using QLabel::QLabel;
    int paints = 0;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        ++paints;
        QLabel::paintEvent(event);
    }
};

} // namespace

class FacesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void LabelShowsPlainTextAndHandsClicks()
    {
        Form form(u"f"_s);
        Label label(form, u"lblStatusLine"_s, u"<b>a & b</b>"_s);
        int clicks = 0;
        label.Click.Handle([&] { ++clicks; });
        Bound bound(form);
        auto &widget = bound.Add<QLabel>(u"lblStatusLine"_s);
        QVERIFY(bound.Bind());

        QCOMPARE(widget.text(), u"<b>a & b</b>"_s);
        QCOMPARE(widget.textFormat(), Qt::PlainText);
        QTest::mouseClick(&widget, Qt::LeftButton);
        QTest::mouseClick(&widget, Qt::RightButton);
        QCOMPARE(clicks, 1);
        label.SetEnabled(false);
        bound.updates.Flush();
        QVERIFY(!widget.isEnabled());
    }

    void ChangesAreTakenOverByTime()
    {
        Form form(u"f"_s);
        Label label(form, u"lblStatusLine"_s);
        Bound bound(form);
        auto &widget = bound.Add<PaintCounter>(u"lblStatusLine"_s);
        QVERIFY(bound.Bind());
        QTRY_VERIFY(widget.paints > 0);

        const int paintsBefore = widget.paints;
        const int flushesBefore = bound.updates.Count();
        for (int i = 1; i <= 10000; ++i)
            label.SetCaption(QString::number(i));
        QVERIFY(widget.text() != u"10000");
        QTRY_COMPARE(widget.text(), u"10000"_s);
        QTRY_VERIFY(widget.paints > paintsBefore);
        // One for the text, and one for the width that the text told.
        QVERIFY(bound.updates.Count() <= flushesBefore + 2);
        QVERIFY(widget.paints <= paintsBefore + 2);
    }

    void TextBoxTakesWhatIsTyped()
    {
        Form form(u"f"_s);
        TextBox box(form, u"txtStrtPath"_s, u"/home"_s);
        int changes = 0;
        box.Change.Handle([&] { ++changes; });
        Bound bound(form);
        auto &edit = bound.Add<QLineEdit>(u"txtStrtPath"_s);
        QVERIFY(bound.Bind());
        QCOMPARE(edit.text(), u"/home"_s);
        QCOMPARE(changes, 0);

        edit.setFocus();
        edit.end(false);
        QTest::keyClicks(&edit, u"/me"_s);
        QCOMPARE(box.Text(), u"/home/me"_s);
        QCOMPARE(changes, 3);
    }

    void ShowingATextIsNoActOfTheUser()
    {
        Form form(u"f"_s);
        TextBox box(form, u"txtStrtPath"_s);
        int changes = 0;
        box.Change.Handle([&] { ++changes; });
        Bound bound(form);
        auto &edit = bound.Add<QLineEdit>(u"txtStrtPath"_s);
        QVERIFY(bound.Bind());

        box.SetText(u"first"_s);
        bound.updates.Flush();
        QCOMPARE(edit.text(), u"first"_s);
        box.SetText(u"second"_s);
        bound.updates.Flush();
        QCOMPARE(box.Text(), u"second"_s);
        QCOMPARE(changes, 2);
    }

    void CursorAndSelectionStayWithTheSameText()
    {
        Form form(u"f"_s);
        TextBox box(form, u"txtStrtPath"_s, u"abcdef"_s);
        Bound bound(form);
        auto &edit = bound.Add<QLineEdit>(u"txtStrtPath"_s);
        QVERIFY(bound.Bind());
        edit.setSelection(2, 3);

        box.SetToolTip(u" Drag and drop "_s);
        bound.updates.Flush();
        QCOMPARE(edit.toolTip(), u" Drag and drop "_s);
        QCOMPARE(edit.selectedText(), u"cde"_s);
    }

    void AnEditThatTheHandlerMendsIsShownMended()
    {
        Form form(u"f"_s);
        TextBox box(form, u"txtSplitCount"_s);
        box.Change.Handle([&] { box.SetText(box.Text().trimmed()); });
        Bound bound(form);
        auto &edit = bound.Add<QLineEdit>(u"txtSplitCount"_s);
        QVERIFY(bound.Bind());
        edit.setFocus();
        QTest::keyClicks(&edit, u"5 "_s);
        QCOMPARE(box.Text(), u"5"_s);
        QTRY_COMPARE(edit.text(), u"5"_s);
    }

    void LockedTextBoxIsReadOnly()
    {
        Form form(u"f"_s);
        TextBox line(form, u"txtReport"_s, u"x"_s);
        TextBox lines(form, u"Text1"_s, u"one\ntwo\u00a0three"_s);
        line.SetLocked(true);
        lines.SetLocked(true);
        line.SetHint(u"nothing yet"_s);
        Bound bound(form);
        auto &edit = bound.Add<QLineEdit>(u"txtReport"_s);
        auto &text = bound.Add<QPlainTextEdit>(u"Text1"_s);
        QVERIFY(bound.Bind());

        QVERIFY(edit.isReadOnly() && text.isReadOnly());
        QCOMPARE(edit.placeholderText(), u"nothing yet"_s);
        QTest::keyClicks(&edit, u"y"_s);
        QTest::keyClicks(&text, u"y"_s);
        QCOMPARE(line.Text(), u"x"_s);
        QCOMPARE(lines.Text(), u"one\ntwo\u00a0three"_s);
    }

    void LinesKeepHardBlanksWhenEdited()
    {
        Form form(u"f"_s);
        TextBox box(form, u"Text1"_s, u"one\ntwo\u00a0three"_s);
        Bound bound(form);
        auto &text = bound.Add<QPlainTextEdit>(u"Text1"_s);
        QVERIFY(bound.Bind());
        text.moveCursor(QTextCursor::End);
        QTest::keyClicks(&text, u"!"_s);
        QCOMPARE(box.Text(), u"one\ntwo\u00a0three!"_s);
    }

    void KeyboardComingAndGoingIsTold()
    {
        Form form(u"f"_s);
        TextBox first(form, u"txtA"_s);
        TextBox second(form, u"txtB"_s);
        QStringList told;
        first.GotFocus.Handle([&] { told += u"got A"_s; });
        first.LostFocus.Handle([&] { told += u"lost A"_s; });
        second.GotFocus.Handle([&] { told += u"got B"_s; });
        Bound bound(form);
        auto &a = bound.Add<QLineEdit>(u"txtA"_s);
        bound.Add<QLineEdit>(u"txtB"_s);
        QVERIFY(bound.Bind());
        a.setFocus(Qt::OtherFocusReason);
        told.clear();

        second.SetFocus();
        second.SetText(u"all of it"_s);
        second.SelectAll();
        bound.updates.Flush();
        QCOMPARE(told, QStringList({u"lost A"_s, u"got B"_s}));
        QCOMPARE(bound.window.findChild<QLineEdit *>(u"txtB"_s)->selectedText(), u"all of it"_s);
    }

    void CheckBoxShowsItsThreeValuesAndToggles()
    {
        Form form(u"f"_s);
        CheckBox box(form, u"chkExtension"_s, u"Remove Ext"_s);
        int clicks = 0;
        box.Click.Handle([&] { ++clicks; });
        box.SetValue(2);
        Bound bound(form);
        auto &widget = bound.Add<QCheckBox>(u"chkExtension"_s);
        QVERIFY(bound.Bind());
        QCOMPARE(widget.text(), u"Remove Ext"_s);
        QCOMPARE(widget.checkState(), Qt::PartiallyChecked);
        QCOMPARE(clicks, 1);

        widget.click();
        QCOMPARE(box.Value(), 1);
        QCoreApplication::processEvents();
        widget.click();
        QCOMPARE(box.Value(), 0);
        QCOMPARE(clicks, 3);
        QCoreApplication::processEvents();
        QCOMPARE(widget.checkState(), Qt::Unchecked);

        box.SetChecked(true);
        bound.updates.Flush();
        QVERIFY(widget.isChecked());
        QCOMPARE(clicks, 4);
    }

    void OptionsFollowTheGroupWhereverTheyStand()
    {
        Form form(u"f"_s);
        OptionGroup group(form, u"optSplit"_s, {u"File Size"_s, u"File Count"_s});
        QList<int> clicks;
        group.Click.Handle([&](int index) { clicks += index; });
        group.Select(0);
        clicks.clear();
        Bound bound(form);
        auto &size = bound.Add<QRadioButton>(u"optSplit(0)"_s);
        auto &holder = bound.Add<QWidget>(u"layoutCount"_s);
        auto *count = new QRadioButton(&holder);
        count->setObjectName(u"optSplit(1)"_s);
        QVERIFY(bound.Bind());
        QVERIFY(size.isChecked() && !count->isChecked());
        QCOMPARE(count->text(), u"File Count"_s);

        count->click();
        QCOMPARE(group.Selected(), 1);
        QVERIFY(!size.isChecked());
        count->click();
        QCOMPARE(clicks, QList<int>({1}));

        group.SelectNone();
        bound.updates.Flush();
        QVERIFY(!size.isChecked() && !count->isChecked());
        QCOMPARE(clicks, QList<int>({1}));
    }

    void EditableComboTellsTypingAndChoosingApart()
    {
        Form form(u"f"_s);
        ComboBox combo(form, u"cboFileName"_s);
        combo.SetItems({u"one"_s, u"two"_s});
        combo.SetText(u"free"_s);
        int changes = 0;
        int clicks = 0;
        combo.Change.Handle([&] { ++changes; });
        combo.Click.Handle([&] { ++clicks; });
        Bound bound(form);
        auto &widget = bound.Add<QComboBox>(u"cboFileName"_s);
        QVERIFY(bound.Bind());
        QVERIFY(widget.isEditable());
        QCOMPARE(widget.currentText(), u"free"_s);
        QCOMPARE(widget.currentIndex(), -1);
        QCOMPARE(widget.count(), 2);

        widget.lineEdit()->setFocus();
        widget.lineEdit()->end(false);
        QTest::keyClicks(widget.lineEdit(), u"t"_s);
        QCOMPARE(combo.Text(), u"freet"_s);
        QCOMPARE(changes, 1);
        QCOMPARE(clicks, 0);

        QTest::keyClick(&widget, Qt::Key_Down);
        QCOMPARE(combo.Text(), u"one"_s);
        QCOMPARE(combo.ListIndex(), 0);
        QCOMPARE(changes, 1);
        QCOMPARE(clicks, 1);
    }

    void ComboKeepsWhatIsBeingTypedWhenItsListChanges()
    {
        Form form(u"f"_s);
        ComboBox combo(form, u"CboFilePath"_s);
        combo.SetItems({u"one"_s});
        combo.SetText(u"typing"_s);
        Bound bound(form);
        auto &widget = bound.Add<QComboBox>(u"CboFilePath"_s);
        QVERIFY(bound.Bind());
        widget.lineEdit()->setCursorPosition(3);
        combo.SetItems({u"other"_s, u"entries"_s});
        bound.updates.Flush();
        QCOMPARE(widget.currentText(), u"typing"_s);
        QCOMPARE(widget.lineEdit()->cursorPosition(), 3);
        QCOMPARE(combo.Text(), u"typing"_s);
    }

    void ListComboTakesNoTyping()
    {
        Form form(u"f"_s);
        ComboBox combo(form, u"cmbLanguage"_s, ComboBox::Kind::List);
        combo.SetItems({u"English"_s, u"Norsk"_s});
        combo.SetListIndex(1);
        int clicks = 0;
        combo.Click.Handle([&] { ++clicks; });
        Bound bound(form);
        auto &widget = bound.Add<QComboBox>(u"cmbLanguage"_s);
        QVERIFY(bound.Bind());
        QVERIFY(!widget.isEditable());
        QCOMPARE(widget.currentText(), u"Norsk"_s);
        QCOMPARE(clicks, 0);
        widget.setFocus();
        QTest::keyClick(&widget, Qt::Key_Up);
        QCOMPARE(combo.Text(), u"English"_s);
        QCOMPARE(clicks, 1);
    }

    void ProgressIsShownInWholeNumbers()
    {
        Form form(u"f"_s);
        ProgressBar progress(form, u"ProgrBar"_s);
        Bound bound(form);
        auto &widget = bound.Add<QProgressBar>(u"ProgrBar"_s);
        progress.SetRange(0, 7);
        progress.SetValue(3.6);
        QVERIFY(bound.Bind());
        QCOMPARE(widget.maximum(), 7);
        QCOMPARE(widget.value(), 4);
        progress.SetRange(0, 0);
        bound.updates.Flush();
        QVERIFY(widget.maximum() > widget.minimum());
        QCOMPARE(widget.value(), 0);
    }

    void FramesAndPages()
    {
        Form form(u"f"_s);
        Frame box(form, u"fraEst"_s, u"Estimates"_s);
        Frame first(form, u"FrmeOne"_s);
        Frame second(form, u"FrmeTwo"_s);
        box.SetVisible(false);
        second.SetVisible(false);
        Bound bound(form);
        auto &group = bound.Add<QGroupBox>(u"fraEst"_s);
        auto &stack = bound.Add<QStackedWidget>(u"layoutPages"_s);
        auto *pageOne = new QWidget;
        pageOne->setObjectName(u"FrmeOne"_s);
        auto *pageTwo = new QWidget;
        pageTwo->setObjectName(u"FrmeTwo"_s);
        stack.addWidget(pageOne);
        stack.addWidget(pageTwo);
        QVERIFY(bound.Bind());
        QCOMPARE(group.title(), u"Estimates"_s);
        QVERIFY(!group.isVisible());
        QCOMPARE(stack.currentWidget(), pageOne);

        box.SetVisible(true);
        first.SetVisible(false);
        second.SetVisible(true);
        bound.updates.Flush();
        QVERIFY(group.isVisible());
        QCOMPARE(stack.currentWidget(), pageTwo);
        QVERIFY(pageTwo->isVisible() && !pageOne->isVisible());
    }

    void DroppedPathsKeepOddBytes()
    {
        Form form(u"f"_s);
        TextBox box(form, u"txtStrtPath"_s);
        QStringList dropped;
        box.Drop.Handle([&](const QStringList &paths) { dropped = paths; });
        Bound bound(form);
        auto &edit = bound.Add<QLineEdit>(u"txtStrtPath"_s);
        QVERIFY(bound.Bind());
        QMimeData files;
        files.setData(
            u"text/uri-list"_s,
            "# picked\r\nfile:///tmp/a%20b\r\nfile://localhost/tmp/%FCber%C3%A5\r\nhttp://example.org/x\r\n"
            "file://elsewhere/x\r\nfile:/tmp/%5C%25\r\n");

        QVERIFY(!edit.acceptDrops());
        DragAndDrop(edit, files);
        QVERIFY(dropped.isEmpty());

        box.SetTakesDrops(true);
        bound.updates.Flush();
        QVERIFY(edit.acceptDrops());
        QCOMPARE(DragAndDrop(edit, files), QList<QEvent::Type>({QEvent::DragEnter, QEvent::Drop}));
        const QString odd = u"/tmp/"_s + QChar(0xDCFC) + u"berå"_s;
        QCOMPARE(dropped, QStringList({u"/tmp/a b"_s, odd, u"/tmp/\\%"_s}));
    }

    void WhatHoldsNoFilesIsRefused()
    {
        Form form(u"f"_s);
        TextBox box(form, u"txtCurrentPath"_s);
        box.SetTakesDrops(true);
        int drops = 0;
        box.Drop.Handle([&](const QStringList &) { ++drops; });
        Bound bound(form);
        auto &edit = bound.Add<QLineEdit>(u"txtCurrentPath"_s);
        QVERIFY(bound.Bind());
        QMimeData text;
        text.setText(u"/srv/x"_s);
        QMimeData address;
        address.setUrls({QUrl(u"http://example.org/x"_s)});
        for (QMimeData *dragged : {&text, &address})
            QCOMPARE(DragAndDrop(edit, *dragged), QList<QEvent::Type>());
        QCOMPARE(edit.text(), QString());
        QCOMPARE(drops, 0);
    }

    void DropReachesAnEditableCombo()
    {
        Form form(u"f"_s);
        ComboBox combo(form, u"CboFilePath"_s);
        combo.SetTakesDrops(true);
        combo.Drop.Handle([&](const QStringList &paths) { combo.SetText(paths.constFirst()); });
        Bound bound(form);
        auto &widget = bound.Add<QComboBox>(u"CboFilePath"_s);
        QVERIFY(bound.Bind());
        QMimeData files;
        files.setData(u"text/uri-list"_s, "file:///srv/x\n");
        QVERIFY(widget.lineEdit()->acceptDrops());
        QCOMPARE(DragAndDrop(*widget.lineEdit(), files).size(), 2);
        QTRY_COMPARE(widget.currentText(), u"/srv/x"_s);
    }
};

TRESSEL_GUI_TEST(FacesTest)
#include "FacesTest.moc"
