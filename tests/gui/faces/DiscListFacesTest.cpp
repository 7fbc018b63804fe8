// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "controls/CheckListBox.h"
#include "controls/DriveList.h"
#include "controls/FileList.h"
#include "controls/FolderList.h"
#include "gui/GuiTest.h"
#include "gui/faces/Bound.h"
#include "support/MemoryMachine.h"

#include <QComboBox>
#include <QListView>
#include <QSignalSpy>
#include <QStyleOptionViewItem>
#include <QTest>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

QStringList Texts(const QAbstractItemModel &model)
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row)
        texts += model.index(row, 0).data().toString();
    return texts;
}

void Open(QListView &view, int row)
{
    const QPoint place = view.visualRect(view.model()->index(row, 0)).center();
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, place);
}

/// The leftmost column of the row's picture that holds this colour, -1 if none does.
int FirstColumnOf(const QColor &colour, QListView &view, int row)
{
    const QImage picture = view.viewport()->grab(view.visualRect(view.model()->index(row, 0))).toImage();
    for (int x = 0; x < picture.width(); ++x) {
        for (int y = 0; y < picture.height(); ++y) {
            if (picture.pixelColor(x, y) == colour)
                return x;
        }
    }
    return -1;
}

} // namespace

class DiscListFacesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void DrivesAreChosenFromADropDownList()
    {
        MemoryMachine memory;
        memory.files.AddDrive(u'D', u"DATA"_s);
        Form form(u"f"_s);
        DriveList drives(form, u"DrvList"_s, memory.files);
        int changes = 0;
        drives.Change.Handle([&] { ++changes; });
        Bound bound(form);
        auto &view = bound.Add<QComboBox>(u"DrvList"_s);
        QVERIFY(bound.Bind());
        QVERIFY(!view.isEditable());
        QCOMPARE(view.count(), 2);
        QCOMPARE(view.currentIndex(), 0);
        view.setFocus();
        QTest::keyClick(&view, Qt::Key_Down);
        QCOMPARE(drives.Drive(), u"D:\\"_s);
        QCOMPARE(changes, 1);
    }

    void FoldersAreIndentedAndOpened()
    {
        MemoryMachine memory;
        memory.files.PutFolder(u"C:\\a\\b"_s);
        memory.files.PutFolder(u"C:\\a\\c"_s);
        Form form(u"f"_s);
        FolderList folders(form, u"DirList"_s, memory.files);
        folders.SetPath(u"C:\\a"_s);
        int changes = 0;
        int clicks = 0;
        folders.Change.Handle([&] { ++changes; });
        folders.Click.Handle([&] { ++clicks; });
        Bound bound(form);
        QPixmap green(16, 16);
        green.fill(Qt::green);
        FaceLooks looks;
        looks.folder = QIcon(green);
        bound.makers = FaceMakers(looks);
        auto &view = bound.Add<QListView>(u"DirList"_s);
        view.resize(300, 200);
        QVERIFY(bound.Bind());
        QCOMPARE(Texts(*view.model()), QStringList({u"C:\\"_s, u"a"_s, u"b"_s, u"c"_s}));
        const int root = FirstColumnOf(Qt::green, view, 0);
        const int present = FirstColumnOf(Qt::green, view, 1);
        const int below = FirstColumnOf(Qt::green, view, 2);
        QVERIFY(root >= 0 && root < present && present < below);
        QCOMPARE(FirstColumnOf(Qt::green, view, 3), below);

        QTest::mouseClick(view.viewport(), Qt::LeftButton, {},
                          view.visualRect(view.model()->index(2, 0)).center());
        QCOMPARE(folders.SelectedPath(), u"C:\\a\\b"_s);
        QCOMPARE(folders.Path(), u"C:\\a"_s);
        QCOMPARE(clicks, 1);
        Open(view, 2);
        QCOMPARE(folders.Path(), u"C:\\a\\b"_s);
        QCOMPARE(changes, 1);
        QTRY_COMPARE(Texts(*view.model()), QStringList({u"C:\\"_s, u"a"_s, u"b"_s}));
        QVERIFY(FirstColumnOf(Qt::green, view, 2) == below);
    }

    void FilesAreOpenedByDoubleClickAndEnter()
    {
        MemoryMachine memory;
        memory.files.PutFile(u"C:\\a\\one.txt"_s);
        memory.files.PutFile(u"C:\\a\\two.txt"_s);
        Form form(u"f"_s);
        FileList files(form, u"FileList"_s, memory.files);
        files.SetPath(u"C:\\a"_s);
        QStringList opened;
        files.DoubleClick.Handle([&] { opened += files.FileName(); });
        Bound bound(form);
        auto &view = bound.Add<QListView>(u"FileList"_s);
        view.resize(300, 200);
        QVERIFY(bound.Bind());
        Open(view, 1);
        view.setCurrentIndex(view.model()->index(0, 0));
        QTest::keyClick(&view, Qt::Key_Enter);
        QCOMPARE(opened, QStringList({u"two.txt"_s, u"one.txt"_s}));
    }

    void MarksAreShownAndToggled()
    {
        Form form(u"f"_s);
        CheckListBox list(form, u"ListBox(0)"_s);
        list.SetItems({u"Names"_s, u"Places"_s});
        list.SetChecked(1, true);
        QList<int> checks;
        list.ItemCheck.Handle([&](int row) { checks += row; });
        Bound bound(form);
        auto &view = bound.Add<QListView>(u"ListBox(0)"_s);
        view.resize(300, 200);
        QVERIFY(bound.Bind());
        QAbstractItemModel &model = *view.model();
        QCOMPARE(model.index(0, 0).data(Qt::CheckStateRole).toInt(), int(Qt::Unchecked));
        QCOMPARE(model.index(1, 0).data(Qt::CheckStateRole).toInt(), int(Qt::Checked));

        view.setCurrentIndex(model.index(0, 0));
        QTest::keyClick(&view, Qt::Key_Space);
        QCOMPARE(checks, QList<int>({0}));
        QVERIFY(list.IsChecked(0));
        QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
        QTRY_COMPARE(changed.count(), 1);
        QCOMPARE(model.index(0, 0).data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
        model.setData(model.index(0, 0), Qt::Checked, Qt::CheckStateRole);
        QCOMPARE(checks, QList<int>({0}));
    }
};

TRESSEL_GUI_TEST(DiscListFacesTest)
#include "DiscListFacesTest.moc"
