// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/EndSignals.h"

#include "gui/GuiTest.h"

#include <QTest>

#include <csignal>

using namespace tressel;

class EndSignalsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void SignalsComeAsAnEvent_data()
    {
        QTest::addColumn<int>("number");
        QTest::newRow("SIGTERM") << SIGTERM;
        QTest::newRow("SIGINT") << SIGINT;
        QTest::newRow("SIGHUP") << SIGHUP;
    }

    void SignalsComeAsAnEvent()
    {
        QFETCH(int, number);
        int asked = 0;
        const EndSignals endSignals([&asked] { ++asked; });
        QCOMPARE(std::raise(number), 0);
        QCOMPARE(asked, 0); // not in the middle of whatever runs
        QTRY_COMPARE(asked, 1);
        QCOMPARE(std::raise(number), 0);
        QTRY_COMPARE(asked, 2);
    }
};

TRESSEL_GUI_TEST(EndSignalsTest)
#include "EndSignalsTest.moc"
