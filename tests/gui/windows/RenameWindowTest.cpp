// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "DesktopStage.h"
#include "gui/Dropping.h"
#include "gui/GuiTest.h"
#include "widgets/IsButtonWidget.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QRadioButton>
#include <QRegularExpression>
#include <QTimer>

#include <unistd.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

/// The rename page of a window on show, with a folder that holds links, which are quick to make.
struct RenameStage {
    explicit RenameStage(const QString &folder)
        : path(folder)
    {
        stage.Put(keys::IndxBar, u"7"_s);
        stage.Put(keys::LastPath, folder);
        stage.Start();
        stage.Window().activateWindow();
    }

    IsButtonWidget &Button(const QString &name) { return stage.Face<IsButtonWidget>(name); }
    QString Status() { return stage.Face<QLabel>(u"lblStatusLine"_s).text(); }
    bool IsUnlocked()
    {
        return Button(u"btnGBRename"_s).isEnabled() && !Button(u"btnGBCancel"_s).isEnabled()
            && stage.Face<QLineEdit>(u"txtCurrentPath"_s).isEnabled()
            && stage.Face<QRadioButton>(u"optUppercase"_s).isEnabled()
            && stage.Face<QProgressBar>(u"ProgressBar"_s).value() == 0;
    }

    /// Says what each of the three runs is to do.
    void FillIn()
    {
        stage.Face<QRadioButton>(u"optUppercase"_s).click();
        stage.Face<QRadioButton>(u"optAllExtensions"_s).click();
        stage.Settle();
        QTest::keyClicks(&stage.Face<QLineEdit>(u"txtExtensionsChangeAllTo"_s), u"x"_s);
        QTest::keyClicks(&stage.Face<QLineEdit>(u"txtReplaceFrom"_s), u"name"_s);
        QTest::keyClicks(&stage.Face<QLineEdit>(u"txtReplaceTo"_s), u"other"_s);
    }

    QString path;
    DesktopStage stage;
};

/// Puts links to nowhere there. False if it couldn't.
bool Fill(const QString &folder, int count)
{
    bool isThere = QDir().mkpath(folder);
    for (int number = 0; number < count; ++number) {
        const QByteArray path = (folder + u"/name%1"_s.arg(number, 5, 10, QChar(u'0'))).toUtf8();
        isThere = isThere && symlink("nowhere", path.constData()) == 0;
    }
    return isThere;
}

QStringList Names(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot);
}

/// Does something once a condition holds, while a run lets events run.
void Once(QObject &owner, const std::function<bool()> &condition, const std::function<void()> &act)
{
    auto *timer = new QTimer(&owner);
    QObject::connect(timer, &QTimer::timeout, &owner, [=] {
        if (!condition())
            return;
        timer->stop();
        act();
    });
    timer->start(0);
}

} // namespace

class RenameWindowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ThePageWorksFromTheKeyboardAlone()
    {
        TemporaryFolder folder;
        QVERIFY(Fill(folder.Path(), 3));
        RenameStage page(u"/"_s);
        QVERIFY(QTest::qWaitForWindowActive(&page.stage.Window()));
        auto &path = page.stage.Face<QLineEdit>(u"txtCurrentPath"_s);
        path.setFocus();
        path.selectAll();
        QTest::keyClicks(&path, folder.Path());
        const auto tabTo = [&](const QString &name) {
            for (int stop = 0; stop < 40; ++stop) {
                QWidget *const present = page.stage.Window().focusWidget();
                if (present->objectName() == name)
                    return present;
                QTest::keyClick(present, Qt::Key_Tab);
            }
            return page.stage.Window().focusWidget();
        };
        QTest::keyClick(tabTo(u"optNoChange"_s), Qt::Key_Down);
        QVERIFY(page.stage.Face<QRadioButton>(u"optUppercase"_s).isChecked());
        QWidget *const button = tabTo(u"btnGBRename"_s);
        QCOMPARE(button, &page.Button(u"btnGBRename"_s));
        QTest::keyClick(button, Qt::Key_Space);
        page.stage.Settle();
        QCOMPARE(Names(folder.Path()), QStringList({u"NAME00000"_s, u"NAME00001"_s, u"NAME00002"_s}));
        QCOMPARE(page.Status(), u"Total file count is 3 files processed"_s);
        QVERIFY(page.IsUnlocked());
        QVERIFY(button->hasFocus());
    }

    void ADropOnThePathGivesTheFolder()
    {
        const TemporaryFolder folder;
        RenameStage window(folder.Path());
        auto &path = window.stage.Face<QLineEdit>(u"txtCurrentPath"_s);
        const QString below = folder.Path() + u"/sub"_s;
        QVERIFY(DropPath(path, below));
        window.stage.Settle();
        QCOMPARE(path.text(), below);
        QVERIFY(DropPath(path, below + u"/song.mp3"_s));
        window.stage.Settle();
        QCOMPARE(path.text(), below);
        // What looks like a file is taken for one.
        QVERIFY(DropPath(path, below + u"/data.old"_s));
        window.stage.Settle();
        QCOMPARE(path.text(), below);
        QVERIFY(DropPath(path, folder.Path() + u"/data.old"_s));
        window.stage.Settle();
        QCOMPARE(path.text(), folder.Path());
    }

    void ARunShowsItsProgressAndEndsAtOnceByCancel_data()
    {
        QTest::addColumn<QString>("pressed");
        QTest::addColumn<QString>("newPart"); // what new names alone hold
        QTest::addColumn<int>("uncounted"); // entries that are renamed and not in the total
        QTest::newRow("case") << u"btnGBRename"_s << u"NAME"_s << 0;
        QTest::newRow("extension") << u"btnGBExtension"_s << u".x"_s << 1;
        QTest::newRow("replace") << u"btnGBReplace"_s << u"other"_s << 0;
    }
    void ARunShowsItsProgressAndEndsAtOnceByCancel()
    {
        QFETCH(const QString, pressed);
        QFETCH(const QString, newPart);
        QFETCH(const int, uncounted);
        constexpr int count = 20'000;
        TemporaryFolder folder;
        QVERIFY(Fill(folder.Path(), count));
        RenameStage page(folder.Path());
        QVERIFY(QTest::qWaitForWindowActive(&page.stage.Window()));
        page.FillIn();
        auto &button = page.Button(pressed);
        auto &cancel = page.Button(u"btnGBCancel"_s);
        auto &bar = page.stage.Face<QProgressBar>(u"ProgressBar"_s);
        QString seen;
        Once(
            page.stage.Window(), [&] { return cancel.isEnabled() && bar.value() > 1; },
            [&] {
                seen = page.Status();
                QVERIFY(cancel.hasFocus());
                QVERIFY(!button.isEnabled());
                QTest::keyClick(&cancel, Qt::Key_Space);
            });
        button.setFocus();
        QTest::keyClick(&button, Qt::Key_Space);
        page.stage.Settle();
        QVERIFY2(seen.startsWith(u"Processing wait "_s) && seen.endsWith(u'%'), qPrintable(seen));
        QVERIFY(page.IsUnlocked());
        const QStringList names = Names(folder.Path());
        QCOMPARE(names.size(), count);
        const qsizetype renamed = names.filter(newPart, Qt::CaseSensitive).size();
        QVERIFY(renamed > 0 && renamed < count);
        QCOMPARE(renamed + names.filter(QRegularExpression(u"^name\\d{5}$"_s)).size(), count);
        QCOMPARE(names.filter(u"_"_s).size(), 0);
        QCOMPARE(page.Status(), u"Total file count is %1 files processed"_s.arg(renamed - uncounted));
        QVERIFY(button.hasFocus());
    }

    void TwoWindowsOnOneFolderLoseNothing()
    {
        constexpr int count = 20'000;
        TemporaryFolder folder;
        QVERIFY(Fill(folder.Path(), count));
        RenameStage first(folder.Path());
        RenameStage second(folder.Path());
        first.FillIn();
        second.FillIn();
        Once(
            first.stage.Window(), [&] { return !first.Button(u"btnGBRename"_s).isEnabled(); },
            [&] { QTest::mouseClick(&second.Button(u"btnGBExtension"_s), Qt::LeftButton); });
        QTest::mouseClick(&first.Button(u"btnGBRename"_s), Qt::LeftButton);
        first.stage.Settle();
        second.stage.Settle();
        QVERIFY(first.IsUnlocked());
        QVERIFY(second.IsUnlocked());
        const QStringList names = Names(folder.Path());
        QCOMPARE(names.size(), count);
        QCOMPARE(names.filter(u".x"_s).size(), count);
    }
};

TRESSEL_GUI_TEST(RenameWindowTest)
#include "RenameWindowTest.moc"
