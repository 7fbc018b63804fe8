// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "gui/GuiTest.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class StartTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    /// The program as it is built, in a home of its own.
    void OptionsOfTheToolkitAreThePrograms()
    {
        const QTemporaryDir home;
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"HOME"_s, home.path());
        environment.insert(u"XDG_CONFIG_HOME"_s, home.path());
        environment.insert(u"XDG_DATA_HOME"_s, home.path());
        environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
        program.setProcessEnvironment(environment);
        // The toolkit would end at once for want of such a platform.
        program.start(QStringLiteral(TRESSEL_PROGRAM),
                      {u"-platform"_s, u"nosuch"_s, u"-style"_s, u"nosuch"_s});
        QVERIFY(program.waitForStarted());
        // The first window of a first start keeps that it may come up again.
        const QString settings = home.filePath(u"tressel/settings"_s);
        QTRY_VERIFY2_WITH_TIMEOUT(QFile::exists(settings) || program.state() == QProcess::NotRunning,
                                  "The program neither starts nor ends.", 60000);
        QVERIFY2(program.state() == QProcess::Running, program.readAllStandardError().constData());
        program.terminate();
        QVERIFY(program.waitForFinished());
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
        QCOMPARE(program.exitCode(), 0);
        QVERIFY(!program.readAllStandardError().contains("nosuch"));
    }
};

TRESSEL_GUI_TEST(StartTest)
#include "StartTest.moc"
