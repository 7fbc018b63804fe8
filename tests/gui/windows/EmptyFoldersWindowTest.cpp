// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "DesktopStage.h"
#include "gui/GuiTest.h"
#include "gui/WhenUp.h"
#include "support/EnvironmentVariable.h"
#include "widgets/IsButtonWidget.h"

#include <QClipboard>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QLabel>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <QTimer>
#include <QToolTip>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

/// The window at the page for empty folders, which stands at the folder "w".
class EmptyFoldersStage : public DesktopStage {
public:
    /// `folders`: what is made below it first.
    explicit EmptyFoldersStage(const QStringList &folders)
    {
        QDir(Place({})).mkdir(u"w"_s);
        for (const QString &folder : folders)
            QDir(Place(u"w"_s)).mkpath(folder);
        Put(keys::SearchPath, Place(u"w"_s));
        Put(keys::IndxBar, u"6"_s);
        Start();
        Window().activateWindow();
    }

    QListView &List() const { return Face<QListView>(u"ListRemove"_s); }
    QString Status() const { return Face<QLabel>(u"lblStatusLine"_s).text(); }
    IsButtonWidget &Button(const QString &name) const
    {
        return Face<IsButtonWidget>(u"btnGBToolbar"_s + name);
    }
    void Press(const QString &name)
    {
        QTest::mouseClick(&Button(name), Qt::LeftButton);
        Settle();
    }
    /// What is listed, from "w" on.
    QStringList Rows() const
    {
        QStringList rows;
        for (int row = 0; row < List().model()->rowCount(); ++row)
            rows += List().model()->index(row, 0).data().toString().mid(Place(u"w"_s).size());
        return rows;
    }
    QPoint PlaceOf(int row) const { return List().visualRect(List().model()->index(row, 0)).center(); }
    void Select(int row)
    {
        QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, PlaceOf(row));
        Settle();
    }
    /// All that is below "w", sorted.
    QStringList Census() const
    {
        QStringList all;
        QDirIterator walk(Place(u"w"_s),
                          QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                          QDirIterator::Subdirectories);
        while (walk.hasNext())
            all += walk.next().mid(Place(u"w"_s).size());
        all.sort();
        return all;
    }
};

/// Answers the next box and keeps what it said.
void WillAnswer(QMessageBox::StandardButton answer, QString &said)
{
    WhenUp<QMessageBox>([answer, &said](QMessageBox &box) {
        said = box.windowTitle() + u": "_s + box.text();
        QTest::mouseClick(box.button(answer), Qt::LeftButton);
    });
}

} // namespace

class EmptyFoldersWindowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void SearchListsAndDeleteAllRemoves()
    {
        EmptyFoldersStage stage({u"a/b"_s, u"c"_s, u"d/e"_s});
        QFile file(stage.Place(u"w/d/file"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(!stage.Button(u"DeleteAll"_s).isEnabled());
        stage.Press(u"Search"_s);
        QCOMPARE(stage.Rows(), QStringList({u"/a/b/"_s, u"/c/"_s, u"/d/e/"_s}));
        QCOMPARE(stage.Status(), u"Found 3"_s);
        QCOMPARE(stage.Button(u"Search"_s).Caption(), u"Find Dir"_s);

        QString said;
        WillAnswer(QMessageBox::Yes, said);
        stage.Press(u"DeleteAll"_s);
        QCOMPARE(said, u"Tressel: Are you sure you want to delete all empty folders"_s);
        QCOMPARE(stage.Census(), QStringList({u"/a"_s, u"/d"_s, u"/d/file"_s}));
        QCOMPARE(stage.Rows(), QStringList());
        QCOMPARE(stage.Status(), u"Found 0"_s);
        QVERIFY(!stage.Button(u"DeleteAll"_s).isEnabled());
    }

    void DelCurrentRemovesTheSelectedFolder()
    {
        EmptyFoldersStage stage({u"a"_s, u"b"_s, u"c"_s});
        stage.Press(u"Search"_s);
        QString said;
        WillAnswer(QMessageBox::Ok, said);
        stage.Press(u"DelDir"_s);
        QCOMPARE(said, u"Error: Please select a directory."_s);
        stage.Select(1);
        QCOMPARE(stage.Status(), stage.Place(u"w/b/"_s));
        WillAnswer(QMessageBox::No, said);
        stage.Press(u"DelDir"_s);
        QCOMPARE(said,
                 u"Remove Directory: Are you sure you want to delete %1?"_s.arg(stage.Place(u"w/b/"_s)));
        QCOMPARE(stage.Census().size(), 3);
        WillAnswer(QMessageBox::Yes, said);
        stage.Press(u"DelDir"_s);
        QCOMPARE(stage.Census(), QStringList({u"/a"_s, u"/c"_s}));
        QCOMPARE(stage.Rows(), QStringList({u"/a/"_s, u"/c/"_s}));
        QCOMPARE(stage.List().currentIndex().row(), 0);
    }

    void EverythingIsWorkedByTheKeyboard()
    {
        EmptyFoldersStage stage({u"a"_s, u"b"_s});
        stage.Button(u"Search"_s).setFocus();
        QTest::keyClick(&stage.Button(u"Search"_s), Qt::Key_Space);
        stage.Settle();
        QCOMPARE(stage.Rows().size(), 2);
        stage.List().setFocus();
        QTest::keyClick(&stage.List(), Qt::Key_End);
        stage.Settle();
        QCOMPARE(stage.Status(), stage.Place(u"w/b/"_s));
        WhenUp<QMessageBox>(
            [](QMessageBox &box) { QTest::keyClick(box.button(QMessageBox::Yes), Qt::Key_Space); });
        stage.Button(u"DelDir"_s).setFocus();
        QTest::keyClick(&stage.Button(u"DelDir"_s), Qt::Key_Space);
        stage.Settle();
        QCOMPARE(stage.Census(), QStringList(u"/a"_s));
    }

    void StopEndsTheSearchAndKeepsWhatWasFound()
    {
        QStringList folders;
        for (int number = 0; number < 3000; ++number)
            folders += u"f%1/x"_s.arg(number, 4, 10, QChar(u'0'));
        EmptyFoldersStage stage(folders);
        // As soon as something is found, in the middle of the run.
        QTimer watch;
        bool hasPressed = false;
        QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
            if (hasPressed || stage.List().model()->rowCount() == 0)
                return;
            hasPressed = true;
            QCOMPARE(stage.Button(u"Search"_s).Caption(), u"Stop"_s);
            QVERIFY(stage.Form().emptyFolders.DirListRemove.Path().startsWith(stage.Place(u"w/f"_s)));
            QTest::mouseClick(&stage.Button(u"Search"_s), Qt::LeftButton);
        });
        watch.start(0);
        QTest::mouseClick(&stage.Button(u"Search"_s), Qt::LeftButton);
        watch.stop();
        stage.Settle();
        QVERIFY(hasPressed);
        QCOMPARE(stage.Button(u"Search"_s).Caption(), u"Find Dir"_s);
        QVERIFY(stage.Rows().size() > 0 && stage.Rows().size() < 3000);
        QStringList firstFolders;
        for (const QString &path : folders.first(stage.Rows().size()))
            firstFolders += u'/' + path + u'/';
        QCOMPARE(stage.Rows(), firstFolders);
        QCOMPARE(stage.Status(), u"Found "_s + QString::number(stage.Rows().size()));
        QCOMPARE(stage.Census().size(), 2 * folders.size());
        QVERIFY(stage.Button(u"DeleteAll"_s).isEnabled());
        QCOMPARE(stage.Form().emptyFolders.DirListRemove.Path(), stage.Place(u"w"_s));
    }

    void NothingFoundIsTold()
    {
        EmptyFoldersStage stage({});
        QFile file(stage.Place(u"w/.hidden"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QString said;
        WillAnswer(QMessageBox::Ok, said);
        stage.Press(u"Search"_s);
        QCOMPARE(said, u"Finished: No empty directories found."_s);
        QCOMPARE(stage.Status(), u"I'm Finished"_s);
    }

    void ClipboardTakesTheList()
    {
        EmptyFoldersStage stage({u"a"_s, u"b"_s});
        stage.Press(u"Search"_s);
        stage.Press(u"Copy"_s);
        QCOMPARE(QGuiApplication::clipboard()->text(),
                 stage.Place(u"w/a/\r\n"_s) + stage.Place(u"w/b/\r\n"_s));
        QCOMPARE(stage.Status(), u"Total Directory Copy to clipboard is:  2"_s);
    }

    void OpenDirAndADoubleClickOpenTheFolder()
    {
        EmptyFoldersStage stage({u"a"_s, u"b"_s});
        const QString heard = stage.Place(u"heard"_s);
        QFile opener(stage.Place(u"xdg-open"_s));
        QVERIFY(opener.open(QIODevice::WriteOnly));
        opener.write("#!/bin/sh\nprintf '%s\\n' \"$1\" >> '" + QFile::encodeName(heard) + "'\n");
        opener.close();
        QVERIFY(opener.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
        const EnvironmentVariable path("PATH", QFile::encodeName(stage.Place({})));
        const auto opened = [&] {
            QFile file(heard);
            return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
        };
        stage.Press(u"Search"_s);
        stage.Select(0);
        stage.Press(u"OpenDir"_s);
        QTRY_COMPARE(opened(), stage.Place(u"w/a\n"_s));
        stage.Select(1);
        QTest::mouseDClick(stage.List().viewport(), Qt::LeftButton, {}, stage.PlaceOf(1));
        stage.Settle();
        QTRY_COMPARE(opened(), stage.Place(u"w/a\n"_s) + stage.Place(u"w/b\n"_s));
    }

    void TheRowUnderThePointerIsTheTip()
    {
        EmptyFoldersStage stage({u"a"_s});
        stage.Press(u"Search"_s);
        QWidget &ground = *stage.List().viewport();
        const QPoint place = stage.PlaceOf(0);
        QMouseEvent move(QEvent::MouseMove, place, ground.mapToGlobal(place), Qt::NoButton, Qt::NoButton,
                         Qt::NoModifier);
        QCoreApplication::sendEvent(&ground, &move);
        stage.Settle();
        QCOMPARE(stage.Form().emptyFolders.ListRemove.ToolTip(), u' ' + stage.Place(u"w/a/"_s) + u' ');
        QHelpEvent help(QEvent::ToolTip, place, ground.mapToGlobal(place));
        QCoreApplication::sendEvent(&ground, &help);
        QVERIFY2(QToolTip::text().contains(stage.Place(u"w/a/"_s)), qPrintable(QToolTip::text()));
        QToolTip::hideText();
    }
};

TRESSEL_GUI_TEST(EmptyFoldersWindowTest)
#include "EmptyFoldersWindowTest.moc"
