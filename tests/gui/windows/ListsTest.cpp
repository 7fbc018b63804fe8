// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "DesktopStage.h"
#include "gui/FileContents.h"
#include "gui/GuiTest.h"
#include "gui/WhenUp.h"
#include "support/FullDisc.h"
#include "widgets/CtlProgressWidget.h"
#include "widgets/IsButtonWidget.h"
#include "widgets/SideBarWidget.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>

#include <sys/stat.h>
#include <unistd.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

/// Types a path into the next file dialog.
void WillType(const QString &path)
{
    WhenUp<QFileDialog>([path](QFileDialog &dialog) {
        dialog.findChild<QLineEdit *>(u"fileNameEdit"_s)->setText(path);
        Accept(dialog);
    });
}

QStringList Rows(const QListView &view)
{
    QStringList rows;
    for (int row = 0; row < view.model()->rowCount(); ++row)
        rows += view.model()->index(row, 0).data().toString();
    return rows;
}

} // namespace

/// The lists of the real window, of folders and of names, where what they are to show isn't as it was.
class ListsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void AFolderThatHasGoneLeavesSomethingToPickFrom_data()
    {
        QTest::addColumn<int>("entry");
        QTest::addColumn<QString>("list");
        QTest::addColumn<QString>("drives");
        QTest::newRow("browse") << 1 << u"DirList"_s << u"DrvList"_s;
        QTest::newRow("series") << 3 << u"DirBox"_s << u"DrvBox"_s;
        QTest::newRow("empty folders") << 6 << u"DirListRemove"_s << u"DrvListRemove"_s;
    }

    void AFolderThatHasGoneLeavesSomethingToPickFrom()
    {
        QFETCH(int, entry);
        QFETCH(QString, list);
        QFETCH(QString, drives);
        DesktopStage stage;
        // Its own folder alone: one that an earlier page misses is another case.
        const KeyEntry &key = entry == 1 ? keys::LastDBPath
            : entry == 3                 ? keys::LastNumPath
                                         : keys::SearchPath;
        stage.Put(key, stage.Place(u"gone/far"_s));
        stage.Put(keys::IndxBar, QString::number(entry));
        stage.Start();
        auto &view = stage.Face<QListView>(list);
        const auto &folders = *dynamic_cast<FolderList *>(stage.Form().Find(list));
        QVERIFY(view.isVisible());
        const QStringList rows = Rows(view);
        QVERIFY(rows.size() > 1);
        QCOMPARE(rows.first(), folders.Path());

        // A way on by the keyboard, from the row where it starts ...
        view.setFocus();
        QTest::keyClick(&view, Qt::Key_Down);
        stage.Settle();
        QTest::keyClick(&view, Qt::Key_Return);
        stage.Settle();
        QCOMPARE(folders.Path(), u'/' + rows.at(1));
        // ... and back by the drive that is on show already.
        auto &drive = stage.Face<QComboBox>(drives);
        drive.showPopup();
        drive.view()->setCurrentIndex(drive.model()->index(drive.currentIndex(), 0));
        QTest::keyClick(drive.view(), Qt::Key_Return);
        stage.Settle();
        QCOMPARE(folders.Path(), dynamic_cast<DriveList *>(stage.Form().Find(drives))->Drive());
        if (entry == 3)
            QCOMPARE(stage.Form().numbered.NumberedFolderPath, folders.Path());
    }

    void AStoredTextThatNoStepCanTakeLeavesEveryListFilled()
    {
        // A step of the load before the series' folder fails, and its failure is pending there.
        DesktopStage stage;
        QVERIFY(QDir().mkpath(stage.Place(u"series"_s)));
        stage.Put(keys::LastNumPath, stage.Place(u"series"_s));
        stage.Put(keys::SearchPath, stage.Place(u"gone"_s));
        stage.Put(keys::IndxBar, u"3"_s);
        stage.Start();
        QVERIFY(Rows(stage.Face<QListView>(u"DirBox"_s)).size() > 1);
    }

    void AListThatCannotBeOneIsToldInABox_data()
    {
        QTest::addColumn<bool>("isPipe");
        QTest::addColumn<QString>("reason");
        QTest::newRow("too large") << false << u"The file is larger than 64 MiB."_s;
        QTest::newRow("pipe") << true << u"It is no regular file."_s;
    }

    void AListThatCannotBeOneIsToldInABox()
    {
        QFETCH(bool, isPipe);
        QFETCH(QString, reason);
        DesktopStage stage;
        stage.Put(keys::IndxBar, u"2"_s);
        stage.Start();
        const QString path = stage.Place(u"names"_s);
        if (isPipe) {
            QCOMPARE(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
        } else {
            QFile file(path);
            QVERIFY(file.open(QIODevice::WriteOnly));
            QVERIFY(file.resize((64LL << 20) + 1));
        }
        QStringList told;
        WhenUp<QFileDialog>([&](QFileDialog &dialog) {
            dialog.findChild<QLineEdit *>(u"fileNameEdit"_s)->setText(path);
            Accept(dialog);
            WhenUp<QMessageBox>([&](QMessageBox &box) {
                told += box.text();
                box.accept();
            });
        });
        QTest::mouseClick(&stage.Face<IsButtonWidget>(u"btnGBLoadFile"_s), Qt::LeftButton);
        stage.Settle();
        QCOMPARE(told, QStringList(u"The list "_s + path + u" can't be loaded. "_s + reason));
        QCOMPARE(stage.Face<QListView>(u"LstItem"_s).model()->rowCount(), 0);
    }

    void AListOfAnEditorOfUtf16IsRead()
    {
        DesktopStage stage;
        stage.Put(keys::IndxBar, u"2"_s);
        stage.Put(keys::FileExt, u"0"_s);
        stage.Start();
        QVERIFY(
            WriteFile(stage.Place(u"wide.txt"_s), QByteArray("\xFF\xFE\xC9\0t\0\r\0\n\0b\0\r\0\n\0", 16)));
        WillType(stage.Place(u"wide.txt"_s));
        QTest::mouseClick(&stage.Face<IsButtonWidget>(u"btnGBLoadFile"_s), Qt::LeftButton);
        stage.Settle();
        QCOMPARE(Rows(stage.Face<QListView>(u"LstItem"_s)), QStringList({u"Ét"_s, u"b"_s}));
    }

    void AListWithoutAnExtensionIsLoadedUnderItsOwnName()
    {
        DesktopStage stage;
        stage.Put(keys::IndxBar, u"2"_s);
        stage.Put(keys::FileExt, u"0"_s);
        stage.Start();
        QVERIFY(WriteFile(stage.Place(u"names"_s), "own\n"));
        QVERIFY(WriteFile(stage.Place(u"names.txt"_s), "another\n"));
        WillType(stage.Place(u"names"_s));
        QTest::mouseClick(&stage.Face<IsButtonWidget>(u"btnGBLoadFile"_s), Qt::LeftButton);
        stage.Settle();
        QCOMPARE(Rows(stage.Face<QListView>(u"LstItem"_s)), QStringList(u"own"_s));
    }

    void AListThatFindsNoRoomStaysWhole()
    {
        DesktopStage stage;
        const QString list = stage.Place(u"names.txt"_s);
        QVERIFY(WriteFile(list, "old\n"));
        QCOMPARE(link(QFile::encodeName(list).constData(),
                      QFile::encodeName(stage.Place(u"other name"_s)).constData()),
                 0);
        stage.Put(keys::LastFile, list);
        stage.Put(keys::FileExt, u"0"_s);
        stage.Start();
        QCOMPARE(Rows(stage.Face<QListView>(u"LstItem"_s)), QStringList(u"old"_s));
        for (int row = 0; row < 2000; ++row)
            stage.Form().area.LstItem.AddItem(u"a name of some length"_s);
        const QString caption = stage.Window().windowTitle();
        {
            const FullDisc disc(4096);
            stage.Form().listFile.SaveList();
        }
        QFile file(list);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("old\n"));
        stage.Settle();
        QCOMPARE(stage.Window().windowTitle(), caption);
        // With room again the file is saved under both its names.
        stage.Form().listFile.SaveList();
        struct stat status = {};
        QCOMPARE(stat(QFile::encodeName(list).constData(), &status), 0);
        QCOMPARE(status.st_nlink, 2U);
        QVERIFY(status.st_size > 40000);
    }

    void TheCaptionOfAnEntryKeepsItsBlank()
    {
        DesktopStage stage;
        stage.Start();
        stage.OpenEntry(5);
        QCOMPARE(stage.Face<SideBarWidget>(u"EyeDropper1"_s).Caption(), u"Load from Database "_s);
    }

    void TheGroundOfTheSplittersBarIsItsPages()
    {
        DesktopStage stage;
        stage.Put(keys::IndxBar, u"4"_s);
        stage.Start();
        QCOMPARE(stage.Form().splitter.ctlProgress1.BackColor(), 0xF5F5F5U);
        auto &bar = stage.Face<CtlProgressWidget>(u"ctlProgress1"_s);
        const QImage drawn = bar.grab().toImage();
        QCOMPARE(drawn.pixelColor(drawn.width() / 2, 3), QColor(0xF5, 0xF5, 0xF5));
    }
};

TRESSEL_GUI_TEST(ListsTest)
#include "ListsTest.moc"
