// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "DesktopStage.h"
#include "ProgramAtHome.h"
#include "gui/GuiTest.h"
#include "gui/WhenUp.h"
#include "settings/HiveText.h"

#include <QDir>
#include <QMessageBox>
#include <QSessionManager>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

/// How long the built program may take for what it does at its start or its end, on a busy machine.
constexpr int patience = 30000;

/// Another program that has the settings folder for itself.
class HeldFolder {
public:
    explicit HeldFolder(const QString &folder)
        : descriptor(open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
        , isHeld(flock(descriptor, LOCK_EX) == 0)
    {
    }
    ~HeldFolder() { close(descriptor); }
    HeldFolder(const HeldFolder &) = delete;
    HeldFolder &operator=(const HeldFolder &) = delete;

    bool IsHeld() const { return isHeld; }

private:
    int descriptor;
    bool isHeld;
};

/// What the system does when the desktop session ends.
void EndSession()
{
    Q_EMIT qApp->commitDataRequest(*qApp->findChild<QSessionManager *>());
}

QByteArray Stored(DesktopStage &stage)
{
    return HiveToText(stage.hive.Tree(SettingsHive::Root::User));
}

/// The palette of a first start is put down when the main window has loaded.
bool HasLoaded(const ProgramAtHome &program)
{
    return program.SettingsFile().contains("\"CustomColor\"");
}

} // namespace

/// The ends of the program: what is on the disc then, and who hears of what isn't.
class EndTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ASignalWhileABoxStandsInTheStartLeavesTheSettings()
    {
        ProgramAtHome program;
        program.Put(keys::ShowTips, u"0"_s);
        program.Put(keys::DatabaseFile, program.home.filePath(u"gone.mdb"_s));
        const QList<KeyEntry> told{keys::SplitSize,  keys::SplitCount,      keys::GenLastPath,
                                   keys::Menu.At(1), keys::Menu.At(7),      keys::LastPath,
                                   keys::SubFolder,  keys::RecentPath.At(1)};
        for (const KeyEntry &key : told)
            program.Put(key, u"7"_s);
        const QByteArray before = program.SettingsFile();
        QVERIFY(program.Start());
        // The signal is taken by an event, and the first event loop is that of the box.
        QTRY_VERIFY_WITH_TIMEOUT(program.TakesSignals(), patience);
        program.process.terminate();
        QVERIFY(program.process.waitForFinished(patience));
        QCOMPARE(program.process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(program.SettingsFile(), before);
        for (const KeyEntry &key : told)
            QCOMPARE(program.Stored(key), u"7"_s);
    }

    void TheEndOfTheSessionWhileABoxStandsInTheStartLeavesTheSettings()
    {
        DesktopStage stage;
        stage.Put(keys::DatabaseFile, stage.Place(u"gone.mdb"_s));
        for (const KeyEntry &key : {keys::SplitSize, keys::GenLastPath, keys::Menu.At(1), keys::LastPath})
            stage.Put(key, u"7"_s);
        const QByteArray before = Stored(stage);
        QByteArray atTheEnd;
        // In a test the program goes on behind its end, and comes to further boxes.
        QTimer glances;
        connect(&glances, &QTimer::timeout, this, [&] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (!box)
                return;
            if (atTheEnd.isEmpty()) {
                QVERIFY_THROWS_EXCEPTION(ProcessEnded, EndSession());
                atTheEnd = Stored(stage);
            }
            box->accept();
        });
        glances.start(0);
        stage.Start();
        QCOMPARE(atTheEnd, before);
    }

    void TheEndOfTheSessionSavesAWindowThatHasLoaded()
    {
        DesktopStage stage;
        stage.Start();
        const QList<QByteArray> names{"\"MainLeft\"", "\"Menu7\"", "\"LastNumPath\"", "\"SplitSize\""};
        for (const QByteArray &name : names)
            QVERIFY2(!Stored(stage).contains(name), name.constData());
        QVERIFY_THROWS_EXCEPTION(ProcessEnded, EndSession());
        for (const QByteArray &name : names)
            QVERIFY2(Stored(stage).contains(name), name.constData());
    }

    void AKillWhileTheWindowFoldsUpLosesNothing()
    {
        ProgramAtHome program;
        program.Put(keys::ShowTips, u"0"_s);
        program.Put(keys::DatabaseFile, QString());
        program.Put(keys::EnableAnimation, u"1"_s);
        // In steps that take it minutes.
        program.Put(keys::AnimHeight, u"1"_s);
        program.Put(keys::AnimWidth, u"1"_s);
        QVERIFY(program.Start());
        QTRY_VERIFY_WITH_TIMEOUT(HasLoaded(program), patience);
        const QByteArray loaded = program.SettingsFile();
        QVERIFY(!loaded.contains("\"LastNumPath\""));
        program.process.terminate();
        QTRY_VERIFY_WITH_TIMEOUT(program.SettingsFile() != loaded || !program.Runs(), patience);
        QVERIFY(program.Runs());
        program.process.kill();
        QVERIFY(program.process.waitForFinished(patience));
        QCOMPARE(program.process.exitStatus(), QProcess::CrashExit);
        // The first and the last of what is written.
        for (const char *name : {"\"MainLeft\"", "\"Menu7\"", "\"LastNumPath\"", "\"SplitSize\""})
            QVERIFY2(program.SettingsFile().contains(name), name);
        QCOMPARE(QDir(program.Folder()).entryList(QDir::Files | QDir::Hidden), QStringList(u"settings"_s));
    }

    void ASignalWaitsForNobodyWhereTheSettingsCannotBeSaved()
    {
        ProgramAtHome program;
        program.Put(keys::ShowTips, u"0"_s);
        program.Put(keys::DatabaseFile, QString());
        QVERIFY(program.Start());
        QTRY_VERIFY_WITH_TIMEOUT(HasLoaded(program), patience);
        const HeldFolder held(program.Folder());
        QVERIFY(held.IsHeld());
        program.process.terminate();
        QVERIFY(program.process.waitForFinished(patience));
        QCOMPARE(program.process.exitStatus(), QProcess::NormalExit);
        const QByteArray told = program.process.readAllStandardError();
        QVERIFY2(told.contains("The settings of this run could not be saved."), told.constData());
        QVERIFY2(told.contains(QFile::encodeName(program.Folder())), told.constData());
    }

    void AWindowThatFillsItsScreenKeepsTheOldPlace()
    {
        DesktopStage stage;
        stage.Start();
        stage.Window().showFullScreen();
        stage.Settle();
        QVERIFY_THROWS_EXCEPTION(ProcessEnded, stage.Form().btnGBToolbarExit.UserClicks());
        const Settings &settings = stage.desktop->application.settings;
        QCOMPARE(settings.ReadText(keys::MainWidth), u"8120"_s);
        QCOMPARE(settings.ReadText(keys::FilePath), stage.Form().area.txtStrtPath.Text());
    }

    void TheUserIsToldWhatCouldNotBeSaved()
    {
        DesktopStage stage;
        stage.Start();
        QVERIFY_THROWS_EXCEPTION(ProcessEnded, stage.Form().btnGBToolbarExit.UserClicks());
        stage.Settle();
        QVERIFY(!stage.Window().isVisible());
        const TemporaryFolder folder;
        const PosixSystemFacts facts;
        FileHive settings(folder.Path(), facts);
        settings.Write(SettingsHive::Root::User, u"Software\\Some Maker"_s, u"a"_s, 1U);
        const HeldFolder held(folder.Path());
        QStringList told;
        WhenUp<QMessageBox>([&](QMessageBox &box) {
            told += box.windowTitle();
            told += box.text();
            box.accept();
        });
        QVERIFY(!SaveSettings(settings, stage.desktop.get()));
        QCOMPARE(told,
                 (QStringList{u"Tressel"_s,
                              u"The settings of this run could not be saved.\n\n"
                              "Another program holds the settings folder "_s
                                  + folder.Path() + u'.'}));
    }

    void ASignalEndsTheProgramAlsoWhereTheBoxStands()
    {
        DesktopStage stage;
        stage.Start();
        QVERIFY_THROWS_EXCEPTION(ProcessEnded, stage.Form().btnGBToolbarExit.UserClicks());
        int boxes = 0;
        WhenUp<QMessageBox>([&](QMessageBox &box) {
            ++boxes;
            // As the program does at its end: again there is something that can't be saved.
            QVERIFY_THROWS_EXCEPTION(ProcessEnded, stage.desktop->End());
            stage.desktop->TellUnsaved(u"once more"_s);
            box.accept();
        });
        stage.desktop->TellUnsaved(u"Disk full"_s);
        QCOMPARE(boxes, 1);
    }

    void AHomeWhoseNameIsNoTextGetsOneFolder()
    {
        const TemporaryFolder place;
        QProcess shell;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(u"XDG_CONFIG_HOME"_s);
        environment.remove(u"XDG_DATA_HOME"_s);
        environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
        shell.setProcessEnvironment(environment);
        shell.start(u"/bin/sh"_s,
                    {u"-c"_s, u"HOME=\"$1$(printf 'caf\\351')\"; export HOME; mkdir \"$HOME\"; exec \"$0\""_s,
                     QStringLiteral(TRESSEL_PROGRAM), place.Path() + u'/'});
        const QByteArray settings = place.Native("caf\xE9/.config/tressel/settings");
        QTRY_VERIFY_WITH_TIMEOUT(access(settings.constData(), F_OK) == 0, patience);
        shell.terminate();
        QVERIFY(shell.waitForFinished(patience));
        QCOMPARE(shell.exitStatus(), QProcess::NormalExit);
        // The toolkit shows no name that it can't read, so that any that it shows is another one.
        QCOMPARE(QDir(place.Path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());
        QCOMPARE(access(settings.constData(), F_OK), 0);
    }
};

TRESSEL_GUI_TEST(EndTest)
#include "EndTest.moc"
