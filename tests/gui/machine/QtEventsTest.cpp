// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/QtEvents.h"

#include "controls/ListBox.h"
#include "gui/GuiTest.h"
#include "gui/faces/Bound.h"
#include "machine/BusyCursor.h"

#include <QListView>
#include <QSignalSpy>
#include <QTest>

using namespace tressel;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// Counts how often posted events are served, each time taking some of the clock's time.
class Served : public QObject {
public:
    Served(std::chrono::nanoseconds &now, std::chrono::nanoseconds cost)
        : now(now)
        , cost(cost)
    {
    }

    void Post() { QCoreApplication::postEvent(this, new QEvent(QEvent::User)); }

    bool event(QEvent *event) override
    {
        if (event->type() != QEvent::User)
            return QObject::event(event);
        ++count;
        now += cost;
        return true;
    }

    int count = 0;

private:
    std::chrono::nanoseconds &now;
    std::chrono::nanoseconds cost;
};

} // namespace

class QtEventsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void AnimationStepsRunEachTime()
    {
        FaceUpdates updates;
        BusyCursor cursor;
        QtEvents::Time now = 5s;
        QtEvents events(updates, cursor, [&] { return now; });
        Served served(now, 0ms);
        for (int step = 1; step <= 3; ++step) {
            served.Post();
            events.ShowAnimationStep();
            QCOMPARE(served.count, step);
        }
    }

    void RunsAtMostEachTwentyMilliseconds()
    {
        FaceUpdates updates;
        BusyCursor cursor;
        QtEvents::Time now = 5s;
        QtEvents events(updates, cursor, [&] { return now; });
        Served served(now, 0ms);

        served.Post();
        events.LetEventsRun();
        QCOMPARE(served.count, 1);
        served.Post();
        now += 19ms;
        events.LetEventsRun();
        QCOMPARE(served.count, 1);
        now += 1ms;
        events.LetEventsRun();
        QCOMPARE(served.count, 2);
        QCOMPARE(updates.Count(), 2);
    }

    void RestsFourTimesItsOwnLength()
    {
        FaceUpdates updates;
        BusyCursor cursor;
        QtEvents::Time now = 5s;
        QtEvents events(updates, cursor, [&] { return now; });
        Served served(now, 30ms);

        served.Post();
        events.LetEventsRun();
        served.Post();
        now += 119ms;
        events.LetEventsRun();
        QCOMPARE(served.count, 1);
        now += 1ms;
        events.LetEventsRun();
        QCOMPARE(served.count, 2);
    }

    void ADialogServedByThePumpDoesNotStopIt()
    {
        FaceUpdates updates;
        BusyCursor cursor;
        QtEvents::Time now = 5s;
        QtEvents events(updates, cursor, [&] { return now; });
        Served served(now, 10min);
        served.Post();
        events.LetEventsRun();
        served.Post();
        now += 500ms;
        events.LetEventsRun();
        QCOMPARE(served.count, 2);
    }

    void FacesAreFlushedBeforeEventsAreServed()
    {
        Form form(u"f"_s);
        ListBox list(form, u"LstItem"_s);
        Bound bound(form);
        auto &view = bound.Add<QListView>(u"LstItem"_s);
        QVERIFY(bound.Bind());
        BusyCursor cursor;
        QtEvents::Time now = 5s;
        QtEvents events(bound.updates, cursor, [&] { return now; });
        list.AddItem(u"a"_s);
        events.LetEventsRun();
        QCOMPARE(view.model()->rowCount(), 1);
    }

    void APumpForEachRowInsertsFewBlocks()
    {
        Form form(u"f"_s);
        ListBox list(form, u"LstItem"_s);
        Bound bound(form);
        auto &view = bound.Add<QListView>(u"LstItem"_s);
        QVERIFY(bound.Bind());
        BusyCursor cursor;
        // Each look at the clock takes a microsecond: the rows take 33 ms in all.
        QtEvents::Time now = 5s;
        QtEvents events(bound.updates, cursor, [&] { return now += 1us; });
        QSignalSpy inserted(view.model(), &QAbstractItemModel::rowsInserted);
        QSignalSpy reset(view.model(), &QAbstractItemModel::modelReset);
        for (int row = 0; row < 32767; ++row) {
            list.AddItem(QString::number(row));
            events.LetEventsRun();
        }
        bound.updates.Flush();
        QCOMPARE(view.model()->rowCount(), 32767);
        QVERIFY(inserted.count() >= 2);
        QVERIFY(inserted.count() <= 4);
        QCOMPARE(reset.count(), 0);
    }

    void BusyPointerDoesNotNestAndRestsDuringDialogs()
    {
        FaceUpdates updates;
        BusyCursor cursor;
        QtEvents events(updates, cursor);
        events.SetBusyPointer(true);
        events.SetBusyPointer(true);
        QVERIFY(QGuiApplication::overrideCursor());
        QCOMPARE(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
        {
            const BusyCursor::AtRest rest(cursor);
            QVERIFY(!QGuiApplication::overrideCursor());
            events.SetBusyPointer(false);
            events.SetBusyPointer(true);
            QVERIFY(!QGuiApplication::overrideCursor());
        }
        QVERIFY(QGuiApplication::overrideCursor());
        events.SetBusyPointer(false);
        QVERIFY(!QGuiApplication::overrideCursor());
    }
};

TRESSEL_GUI_TEST(QtEventsTest)
#include "QtEventsTest.moc"
