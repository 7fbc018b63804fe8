// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "controls/ComboBox.h"
#include "controls/Frame.h"
#include "controls/Label.h"
#include "controls/TextBox.h"
#include "controls/Timer.h"
#include "faces/SelfDrawnFace.h"
#include "gui/GuiTest.h"
#include "gui/faces/Bound.h"

#include <QComboBox>
#include <QDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QSpinBox>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

/// A widget that draws its control by itself.
class Drawn : public QWidget {
public:
    using QWidget::QWidget;
    void SetControl(Label *label) { control = label; }
    void Refresh() { ++refreshed; }

    Label *control = nullptr;
    int refreshed = 0;
};

} // namespace

class BinderTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void WholeWindowHasNoStrangers()
    {
        Form form(u"f"_s);
        Frame frame(form, u"fraEst"_s);
        TextBox box(form, u"txtPath"_s);
        ComboBox combo(form, u"cboFrom"_s);
        Bound bound(form);
        auto &group = bound.Add<QGroupBox>(u"fraEst"_s);
        auto *area = new QScrollArea(&group);
        area->setObjectName(u"layoutScroll"_s);
        auto *content = new QWidget;
        content->setObjectName(u"layoutContent"_s);
        auto *edit = new QLineEdit(content);
        edit->setObjectName(u"txtPath"_s);
        area->setWidget(content);
        auto &tabs = bound.Add<QTabWidget>(u"layoutTabs"_s);
        auto *page = new QComboBox;
        page->setObjectName(u"cboFrom"_s);
        page->setEditable(true);
        tabs.addTab(page, u"one"_s);
        QVERIFY(bound.Bind());

        QCOMPARE(bound.face->Faces().ControlsWithoutFace(), QStringList());
        QCOMPARE(bound.face->Faces().WidgetsWithoutControl(), QStringList());
        QCOMPARE(&bound.face->Faces().FaceOf(box)->Widget(), edit);
    }

    void ControlsWithoutAFaceAreListed()
    {
        Form form(u"f"_s);
        TextBox seen(form, u"txtPath"_s);
        TextBox unseen(form, u"txtstrSQL"_s);
        Label wrongKind(form, u"lblTitle"_s);
        Bound bound(form);
        bound.Add<QLineEdit>(u"txtPath"_s);
        bound.Add<QSpinBox>(u"lblTitle"_s);
        QVERIFY(bound.Bind());
        QCOMPARE(bound.face->Faces().ControlsWithoutFace(), QStringList({u"txtstrSQL"_s, u"lblTitle"_s}));
        QCOMPARE(bound.face->Faces().WidgetsWithoutControl(), QStringList({u"lblTitle"_s}));
        QCOMPARE(bound.face->Faces().FaceOf(unseen), nullptr);
    }

    void WidgetsWithoutAControlAreListed()
    {
        Form form(u"f"_s);
        TextBox box(form, u"txtPath"_s);
        Bound bound(form);
        bound.Add<QLineEdit>(u"txtPath"_s);
        bound.Add<QLineEdit>(u"txtPath"_s);
        bound.Add<QLabel>(u"lblPaht"_s);
        bound.Add<QLabel>(QString());
        auto &other = bound.Add<QDialog>(u"frmOther"_s);
        auto *inside = new QLabel(&other);
        inside->setObjectName(u"lblElsewhere"_s);
        QVERIFY(bound.Bind());
        QCOMPARE(bound.face->Faces().WidgetsWithoutControl(), QStringList({u"txtPath"_s, u"lblPaht"_s}));
    }

    void TabOrderIsThatInWhichTheWindowIsRead()
    {
        Form form(u"f"_s);
        TextBox third(form, u"txtThird"_s);
        ComboBox second(form, u"cboSecond"_s);
        TextBox fourth(form, u"txtFourth"_s);
        TextBox first(form, u"txtFirst"_s);
        Bound bound(form);
        auto &last = bound.Add<QLineEdit>(u"txtFourth"_s);
        auto &group = bound.Add<QGroupBox>(QString());
        auto *grid = new QGridLayout(&group);
        auto *below = new QLineEdit;
        below->setObjectName(u"txtThird"_s);
        auto *box = new QComboBox;
        box->setObjectName(u"cboSecond"_s);
        grid->addWidget(box, 0, 0);
        grid->addWidget(below, 1, 0);
        auto &start = bound.Add<QLineEdit>(u"txtFirst"_s);
        auto *column = new QVBoxLayout(&bound.window);
        auto *row = new QHBoxLayout;
        row->addWidget(&start);
        row->addWidget(&group);
        column->addLayout(row);
        column->addWidget(&last);
        QVERIFY(bound.Bind());
        start.setFocus();
        QStringList order;
        for (int step = 0; step < 4; ++step) {
            QWidget *focused = bound.window.focusWidget();
            order += focused->objectName().isEmpty() ? focused->parentWidget()->objectName()
                                                     : focused->objectName();
            QTest::keyClick(focused, Qt::Key_Tab);
        }
        QCOMPARE(order, QStringList({u"txtFirst"_s, u"cboSecond"_s, u"txtThird"_s, u"txtFourth"_s}));
    }

    void ATimerNeedsNoWidgetAndTicks()
    {
        Form form(u"f"_s);
        Timer timer(form, u"Timer1"_s, 1);
        int ticks = 0;
        timer.Tick.Handle([&] { ++ticks; });
        timer.SetEnabled(false);
        Bound bound(form);
        QVERIFY(bound.Bind());
        QCOMPARE(bound.face->Faces().ControlsWithoutFace(), QStringList());
        QCoreApplication::processEvents();
        QCOMPARE(ticks, 0);
        timer.SetEnabled(true);
        QTRY_VERIFY(ticks >= 2);
        timer.SetInterval(0);
        bound.updates.Flush();
        const QTimer *pulse = bound.window.findChild<QTimer *>();
        QVERIFY(pulse && !pulse->isActive());
    }

    void ASelfDrawnWidgetGetsItsControl()
    {
        Form form(u"f"_s);
        Label label(form, u"lblTitle"_s, u"text"_s);
        Bound bound(form);
        bound.makers.Add<Label, Drawn, SelfDrawnFace<Label, Drawn, &Drawn::Refresh>>();
        auto &widget = bound.Add<Drawn>(u"lblTitle"_s);
        QVERIFY(bound.Bind());
        QCOMPARE(widget.control, &label);
        QVERIFY(widget.refreshed > 0);
    }

    void OwnKindsAreAskedFirst()
    {
        class Silent : public Face {
        public:
            Silent(Label &label, QLabel &widget)
                : Face(label, widget)
            {
            }

        protected:
            void Show() override { }
        };
        Form form(u"f"_s);
        Label label(form, u"lblTitle"_s, u"text"_s);
        Bound bound(form);
        bound.makers.Add<Label, QLabel, Silent>();
        auto &widget = bound.Add<QLabel>(u"lblTitle"_s);
        QVERIFY(bound.Bind());
        QCOMPARE(widget.text(), QString());
        QVERIFY(dynamic_cast<Silent *>(bound.face->Faces().FaceOf(label)));
    }
};

TRESSEL_GUI_TEST(BinderTest)
#include "BinderTest.moc"
