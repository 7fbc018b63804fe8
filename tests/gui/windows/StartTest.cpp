// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "ProgramAtHome.h"
#include "gui/GuiTest.h"

#include <QTest>

using namespace tressel;
using namespace Qt::StringLiterals;

class StartTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void OptionsOfTheToolkitAreThePrograms()
    {
        ProgramAtHome program;
        // The toolkit would end at once for want of such a platform.
        QVERIFY(program.Start({u"-platform"_s, u"nosuch"_s, u"-style"_s, u"nosuch"_s}));
        // The first window of a first start keeps that it may come up again.
        QTRY_VERIFY2_WITH_TIMEOUT(!program.SettingsFile().isEmpty() || !program.Runs(),
                                  "The program neither starts nor ends.", 60000);
        QVERIFY2(program.Runs(), program.process.readAllStandardError().constData());
        program.process.terminate();
        QVERIFY(program.process.waitForFinished());
        QCOMPARE(program.process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(program.process.exitCode(), 0);
        QVERIFY(!program.process.readAllStandardError().contains("nosuch"));
    }
};

TRESSEL_GUI_TEST(StartTest)
#include "StartTest.moc"
