// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "DesktopStage.h"
#include "gui/GuiTest.h"
#include "widgets/IsButtonWidget.h"
#include "widgets/SideBarWidget.h"
#include "windows/ElidedLabel.h"
#include "windows/HintedViews.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHelpEvent>
#include <QLineEdit>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolTip>
#include <QWheelEvent>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

void TurnWheel(QWidget &widget, int steps)
{
    const QPoint middle = widget.rect().center();
    QWheelEvent event(middle, widget.mapToGlobal(middle), {}, QPoint(0, steps * 120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    // Only what comes from the desktop is given on to the widgets below.
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(&widget, &event);
}

/// The text of the tool tip that comes up in the middle of a widget.
QString TipOf(QWidget &widget, const QPoint &place)
{
    QToolTip::hideText();
    QHelpEvent event(QEvent::ToolTip, place, widget.mapToGlobal(place));
    QApplication::sendEvent(&widget, &event);
    return QToolTip::text();
}

double ContrastOf(const QColor &one, const QColor &other)
{
    const auto light = [](const QColor &colour) {
        const auto linear = [](double part) {
            return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF())
            + 0.0722 * linear(colour.blueF()) + 0.05;
    };
    const double first = light(one);
    const double second = light(other);
    return std::max(first, second) / std::min(first, second);
}

} // namespace

class KeyboardTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void AWheelOverABoxWithoutTheFocusScrollsThePage()
    {
        DesktopStage stage;
        stage.Put(keys::MainWidth, u"8120"_s);
        stage.Put(keys::MainHeight, u"6825"_s);
        stage.Start();
        stage.OpenEntry(4);
        auto &box = stage.Face<QComboBox>(u"cmbSplitSize"_s);
        stage.Face<QLineEdit>(u"txtStrtPath"_s).setFocus();
        const QString before = box.currentText();
        QScrollArea *area = nullptr;
        for (QWidget *above = &box; !area; above = above->parentWidget())
            area = qobject_cast<QScrollArea *>(above);
        QVERIFY(area->verticalScrollBar()->maximum() > 0);
        QCOMPARE(area->verticalScrollBar()->value(), 0);
        TurnWheel(box, -1);
        stage.Settle();
        QCOMPARE(box.currentText(), before);
        QCOMPARE(stage.Form().splitter.cmbSplitSize.Text(), before);
        QVERIFY(!box.hasFocus());
        QVERIFY(area->verticalScrollBar()->value() > 0);
        // A line edit gives the wheel on to its box.
        TurnWheel(*box.lineEdit(), 1);
        stage.Settle();
        QCOMPARE(area->verticalScrollBar()->value(), 0);
        QCOMPARE(box.currentText(), before);
    }

    void AWheelLeavesTheNumbersOfTheSeries()
    {
        DesktopStage stage;
        stage.Put(keys::ToDir, u"120"_s);
        stage.Put(keys::FromDir, u"7"_s);
        stage.Put(keys::IndxBar, u"3"_s);
        stage.Start();
        stage.Face<QLineEdit>(u"txtStrtPath"_s).setFocus();
        for (const QString &name : {u"cboFrom"_s, u"cboTo"_s, u"DrvBox"_s}) {
            auto &box = stage.Face<QComboBox>(name);
            const QString before = box.currentText();
            for (const int steps : {-1, 1, -3})
                TurnWheel(box, steps);
            stage.Settle();
            QCOMPARE(box.currentText(), before);
            QVERIFY(!box.hasFocus());
        }
        QCOMPARE(stage.Form().numbered.cboTo.Text(), u"120"_s);
        QCOMPARE(stage.Form().numbered.cboFrom.Text(), u"7"_s);
    }

    void ArrowKeysStartFromTheText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("after");
        QTest::newRow("down") << u"120"_s << int(Qt::Key_Down) << u"121"_s;
        QTest::newRow("up") << u"120"_s << int(Qt::Key_Up) << u"119"_s;
        QTest::newRow("page down") << u"120"_s << int(Qt::Key_PageDown) << u"130"_s;
        QTest::newRow("page up, to the end") << u"4"_s << int(Qt::Key_PageUp) << u"1"_s;
        QTest::newRow("first") << u"1"_s << int(Qt::Key_Up) << u"1"_s;
        QTest::newRow("a number that is no entry") << u"1500"_s << int(Qt::Key_Down) << u"1500"_s;
        QTest::newRow("leading zeros") << u"0012"_s << int(Qt::Key_Down) << u"0012"_s;
        QTest::newRow("nothing") << QString() << int(Qt::Key_Down) << u"1"_s;
    }

    void ArrowKeysStartFromTheText()
    {
        QFETCH(QString, text);
        QFETCH(int, key);
        QFETCH(QString, after);
        DesktopStage stage;
        stage.Start();
        stage.OpenEntry(3);
        for (const QString &name : {u"cboFrom"_s, u"cboTo"_s}) {
            auto &box = stage.Face<QComboBox>(name);
            box.setFocus();
            box.lineEdit()->selectAll();
            QTest::keyClick(&box, Qt::Key_Delete);
            QTest::keyClicks(&box, text);
            stage.Settle();
            QCOMPARE(box.currentText(), text);
            QTest::keyClick(&box, static_cast<Qt::Key>(key));
            stage.Settle();
            QCOMPARE(box.currentText(), after);
        }
        QCOMPARE(stage.Form().numbered.cboTo.Text(), after);
    }

    void ControlAndANumberOpenThePages()
    {
        DesktopStage stage;
        stage.Start();
        QVERIFY(QTest::qWaitForWindowActive(&stage.Window()));
        const auto &bar = stage.Face<SideBarWidget>(u"EyeDropper1"_s);
        for (int number = 7; number >= 1; --number) {
            stage.Face<QLineEdit>(u"txtStrtPath"_s).setFocus();
            QTest::keyClick(stage.Window().focusWidget(), static_cast<Qt::Key>(Qt::Key_0 + number),
                            Qt::ControlModifier);
            stage.Settle();
            QCOMPARE(bar.SelectedIndex(), number);
            QCOMPARE(stage.desktop->application.settings.ReadInt32(keys::IndxBar), number);
        }
    }

    void ControlAndEnterCreate()
    {
        DesktopStage stage;
        stage.Put(keys::FileExt, u"0"_s);
        stage.Start();
        QVERIFY(QTest::qWaitForWindowActive(&stage.Window()));
        const QString made = stage.Place(u"made"_s);
        stage.Form().area.txtStrtPath.SetText(made);
        stage.Form().area.LstItem.AddItem(u"Letters"_s);
        stage.Settle();
        QTest::keyClick(stage.Window().focusWidget(), Qt::Key_Return, Qt::ControlModifier);
        stage.Settle();
        QCOMPARE(stage.Form().area.lblStatusLine.Caption(), u"Finished, folders created successfully"_s);
        QVERIFY(QDir(made + u"/Letters"_s).exists());
        auto &create = stage.Face<IsButtonWidget>(u"btnGBToolbarCreate"_s);
        QCOMPARE(TipOf(create, create.rect().center()), u"Make the folders of the list (Ctrl+Return)"_s);
    }

    void TabEntersAGroupAtItsSelectedButton()
    {
        DesktopStage stage;
        stage.Start();
        QVERIFY(QTest::qWaitForWindowActive(&stage.Window()));
        stage.OpenEntry(7);
        for (const int selected : {2, 0, 1}) {
            stage.Form().rename.optRename.Select(selected);
            stage.Settle();
            const QString wanted = stage.Form().rename.optRename.Button(selected).Name();
            stage.Face<QLineEdit>(u"txtCurrentPath"_s).setFocus();
            QStringList entered;
            for (int step = 0; step < 4; ++step) {
                QTest::keyClick(stage.Window().focusWidget(), Qt::Key_Tab);
                const QString name = stage.Window().focusWidget()->objectName();
                if (name.startsWith(u"optRename"_s) && !name.startsWith(u"optRenamePreset"_s))
                    entered += name;
            }
            QCOMPARE(entered, QStringList(wanted));
        }
    }

    void ALongStatusTextEndsInAnEllipsisAndTheWholeIsItsTip()
    {
        DesktopStage stage;
        stage.Start();
        auto &line = stage.Face<ElidedLabel>(u"lblStatusLine"_s);
        stage.Form().area.lblStatusLine.SetCaption(u"Finished"_s);
        stage.Settle();
        QCOMPARE(line.ShownText(), u"Finished"_s);
        const QString whole = u"File ''"_s + QString(300, u'w') + u"'' added to list"_s;
        stage.Form().area.lblStatusLine.SetCaption(whole);
        stage.Settle();
        QVERIFY(line.ShownText().endsWith(QChar(0x2026)));
        QVERIFY(line.ShownText().startsWith(u"File ''www"_s));
        QCOMPARE(line.text(), whole);
        QCOMPARE(TipOf(line, line.rect().center()), whole);
    }

    void EmptyListsSayHowTheyGetFilled()
    {
        DesktopStage stage;
        stage.Start();
        const QStringList names{u"LstItem"_s,    u"FileList"_s,   u"lstErase"_s,
                                u"ListRemove"_s, u"ListBox(0)"_s, u"ListBox(1)"_s};
        for (const QString &name : names) {
            auto &list = stage.Face<HintedList>(name);
            QVERIFY2(!list.Words().isEmpty(), qPrintable(name));
        }
        auto &list = stage.Face<HintedList>(u"LstItem"_s);
        stage.Form().area.LstItem.Clear();
        stage.Settle();
        const QImage withWords = list.viewport()->grab().toImage();
        const QString words = list.Words();
        list.SetWords({});
        QVERIFY(list.viewport()->grab().toImage() != withWords);
        list.SetWords(words);
        // The words go when there is something to see.
        stage.Form().area.LstItem.AddItem(u" "_s);
        stage.Settle();
        const QImage filled = list.viewport()->grab().toImage();
        list.SetWords({});
        QCOMPARE(list.viewport()->grab().toImage(), filled);

        auto &tree = stage.Face<HintedTree>(u"TVList"_s);
        const QImage treeWithWords = tree.viewport()->grab().toImage();
        tree.SetWords({});
        QVERIFY(tree.viewport()->grab().toImage() != treeWithWords);
    }

    void AnEmptyListShowsThatItHasTheKeyboard()
    {
        DesktopStage stage;
        stage.Start();
        QVERIFY(QTest::qWaitForWindowActive(&stage.Window()));
        auto &list = stage.Face<HintedList>(u"LstItem"_s);
        QCOMPARE(list.model()->rowCount(), 0);
        const QImage without = list.viewport()->grab().toImage();
        list.setFocus(Qt::TabFocusReason);
        stage.Settle();
        QVERIFY(list.viewport()->grab().toImage() != without);
    }

    void TheFieldsOfTheSeriesSayWhatTheyAre()
    {
        DesktopStage stage;
        stage.Start();
        stage.OpenEntry(3);
        for (const QString &name : {u"txtFeltDir"_s, u"txtFeltDirSub"_s}) {
            auto &field = stage.Face<QLineEdit>(name);
            QVERIFY2(!field.accessibleName().isEmpty(), qPrintable(name));
            QVERIFY2(!TipOf(field, field.rect().center()).isEmpty(), qPrintable(name));
        }
    }

    void BoxesOfThePathRowAreSeenOnADarkDesktop()
    {
        const QPalette before = QApplication::palette();
        QPalette dark(QColor(60, 60, 64), QColor(45, 45, 48));
        dark.setColor(QPalette::Base, QColor(30, 30, 32));
        QApplication::setPalette(dark);
        {
            DesktopStage stage;
            stage.Start();
            for (const QString &name : {u"chkExtension"_s, u"chkButtonBar"_s}) {
                auto &box = stage.Face<QCheckBox>(name);
                for (const bool checked : {false, true}) {
                    stage.Form().area.chkExtension.SetChecked(checked);
                    stage.Settle();
                    const QImage picture = box.grab().toImage();
                    // Along the middle of the box, which stands at the left, the ground must stand out.
                    double best = 1;
                    for (int x = 0; x < 16; ++x)
                        best = std::max(
                            best,
                            ContrastOf(picture.pixelColor(x, picture.height() / 2), QColor(45, 45, 48)));
                    QVERIFY2(best >= 2, qPrintable(u"%1: %2"_s.arg(name).arg(best)));
                }
            }
        }
        QApplication::setPalette(before);
    }
};

TRESSEL_GUI_TEST(KeyboardTest)
#include "KeyboardTest.moc"
