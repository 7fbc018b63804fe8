// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "DesktopStage.h"
#include "gui/Dropping.h"
#include "gui/GuiTest.h"
#include "gui/WhenUp.h"
#include "widgets/IsButtonWidget.h"

#include <QDir>
#include <QFile>
#include <QHelpEvent>
#include <QLabel>
#include <QListView>
#include <QMessageBox>
#include <QProgressBar>
#include <QToolTip>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

/// The window at the page of the list of files to erase.
class EraseStage : public DesktopStage {
public:
    EraseStage()
    {
        QDir(Place({})).mkdir(u"w"_s);
        Put(keys::IndxBar, u"2"_s);
        Start();
        Window().activateWindow();
    }

    QString PutFile(const QString &name, const QByteArray &contents = "secret")
    {
        QFile file(Place(u"w/"_s + name));
        const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size();
        return isWritten ? file.fileName() : QString();
    }
    QStringList Left() const
    {
        return QDir(Place(u"w"_s))
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

    QListView &List() const { return Face<QListView>(u"lstErase"_s); }
    IsButtonWidget &Button() const { return Face<IsButtonWidget>(u"btnGBErase"_s); }
    QLabel &Message() const { return Face<QLabel>(u"lblEraseMessage"_s); }
    QPoint PlaceOf(int row) const { return List().visualRect(List().model()->index(row, 0)).center(); }
    QStringList Rows() const
    {
        QStringList rows;
        for (int row = 0; row < List().model()->rowCount(); ++row)
            rows += List().model()->index(row, 0).data().toString();
        return rows;
    }
    /// False if the list doesn't take them.
    [[nodiscard]] bool Drop(const QStringList &paths)
    {
        const bool taken = DropPaths(*List().viewport(), paths);
        Settle();
        return taken;
    }
    /// The page's own timer opens the button some time after the list has something.
    void PressErase()
    {
        QTRY_VERIFY(Button().isEnabled());
        QTest::mouseClick(&Button(), Qt::LeftButton);
        Settle();
    }
};

} // namespace

class EraseWindowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void DroppedFilesAreErased()
    {
        EraseStage stage;
        QVERIFY(!stage.Button().isEnabled());
        QCOMPARE(stage.Message().text(), u"Drag and drop files into list"_s);
        const QString one = stage.PutFile(u"one"_s, QByteArray(12345, 'a'));
        const QString two = stage.PutFile(u"two"_s, {});
        const QString kept = stage.PutFile(u"kept"_s);
        QVERIFY(stage.Drop({one, two}));
        QVERIFY(stage.Drop({one}));
        QCOMPARE(stage.Rows(), QStringList({one, two}));

        QTest::mouseClick(stage.List().viewport(), Qt::LeftButton, {}, stage.PlaceOf(0));
        stage.Settle();
        QCOMPARE(stage.Message().text(), u"File size: 12,345 Byte"_s);
        stage.PressErase();
        QCOMPARE(stage.Rows(), QStringList());
        QCOMPARE(stage.Left(), QStringList(u"kept"_s));
        QCOMPARE(stage.Face<QLabel>(u"lblOverwrite"_s).text(), u"Ready"_s);
        QCOMPARE(stage.Face<QProgressBar>(u"ProgrBar"_s).value(), 0);
        // What the run says stands until the timer's next turn.
        QTRY_COMPARE(stage.Message().text(), u"Drag and drop files into list"_s);
        QTRY_VERIFY(!stage.Button().isEnabled());
    }

    void SuccessIsToldInRed()
    {
        EraseStage stage;
        QVERIFY(stage.Drop({stage.PutFile(u"one"_s)}));
        QTRY_VERIFY(stage.Button().isEnabled());
        stage.Form().erase.Timer1.SetEnabled(false);
        stage.PressErase();
        QCOMPARE(stage.Message().text(), u"Successfully Deleted"_s);
        QCOMPARE(stage.Message().palette().color(stage.Message().foregroundRole()), QColor(Qt::red));
    }

    void AFolderGetsTheBoxAndTheOthersGo()
    {
        EraseStage stage;
        QVERIFY(QDir().mkpath(stage.Place(u"w/folder/inside"_s)));
        const QString folder = stage.Place(u"w/folder"_s);
        QVERIFY(stage.Drop({folder, stage.PutFile(u"one"_s)}));
        QString told;
        WhenUp<QMessageBox>([&](QMessageBox &box) {
            told = box.text();
            QCOMPARE(box.icon(), QMessageBox::Warning);
            QTest::keyClick(&box, Qt::Key_Return);
        });
        stage.PressErase();
        QCOMPARE(told, u"Folders ''%1'' cannot erased !!!"_s.arg(folder));
        QCOMPARE(stage.Left(), QStringList(u"folder"_s));
        QVERIFY(QDir(folder + u"/inside"_s).exists());
        QCOMPARE(stage.Rows(), QStringList());
    }

    void DoubleClickAndEnterTakeARowOut()
    {
        EraseStage stage;
        const QStringList paths{stage.PutFile(u"a"_s), stage.PutFile(u"b"_s), stage.PutFile(u"c"_s)};
        QVERIFY(stage.Drop(paths));
        QTest::mouseClick(stage.List().viewport(), Qt::LeftButton, {}, stage.PlaceOf(1));
        QTest::mouseDClick(stage.List().viewport(), Qt::LeftButton, {}, stage.PlaceOf(1));
        stage.Settle();
        QCOMPARE(stage.Rows(), QStringList({paths.at(0), paths.at(2)}));
        stage.List().setFocus();
        QTest::keyClick(&stage.List(), Qt::Key_Home);
        QTest::keyClick(&stage.List(), Qt::Key_Down);
        stage.Settle();
        QTest::keyClick(&stage.List(), Qt::Key_Return);
        stage.Settle();
        QCOMPARE(stage.Rows(), QStringList(paths.at(0)));
        QCOMPARE(stage.Left().size(), 3);
    }

    void TheButtonIsWorkedByTheKeyboard()
    {
        EraseStage stage;
        QVERIFY(stage.Drop({stage.PutFile(u"a"_s)}));
        QTRY_VERIFY(stage.Button().isEnabled());
        stage.Button().setFocus();
        QTest::keyClick(&stage.Button(), Qt::Key_Space);
        stage.Settle();
        QCOMPARE(stage.Left(), QStringList());
    }

    void TheRowUnderThePointerIsTheTip()
    {
        EraseStage stage;
        const QString path = stage.PutFile(u"a"_s);
        QVERIFY(stage.Drop({path}));
        QWidget &ground = *stage.List().viewport();
        const QPoint place = stage.PlaceOf(0);
        QMouseEvent move(QEvent::MouseMove, place, ground.mapToGlobal(place), Qt::NoButton, Qt::NoButton,
                         Qt::NoModifier);
        QCoreApplication::sendEvent(&ground, &move);
        stage.Settle();
        QCOMPARE(stage.Form().erase.lstErase.ToolTip(), u' ' + path + u' ');
        QHelpEvent help(QEvent::ToolTip, place, ground.mapToGlobal(place));
        QCoreApplication::sendEvent(&ground, &help);
        QVERIFY2(QToolTip::text().contains(path), qPrintable(QToolTip::text()));
        QToolTip::hideText();
    }
};

TRESSEL_GUI_TEST(EraseWindowTest)
#include "EraseWindowTest.moc"
