// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "DesktopStage.h"
#include "gui/GuiTest.h"
#include "widgets/IsButtonWidget.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QScrollBar>
#include <QToolTip>
#include <QTreeView>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

void Click(QWidget &widget)
{
    QTest::mouseClick(&widget, Qt::LeftButton);
}

void Type(QComboBox &box, const QString &text)
{
    box.setFocus();
    box.lineEdit()->selectAll();
    QTest::keyClicks(&box, text);
}

void Type(QLineEdit &edit, const QString &text)
{
    edit.setFocus();
    edit.selectAll();
    QTest::keyClicks(&edit, text);
}

bool IsInView(const QAbstractItemView &view, const QModelIndex &index)
{
    return view.viewport()->rect().contains(view.visualRect(index));
}

QModelIndex RowOf(const QAbstractItemView &view, const QString &text)
{
    for (int row = 0; row < view.model()->rowCount(); ++row) {
        if (view.model()->index(row, 0).data().toString() == text)
            return view.model()->index(row, 0);
    }
    return {};
}

} // namespace

class ToolRunsTest : public QObject {
    Q_OBJECT

private:
    /// A folder deep down with so many sub folders, each named "sub" and a letter.
    static QString DeepFolder(const DesktopStage &stage, int subFolders)
    {
        QString path = stage.Place(u"one/two/three/four/five/six/present"_s);
        for (int number = 0; number < subFolders; ++number)
            QDir().mkpath(path + u"/sub"_s + QChar(u'a' + number));
        return path;
    }

private Q_SLOTS:
    void ASeriesIsMadeAndDeletedOnTheDisc()
    {
        DesktopStage stage;
        const QString place = stage.Place(u"series"_s);
        QVERIFY(QDir().mkpath(place));
        stage.Put(keys::LastNumPath, place);
        stage.Put(keys::IndxBar, u"3"_s);
        stage.Start();
        Type(stage.Face<QComboBox>(u"cboFrom"_s), u"9"_s);
        Type(stage.Face<QComboBox>(u"cboTo"_s), u"11"_s);
        Type(stage.Face<QLineEdit>(u"txtFeltDir"_s), u"Box"_s);
        auto &sub = stage.Face<QLineEdit>(u"txtFeltDirSub"_s);
        sub.setFocus();
        sub.selectAll();
        QTest::keyClick(&sub, Qt::Key_Delete);
        stage.Settle();
        Click(stage.Face<IsButtonWidget>(u"btnGBMake"_s));
        stage.Settle();
        QCOMPARE(QDir(place).entryList(QDir::Dirs | QDir::NoDotAndDotDot),
                 QStringList({u"Box09"_s, u"Box10"_s, u"Box11"_s}));
        // The list of the page shows what was made.
        const auto &list = stage.Face<QListView>(u"DirBox"_s);
        for (const QString &name : {u"Box09"_s, u"Box10"_s, u"Box11"_s})
            QVERIFY2(IsInView(list, RowOf(list, name)), qPrintable(name));

        QDir(place).mkdir(u"Box10/kept"_s);
        stage.Face<QCheckBox>(u"Chck_MakeDel"_s).click();
        stage.Settle();
        Click(stage.Face<IsButtonWidget>(u"btnGBDelete"_s));
        stage.Settle();
        QCOMPARE(QDir(place).entryList(QDir::Dirs | QDir::NoDotAndDotDot), QStringList(u"Box10"_s));
    }

    void ThePresentFolderIsInViewMarkedAndWhereTheKeyboardStarts_data()
    {
        QTest::addColumn<int>("entry");
        QTest::addColumn<QString>("list");
        QTest::newRow("browse") << 1 << u"DirList"_s;
        QTest::newRow("series") << 3 << u"DirBox"_s;
        QTest::newRow("empty folders") << 6 << u"DirListRemove"_s;
    }

    void ThePresentFolderIsInViewMarkedAndWhereTheKeyboardStarts()
    {
        QFETCH(int, entry);
        QFETCH(QString, list);
        DesktopStage stage;
        const QString present = DeepFolder(stage, 3);
        stage.Put(keys::LastDBPath, present);
        stage.Put(keys::LastNumPath, present);
        stage.Put(keys::SearchPath, present);
        // The page that is open at the start, and one that is opened later.
        stage.Put(keys::IndxBar, QString::number(entry));
        stage.Start();
        stage.OpenEntry(entry == 1 ? 3 : 1);
        stage.OpenEntry(entry);
        const auto &view = stage.Face<QListView>(list);
        const QModelIndex row = RowOf(view, u"present"_s);
        QVERIFY(row.isValid());
        QVERIFY(IsInView(view, row));
        for (const QString &sub : {u"suba"_s, u"subb"_s})
            QVERIFY2(IsInView(view, RowOf(view, sub)), qPrintable(sub));
        QVERIFY(row.data(Qt::FontRole).value<QFont>().bold());
        QVERIFY(!RowOf(view, u"six"_s).data(Qt::FontRole).value<QFont>().bold());
        QCOMPARE(view.currentIndex(), row);
        QVERIFY(!view.selectionModel()->hasSelection());
    }

    void ThePresentFolderIsInViewAtTheStart()
    {
        DesktopStage stage;
        const QString present = DeepFolder(stage, 12);
        stage.Put(keys::LastDBPath, present);
        stage.Start();
        const auto &view = stage.Face<QListView>(u"DirList"_s);
        QVERIFY(view.isVisible());
        const QModelIndex row = RowOf(view, u"present"_s);
        QVERIFY(IsInView(view, row));
        QVERIFY(IsInView(view, RowOf(view, u"suba"_s)));
        QCOMPARE(view.currentIndex(), row);
    }

    void TheKeyboardGoesOnFromThePresentFolder()
    {
        DesktopStage stage;
        const QString present = DeepFolder(stage, 3);
        stage.Put(keys::LastDBPath, present);
        stage.Start();
        auto &view = stage.Face<QListView>(u"DirList"_s);
        view.setFocus();
        QTest::keyClick(&view, Qt::Key_Down);
        stage.Settle();
        QCOMPARE(view.currentIndex().data().toString(), u"suba"_s);
        QCOMPARE(stage.Form().browse.DirList.SelectedPath(), present + u"/suba"_s);
        QTest::keyClick(&view, Qt::Key_Return);
        stage.Settle();
        QCOMPARE(stage.Form().browse.DirList.Path(), present + u"/suba"_s);
        QCOMPARE(view.currentIndex().data().toString(), u"suba"_s);
        QVERIFY(IsInView(view, view.currentIndex()));
    }

    void TheUserMayScrollAwayFromThePresentFolder()
    {
        DesktopStage stage;
        const QString present = DeepFolder(stage, 12);
        stage.Put(keys::LastDBPath, present);
        stage.Start();
        auto &view = stage.Face<QListView>(u"DirList"_s);
        view.verticalScrollBar()->triggerAction(QAbstractSlider::SliderToMinimum);
        stage.Window().resize(stage.Window().width() + 40, stage.Window().height());
        stage.Settle();
        QCOMPARE(view.verticalScrollBar()->value(), 0);
        // A run reads the list anew: its folder is of interest again.
        QDir().mkpath(present + u"/subnew"_s);
        stage.Form().browse.DirList.Refresh();
        stage.Settle();
        QVERIFY(IsInView(view, RowOf(view, u"present"_s)));
    }

    void AListingOfFoldersRebuildsItsStructure()
    {
        DesktopStage stage;
        const QString source = stage.Place(u"source"_s);
        QVERIFY(QDir().mkpath(source + u"/one/Live"_s));
        QVERIFY(QDir().mkpath(source + u"/two"_s));
        stage.Put(keys::IndxBar, u"2"_s);
        stage.Put(keys::FileExt, u"0"_s);
        stage.Start();
        Type(stage.Face<QComboBox>(u"CboFilePath"_s), source);
        stage.Face<QCheckBox>(u"ChckDir"_s).setChecked(true);
        stage.Face<QCheckBox>(u"ChckValg"_s).setChecked(false);
        stage.Settle();
        Click(stage.Face<IsButtonWidget>(u"btnGBMakeList"_s));
        stage.Settle();
        QCOMPARE(stage.Face<QLabel>(u"lblWStatus"_s).text(), u"Progress Status"_s);
        const QAbstractItemModel &names = *stage.Face<QListView>(u"LstItem"_s).model();
        QCOMPARE(names.rowCount(), 4);
        const QString asEntry = QString(source).replace(u'/', u'\\');
        QStringList entries;
        for (int row = 0; row < names.rowCount(); ++row)
            entries += names.index(row, 0).data().toString();
        QCOMPARE(entries,
                 QStringList({asEntry + u' ', asEntry + u"\\one "_s, asEntry + u"\\one\\Live "_s,
                              asEntry + u"\\two "_s}));

        Type(stage.Face<QLineEdit>(u"txtStrtPath"_s), stage.Place(u"made"_s));
        stage.Settle();
        Click(stage.Face<IsButtonWidget>(u"btnGBToolbarCreate"_s));
        stage.Settle();
        // The levels of the folder that was listed stand below the destination, blanks at the ends as told.
        const QDir made(stage.Place(u"made"_s));
        QStringList found;
        const QStringList walked = [&] {
            QStringList levels;
            std::function<void(const QString &)> walk = [&](const QString &path) {
                for (const QString &name : QDir(path).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
                    levels += name.trimmed();
                    walk(path + u'/' + name);
                }
            };
            walk(made.path());
            return levels;
        }();
        for (const QString &level : {u"source"_s, u"one"_s, u"Live"_s, u"two"_s})
            QVERIFY2(walked.contains(level), qPrintable(walked.join(u' ')));
        QVERIFY(!made.entryList(QDir::Dirs | QDir::NoDotAndDotDot).join(u' ').contains(u"Live"_s));
    }

    void AListingGoesIntoItsReport()
    {
        DesktopStage stage;
        const QString source = stage.Place(u"source"_s);
        QVERIFY(QDir().mkpath(source));
        QFile file(source + u"/song.mp3"_s);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        stage.Put(keys::IndxBar, u"2"_s);
        stage.Start();
        Type(stage.Face<QComboBox>(u"CboFilePath"_s), source);
        stage.Face<QCheckBox>(u"ChckValg"_s).setChecked(true);
        stage.Settle();
        Click(stage.Face<IsButtonWidget>(u"btnGBMakeList"_s));
        stage.Settle();
        QCOMPARE(stage.Face<QLabel>(u"lblStatusLine"_s).text(), u"Generate File list - Finished"_s);
        const QString report = stage.Face<QLineEdit>(u"txtReport"_s).text();
        QVERIFY2(report.startsWith(source + u"/List-01 "_s), qPrintable(report));
        QFile written(report);
        QVERIFY(written.open(QIODevice::ReadOnly));
        const QByteArray content = written.readAll();
        QVERIFY(content.contains(QFile::encodeName(source) + "\r\n"));
        QVERIFY(content.contains("   song.mp3\r\n"));
    }

    void TheKeyboardClosesTheTreeAfterAClickOnANode()
    {
        DesktopStage stage;
        stage.Start();
        for (const QString &name : {u"a"_s, u"b"_s, u"c"_s})
            stage.Form().area.LstItem.AddItem(name);
        stage.Form().tree.RefreshFolderTree();
        stage.Settle();
        auto &view = stage.Face<QTreeView>(u"TVList"_s);
        const QModelIndex root = view.model()->index(0, 0);
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {},
                          view.visualRect(view.model()->index(1, 0, root)).center());
        stage.Settle();
        QCOMPARE(view.currentIndex().data().toString(), u"b"_s);
        view.setFocus();
        QTest::keyClick(&view, Qt::Key_Left);
        stage.Settle();
        QCOMPARE(view.currentIndex(), root);
        QCOMPARE(stage.Form().area.TVList.SelectedNode(), 0);
        QTest::keyClick(&view, Qt::Key_Left);
        stage.Settle();
        QVERIFY(!view.isExpanded(root));
        QVERIFY(!stage.Form().area.TVList.IsExpanded(0));
    }

    void ANameLongerThanThePaneIsItsTip()
    {
        DesktopStage stage;
        stage.Start();
        const QString name = QString(60, u'n') + u" <b>end</b>"_s;
        stage.Form().area.LstItem.AddItem(name);
        stage.Form().area.LstItem.AddItem(u"x"_s);
        stage.Form().tree.RefreshFolderTree();
        stage.Settle();
        const auto tipOf = [](QAbstractItemView &view, const QModelIndex &index) {
            QToolTip::hideText();
            const QPoint place = view.visualRect(index).center();
            QHelpEvent event(QEvent::ToolTip, place, view.viewport()->mapToGlobal(place));
            QApplication::sendEvent(view.viewport(), &event);
            return QToolTip::text();
        };
        auto &list = stage.Face<QListView>(u"LstItem"_s);
        QVERIFY(tipOf(list, list.model()->index(0, 0)).contains(name.toHtmlEscaped()));
        QCOMPARE(tipOf(list, list.model()->index(1, 0)), u" Double clikk to remove item "_s);
        auto &tree = stage.Face<QTreeView>(u"TVList"_s);
        const QModelIndex root = tree.model()->index(0, 0);
        QVERIFY(tipOf(tree, tree.model()->index(0, 0, root)).contains(QString(60, u'n')));
        QCOMPARE(tipOf(tree, tree.model()->index(1, 0, root)), u" Clikk a item to Open Created Folder "_s);
    }
};

TRESSEL_GUI_TEST(ToolRunsTest)
#include "ToolRunsTest.moc"
