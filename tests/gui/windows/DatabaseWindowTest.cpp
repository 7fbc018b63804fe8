// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// The database page in its window, from a file on the disc to the folders that its rows become.

#include "DesktopStage.h"
#include "gui/FileContents.h"
#include "gui/GuiTest.h"
#include "gui/WhenUp.h"
#include "support/JetWriter.h"
#include "support/SampleDatabase.h"
#include "widgets/IsButtonWidget.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QTreeView>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

constexpr int databaseEntry = 5;

QStringList Rows(const QListView &list)
{
    QStringList rows;
    for (int row = 0; row < list.model()->rowCount(); ++row)
        rows += list.model()->index(row, 0).data().toString();
    return rows;
}

void Click(QWidget &widget)
{
    QTest::mouseClick(&widget, Qt::LeftButton);
}

/// On a row's text, right of its box.
void ClickRow(QListView &list, const QString &text)
{
    const qsizetype row = Rows(list).indexOf(text);
    QVERIFY2(row >= 0, qPrintable(text));
    const QRect place = list.visualRect(list.model()->index(static_cast<int>(row), 0));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place.center());
}

QStringList Folders(const QString &path)
{
    return QDir(path).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
}

/// The window with the database page open, beside a database on the disc.
class DatabaseWindow : public DesktopStage {
public:
    DatabaseWindow()
    {
        QVERIFY(WriteFile(Place(u"names.mdb"_s), SampleDatabase()));
        Put(keys::IndxBar, QString::number(databaseEntry));
        Put(keys::FileExt, u"0"_s);
        Put(keys::OpenDBPath, Place({}));
    }
    QListView &Tables() const { return Face<QListView>(u"ListBox(0)"_s); }
    QListView &Fields() const { return Face<QListView>(u"ListBox(1)"_s); }
    QListView &Names() const { return Face<QListView>(u"LstItem"_s); }
    QString Label(const QString &name) const { return Face<QLabel>(name).text(); }
    void PressKey(int key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(Window().focusWidget(), static_cast<Qt::Key>(key), modifiers);
        Settle();
    }
    /// Goes on with the tab key till a control has the keyboard.
    void TabTo(const QString &name)
    {
        for (int stop = 0; stop < 100 && Window().focusWidget()->objectName() != name; ++stop)
            QTest::keyClick(Window().focusWidget(), Qt::Key_Tab);
        QCOMPARE(Window().focusWidget()->objectName(), name);
    }
};

} // namespace

class DatabaseWindowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void FoldersAreMadeFromAFieldByMouse()
    {
        DatabaseWindow stage;
        stage.Start();
        QCOMPARE(stage.Label(u"lblstrSQL"_s), u"Tables"_s);
        WhenUp<QFileDialog>([&stage](QFileDialog &dialog) {
            QCOMPARE(dialog.windowTitle(), u"Open file"_s);
            dialog.selectFile(stage.Place(u"names.mdb"_s));
            Accept(dialog);
        });
        Click(stage.Face<IsButtonWidget>(u"btnGBOpenDatabase"_s));
        stage.Settle();
        QCOMPARE(stage.Face<QLineEdit>(u"txtDatabaseFile"_s).text(), stage.Place(u"names.mdb"_s));
        QCOMPARE(Rows(stage.Tables()), QStringList({u"Lessons"_s, u"Months"_s, u"Products"_s}));
        QCOMPARE(stage.Label(u"lblstrSQL"_s), u"3 Table(s)"_s);
        QCOMPARE(stage.Tables().currentIndex().data().toString(), u"Lessons"_s);

        ClickRow(stage.Tables(), u"Months"_s);
        stage.Settle();
        QCOMPARE(Rows(stage.Fields()).contains(u"Folder"_s), true);
        ClickRow(stage.Fields(), u"Folder"_s);
        stage.Settle();
        Click(stage.Face<IsButtonWidget>(u"btnGBLoadList"_s));
        stage.Settle();
        QCOMPARE(Rows(stage.Names()).size(), 12);
        QCOMPARE(Rows(stage.Names()).first(), u"01 January"_s);
        QCOMPARE(stage.Label(u"lblStatusLine"_s), u"Finished"_s);
        const QAbstractItemModel &tree = *stage.Face<QTreeView>(u"TVList"_s).model();
        QCOMPARE(tree.rowCount(tree.index(0, 0)), 12);

        auto &start = stage.Face<QLineEdit>(u"txtStrtPath"_s);
        Click(start);
        start.selectAll();
        QTest::keyClicks(&start, stage.Place(u"made"_s));
        stage.Settle();
        Click(stage.Face<IsButtonWidget>(u"btnGBToolbarCreate"_s));
        stage.Settle();
        QCOMPARE(Folders(stage.Place(u"made"_s)), Rows(stage.Names()));
        QCOMPARE(stage.Label(u"lblStatusLine"_s), u"Finished, folders created successfully"_s);
    }

    void FoldersAreMadeFromAFieldByKeyboard()
    {
        DatabaseWindow stage;
        stage.Start();
        QVERIFY(QTest::qWaitForWindowActive(&stage.Window()));
        stage.Face<QLineEdit>(u"txtDatabaseFile"_s).setFocus();
        stage.TabTo(u"btnGBOpenDatabase"_s);
        WhenUp<QFileDialog>([](QFileDialog &dialog) {
            auto *name = dialog.findChild<QLineEdit *>(u"fileNameEdit"_s);
            QVERIFY(name);
            name->selectAll();
            QTest::keyClicks(name, u"names.mdb"_s);
            QMetaObject::invokeMethod(
                &dialog, [name] { QTest::keyClick(name, Qt::Key_Return); }, Qt::QueuedConnection);
        });
        stage.PressKey(Qt::Key_Space);
        QCOMPARE(stage.Label(u"lblstrSQL"_s), u"3 Table(s)"_s);

        stage.TabTo(u"ListBox(0)"_s);
        stage.PressKey(Qt::Key_Down);
        QCOMPARE(stage.Tables().currentIndex().data().toString(), u"Months"_s);
        stage.TabTo(u"ListBox(1)"_s);
        stage.PressKey(Qt::Key_Down);
        for (int step = 0; step < 5 && stage.Form().database.Fields.Text() != u"Folder"_s; ++step)
            stage.PressKey(Qt::Key_Down);
        QCOMPARE(stage.Form().database.Fields.Text(), u"Folder"_s);
        stage.TabTo(u"btnGBLoadList"_s);
        stage.PressKey(Qt::Key_Space);
        QCOMPARE(Rows(stage.Names()).size(), 12);

        stage.Form().area.txtStrtPath.SetText(stage.Place(u"made"_s));
        stage.PressKey(Qt::Key_Return, Qt::ControlModifier);
        QCOMPARE(Folders(stage.Place(u"made"_s)), Rows(stage.Names()));
    }

    void TheFileOfTheLastSessionIsOpenedAtTheStart()
    {
        DatabaseWindow stage;
        stage.Put(keys::DatabaseFile, stage.Place(u"names.mdb"_s));
        stage.Put(keys::Table, u"1"_s);
        stage.Start();
        QCOMPARE(stage.Tables().currentIndex().data().toString(), u"Months"_s);
        QCOMPARE(stage.Fields().model()->rowCount(), stage.Form().database.Fields.ListCount());
        QVERIFY(stage.Fields().model()->rowCount() > 0);
    }

    void AMissingFileShowsItsBoxesAtTheStart()
    {
        DatabaseWindow stage;
        stage.Put(keys::DatabaseFile, stage.Place(u"gone.mdb"_s));
        QStringList boxes;
        const auto note = [&boxes](QMessageBox &box) {
            boxes += box.windowTitle() + u": "_s + box.text();
            box.accept();
        };
        WhenUp<QMessageBox>([&](QMessageBox &box) {
            note(box);
            WhenUp<QMessageBox>(note);
        });
        stage.Start();
        QCOMPARE(boxes,
                 QStringList({u"Tressel: Failed to Open "_s + stage.Place(u"gone.mdb"_s)
                                  + u"\n\nThe file could not be found."_s,
                              u"No Tables found!: No User tables in database"_s}));
        QVERIFY(stage.Window().isVisible());
    }

    void ABoxIsCheckedByMouseAndKeyWithoutChangingTheField()
    {
        DatabaseWindow stage;
        stage.Put(keys::DatabaseFile, stage.Place(u"names.mdb"_s));
        stage.Start();
        const FieldSelections &selections = stage.Form().database.schema.Selections;
        QVERIFY(selections.At(0, 0));
        const QRect row = stage.Fields().visualRect(stage.Fields().model()->index(0, 0));
        // Where the style draws the box.
        QTest::mouseClick(stage.Fields().viewport(), Qt::LeftButton, {},
                          QPoint(row.left() + 10, row.center().y()));
        stage.Settle();
        QVERIFY(!selections.At(0, 0));
        stage.Fields().setFocus();
        QTest::keyClick(&stage.Fields(), Qt::Key_Space);
        stage.Settle();
        QVERIFY(selections.At(0, 0));
    }

    void ALongTableFillsTheList()
    {
        DatabaseWindow stage;
        JetWriter writer;
        WrittenTable table{u"T"_s, {{u"F"_s}}};
        for (int number = 0; number < 30000; ++number)
            table.rows.append({{QString::number(number)}});
        writer.AddTable(table);
        QVERIFY(WriteFile(stage.Place(u"long.mdb"_s), writer.Bytes()));
        stage.Put(keys::DatabaseFile, stage.Place(u"long.mdb"_s));
        stage.Start();
        ClickRow(stage.Fields(), u"F"_s);
        stage.Settle();
        Click(stage.Face<IsButtonWidget>(u"btnGBLoadList"_s));
        stage.Settle();
        QCOMPARE(stage.Names().model()->rowCount(), 30000);
        QCOMPARE(stage.Names().model()->index(29999, 0).data().toString(), u"29999"_s);
    }
};

TRESSEL_GUI_TEST(DatabaseWindowTest)
#include "DatabaseWindowTest.moc"
