// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "DesktopStage.h"
#include "gui/FileContents.h"
#include "gui/GuiTest.h"
#include "gui/WhenUp.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QRadioButton>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

constexpr int splitterEntry = 4;

QByteArray Contents(qsizetype length)
{
    QByteArray bytes(length, Qt::Uninitialized);
    for (qsizetype index = 0; index < length; ++index)
        bytes[index] = static_cast<char>(index * 7 + index / 251);
    return bytes;
}

/// The window at the splitter's page, with no other program to be started.
class SplitterStage : public DesktopStage {
public:
    SplitterStage()
    {
        Put(keys::OpenExplorer, u"0"_s);
        Put(keys::DeleteParts, u"0"_s);
        Put(keys::SplitSize, u"5"_s);
        Start();
        OpenEntry(splitterEntry);
    }
    QLineEdit &FileName() const { return *Face<QComboBox>(u"cboFileName"_s).lineEdit(); }
    void Press(const QString &button)
    {
        QTest::mouseClick(&Face<QWidget>(button), Qt::LeftButton);
        Settle();
    }
    QString Text(const QString &label) const { return Face<QLabel>(label).text(); }
    void Choose(const QString &path)
    {
        WhenUp<QFileDialog>([path](QFileDialog &dialog) {
            dialog.selectFile(path);
            Accept(dialog);
        });
        Press(u"btnBrowse"_s);
    }
};

class SplitterWindowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void FileIsChosenCutAndJoinedAgain()
    {
        SplitterStage stage;
        const QString file = stage.Place(u"my film.avi"_s);
        const QByteArray contents = Contents(12000);
        QVERIFY(WriteFile(file, contents));
        stage.Choose(file);
        QCOMPARE(stage.FileName().text(), file);
        QCOMPARE(stage.Text(u"lblEstFileCount(1)"_s), u"3"_s);
        QCOMPARE(stage.Text(u"lblEstFileSize(1)"_s), u"5 Kilobytes"_s);

        stage.Press(u"btnGBSplitFile"_s);
        QCOMPARE(stage.Text(u"lblStatusLine"_s), u"Finished"_s);
        QCOMPARE(stage.Text(u"lblFileCount"_s), u"Split Count: Finished (3 Files)"_s);
        QCOMPARE(ContentsOf(file + u".1"_s) + ContentsOf(file + u".2"_s) + ContentsOf(file + u".3"_s),
                 contents);
        QVERIFY(QFile::exists(file + u".bat"_s));

        QVERIFY(QFile::remove(file));
        stage.Press(u"btnGBJoinFile"_s);
        QCOMPARE(stage.Text(u"lblFileCount"_s), u"File Count: Finished (3 Files)"_s);
        QCOMPARE(ContentsOf(file), contents);
    }

    void CutIsChosenAndTypedByKeyboard()
    {
        SplitterStage stage;
        const QString file = stage.Place(u"a.bin"_s);
        QVERIFY(WriteFile(file, Contents(3000)));
        stage.FileName().setFocus();
        QTest::keyClicks(&stage.FileName(), file);
        auto &byCount = stage.Face<QRadioButton>(u"optSplit(1)"_s);
        byCount.setFocus();
        QTest::keyClick(&byCount, Qt::Key_Space);
        stage.Settle();
        auto &count = stage.Face<QLineEdit>(u"txtSplitCount"_s);
        QVERIFY(count.isEnabled());
        QVERIFY(!stage.Face<QComboBox>(u"cmbSplitSize"_s).isEnabled());
        count.setFocus();
        count.selectAll();
        QTest::keyClicks(&count, u"4"_s);
        stage.Settle();
        QCOMPARE(stage.Text(u"lblEstFileCount(1)"_s), u"4"_s);
        QCOMPARE(stage.Text(u"lblEstFileSize(1)"_s), u". MB (.73 kB)"_s);
        auto &split = stage.Face<QWidget>(u"btnGBSplitFile"_s);
        split.setFocus();
        QTest::keyClick(&split, Qt::Key_Space);
        stage.Settle();
        QCOMPARE(stage.Text(u"lblFileCount"_s), u"Split Count: Finished (4 Files)"_s);
    }

    void F12ClearsTheQueue()
    {
        SplitterStage stage;
        const QString file = stage.Place(u"a.bin"_s);
        QVERIFY(WriteFile(file, Contents(30)));
        stage.Choose(file);
        auto &combo = stage.Face<QComboBox>(u"cboFileName"_s);
        QCOMPARE(combo.count(), 1);
        combo.setFocus();
        QTest::keyClick(&combo, Qt::Key_F12);
        stage.Settle();
        QCOMPARE(combo.count(), 0);
        QCOMPARE(combo.currentText(), QString());
    }

    void QuestionOverTenPiecesIsAnswered()
    {
        SplitterStage stage;
        const QString file = stage.Place(u"a.bin"_s);
        QVERIFY(WriteFile(file, Contents(11 * 5120)));
        stage.Choose(file);
        QString asked;
        WhenUp<QMessageBox>([&](QMessageBox &box) {
            asked = box.text();
            QTest::mouseClick(box.button(QMessageBox::No), Qt::LeftButton);
        });
        stage.Press(u"btnGBSplitFile"_s);
        QCOMPARE(asked, u"Are you sure you want to break this file up into 11 pieces?"_s);
        QVERIFY(!QFile::exists(file + u".1"_s));
        QCOMPARE(stage.Text(u"lblStatusLine"_s), u"Wait working..."_s);
    }

    void OldOutputIsAskedFor()
    {
        SplitterStage stage;
        const QString file = stage.Place(u"a.bin"_s);
        QVERIFY(WriteFile(file, "old"));
        QVERIFY(WriteFile(file + u".1"_s, "new"));
        stage.Choose(file + u".1"_s);
        QCOMPARE(stage.FileName().text(), file);
        QString asked;
        WhenUp<QMessageBox>([&](QMessageBox &box) {
            asked = box.text();
            QTest::mouseClick(box.button(QMessageBox::Yes), Qt::LeftButton);
        });
        stage.Press(u"btnGBJoinFile"_s);
        QCOMPARE(asked,
                 u"Output file (%1) already exists.\nAre you sure you want to overwrite it?"_s.arg(file));
        QCOMPARE(ContentsOf(file), QByteArray("new"));
    }

    void WithoutAFloppyDriveTheDiskIsMissing()
    {
        SplitterStage stage;
        const QString file = stage.Place(u"a.bin"_s);
        QVERIFY(WriteFile(file, Contents(30)));
        stage.Choose(file);
        QTest::mouseClick(&stage.Face<QCheckBox>(u"chkCopyToFloppy"_s), Qt::LeftButton, {}, QPoint(8, 8));
        QVERIFY(stage.Face<QCheckBox>(u"chkCopyToFloppy"_s).isChecked());
        QStringList asked;
        WhenUp<QMessageBox>([&](QMessageBox &box) {
            asked += box.text();
            WhenUp<QMessageBox>([&](QMessageBox &next) {
                asked += next.text();
                QTest::mouseClick(next.button(QMessageBox::Cancel), Qt::LeftButton);
            });
            QTest::mouseClick(box.button(QMessageBox::Ok), Qt::LeftButton);
        });
        stage.Press(u"btnGBSplitFile"_s);
        QCOMPARE(asked,
                 (QStringList{u"Please enter Disk #1 in Drive A:"_s,
                              u"Unable to find disk in drive or disk is write-protected\n"
                              "Please insert another disk and press OK"_s}));
        QCOMPARE(stage.Text(u"lblStatusLine"_s), u"Finished"_s);
    }
};

} // namespace

TRESSEL_GUI_TEST(SplitterWindowTest)
#include "SplitterWindowTest.moc"
