// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/QtDialogs.h"

#include "gui/GuiTest.h"
#include "gui/WhenUp.h"
#include "machine/BusyCursor.h"
#include "machine/FileFilters.h"

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QFontDialog>
#include <QFontInfo>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

using namespace tressel;
using namespace Qt::StringLiterals;

class QtDialogsTest : public QObject {
    Q_OBJECT

    BusyCursor cursor;
    QtDialogs dialogs{cursor, u"Tressel"_s};

private Q_SLOTS:
    void AMessageBoxShowsWhatItIsAskedWith()
    {
        cursor.SetBusy(true);
        QString seen;
        WhenUp<QMessageBox>([&](QMessageBox &box) {
            QCOMPARE(box.windowTitle(), u"Overwrite file"_s);
            QCOMPARE(box.text(), u"/a/<b>\n\nAre you sure?"_s);
            QCOMPARE(box.textFormat(), Qt::PlainText);
            QCOMPARE(box.icon(), QMessageBox::Question);
            QCOMPARE(box.standardButtons(), QMessageBox::Yes | QMessageBox::No);
            QCOMPARE(box.defaultButton(), box.button(QMessageBox::No));
            QVERIFY(!QGuiApplication::overrideCursor());
            seen = box.windowTitle();
            box.button(QMessageBox::Yes)->click();
        });
        const BoxAnswer answer = dialogs.Show({u"/a/<b>\r\n\r\nAre you sure?"_s, u"Overwrite file"_s,
                                               BoxIcon::Question, BoxButtons::YesNo, BoxAnswer::No});
        QCOMPARE(answer, BoxAnswer::Yes);
        QCOMPARE(seen, u"Overwrite file"_s);
        QVERIFY(QGuiApplication::overrideCursor());
        cursor.SetBusy(false);
    }

    void EscapeGivesTheHarmlessAnswer_data()
    {
        QTest::addColumn<int>("buttons");
        QTest::addColumn<int>("answer");
        QTest::newRow("ok") << int(BoxButtons::Ok) << int(BoxAnswer::Ok);
        QTest::newRow("ok cancel") << int(BoxButtons::OkCancel) << int(BoxAnswer::Cancel);
        QTest::newRow("yes no") << int(BoxButtons::YesNo) << int(BoxAnswer::No);
        QTest::newRow("yes no cancel") << int(BoxButtons::YesNoCancel) << int(BoxAnswer::Cancel);
    }

    void EscapeGivesTheHarmlessAnswer()
    {
        QFETCH(int, buttons);
        QFETCH(int, answer);
        WhenUp<QMessageBox>([&](QMessageBox &box) {
            QCOMPARE(box.windowTitle(), u"Tressel"_s);
            QTest::keyClick(&box, Qt::Key_Escape);
        });
        QCOMPARE(int(dialogs.Show({u"text"_s, {}, BoxIcon::None, static_cast<BoxButtons>(buttons), {}})),
                 answer);
    }

    void EnterPressesTheFirstButton()
    {
        WhenUp<QMessageBox>([&](QMessageBox &box) { QTest::keyClick(&box, Qt::Key_Return); });
        QCOMPARE(dialogs.Show({u"text"_s, {}, BoxIcon::None, BoxButtons::YesNo, {}}), BoxAnswer::Yes);
    }

    void TheFatalBoxTellsNumberAndDescription()
    {
        QString text;
        WhenUp<QMessageBox>([&](QMessageBox &box) {
            text = box.text();
            QCOMPARE(box.icon(), QMessageBox::Critical);
            box.button(QMessageBox::Ok)->click();
        });
        dialogs.ShowFatal(13, u"Type mismatch"_s);
        QCOMPARE(text, u"Run-time error '13':\n\nType mismatch"_s);
    }

    void FiltersTakeTheToolkitsForm()
    {
        const QString filter = u"All Files (*.*)|*.*|Data (*.mdb)|*.mdb;*.accdb|"_s;
        QCOMPARE(NameFilters(filter),
                 QStringList({u"All Files (*.*) (*)"_s, u"Data (*.mdb) (*.mdb *.accdb)"_s}));
        QCOMPARE(NameFilters(QString()), QStringList());
    }

    void FirstFilterIsTheOneAskedForOrTheNamesPattern_data()
    {
        QTest::addColumn<QString>("fileName");
        QTest::addColumn<int>("asked");
        QTest::addColumn<int>("first");
        QTest::newRow("second") << u"list"_s << 2 << 1;
        QTest::newRow("beyond the filters") << u"list"_s << 4 << 0;
        QTest::newRow("below the filters") << QString() << 0 << 0;
        QTest::newRow("by the name's pattern") << u"*.txt"_s << 4 << 1;
        QTest::newRow("an unknown pattern") << u"*.doc"_s << 2 << 1;
    }

    void FirstFilterIsTheOneAskedForOrTheNamesPattern()
    {
        QFETCH(QString, fileName);
        QFETCH(int, asked);
        QFETCH(int, first);
        FileDialogRequest request;
        request.filter = u"All Files (*.*)|*.*|TXT Files (*.txt)|*.txt|"_s;
        request.fileName = fileName;
        request.filterIndex = asked;
        QCOMPARE(FirstFilter(request), first);
        request.filter.clear();
        QCOMPARE(FirstFilter(request), -1);
    }

    void AFileIsOpenedFromTheStartFolder()
    {
        QTemporaryDir folder;
        QFile file(folder.filePath(u"a.txt"_s));
        QVERIFY(file.open(QFile::WriteOnly));
        file.close();
        FileDialogRequest request;
        request.title = u"Open file"_s;
        request.folder = folder.path();
        request.fileName = u"*.txt"_s;
        request.filter = u"All Files (*.*)|*.*|TXT Files (*.txt)|*.txt|DOC Files (*.doc)|*.doc|"_s;
        request.filterIndex = 4;
        request.defaultExtension = u".txt"_s;
        WhenUp<QFileDialog>([&](QFileDialog &dialog) {
            QCOMPARE(dialog.windowTitle(), u"Open file"_s);
            QCOMPARE(dialog.directory().path(), folder.path());
            QCOMPARE(dialog.selectedNameFilter(), u"TXT Files (*.txt)"_s);
            dialog.findChild<QLineEdit *>(u"fileNameEdit"_s)->setText(u"a"_s);
            Accept(dialog);
        });
        const auto answer = dialogs.OpenFile(request);
        QVERIFY(answer);
        QCOMPARE(answer->paths, QStringList({file.fileName()}));
        QCOMPARE(answer->folder, folder.path());
    }

    void AFileThatIsThereIsOpenedUnderItsOwnName()
    {
        QTemporaryDir folder;
        for (const QString &name : {u"names"_s, u"names.txt"_s, u"other.txt"_s}) {
            QFile file(folder.filePath(name));
            QVERIFY(file.open(QFile::WriteOnly));
        }
        FileDialogRequest request;
        request.folder = folder.path();
        request.defaultExtension = u".txt"_s;
        const auto opened = [&](const QString &typed) {
            WhenUp<QFileDialog>([&](QFileDialog &dialog) {
                dialog.findChild<QLineEdit *>(u"fileNameEdit"_s)->setText(typed);
                Accept(dialog);
            });
            const auto answer = dialogs.OpenFile(request);
            return answer ? answer->paths : QStringList();
        };
        QCOMPARE(opened(folder.filePath(u"names"_s)), QStringList(folder.filePath(u"names"_s)));
        QCOMPARE(opened(u"names"_s), QStringList(folder.filePath(u"names"_s)));
        QCOMPARE(opened(folder.filePath(u"other"_s)), QStringList(folder.filePath(u"other.txt"_s)));
    }

    void AFileThatIsNotThereIsNotOpened()
    {
        QTemporaryDir folder;
        FileDialogRequest request;
        request.folder = folder.path();
        request.defaultExtension = u".txt"_s;
        int told = 0;
        WhenUp<QFileDialog>([&](QFileDialog &dialog) {
            dialog.findChild<QLineEdit *>(u"fileNameEdit"_s)->setText(folder.filePath(u"gone"_s));
            Accept(dialog);
            WhenUp<QMessageBox>([&](QMessageBox &box) {
                ++told;
                box.accept();
                WhenUp<QFileDialog>([](QFileDialog &still) { still.reject(); });
            });
        });
        QVERIFY(!dialogs.OpenFile(request));
        QCOMPARE(told, 1);
    }

    void CancelledFileDialogsAnswerNothing()
    {
        const auto reject = [](QFileDialog &dialog) { dialog.reject(); };
        WhenUp<QFileDialog>(reject);
        QVERIFY(!dialogs.OpenFile({}));
        WhenUp<QFileDialog>(reject);
        QVERIFY(!dialogs.SaveFile({}));
        WhenUp<QFileDialog>(reject);
        QVERIFY(!dialogs.ChooseFolder(u"Select Folder"_s, {}));
    }

    void AMissingStartFolderLeavesTheDefaultPlace()
    {
        QString started;
        WhenUp<QFileDialog>([&](QFileDialog &dialog) {
            started = dialog.directory().path();
            dialog.reject();
        });
        FileDialogRequest request;
        request.folder = u"/no/such/folder"_s;
        request.fileName = u"/no/such/folder/list.txt"_s;
        QVERIFY(!dialogs.SaveFile(request));
        QVERIFY(QDir(started).exists());
    }

    void SavingAsksBeforeItOverwrites()
    {
        QTemporaryDir folder;
        QFile file(folder.filePath(u"list.txt"_s));
        QVERIFY(file.open(QFile::WriteOnly));
        file.close();
        FileDialogRequest request;
        request.fileName = file.fileName();
        request.askBeforeOverwriting = true;
        bool asked = false;
        WhenUp<QFileDialog>([&](QFileDialog &dialog) {
            WhenUp<QMessageBox>([&](QMessageBox &box) {
                asked = true;
                box.button(QMessageBox::Yes)->click();
            });
            Accept(dialog);
        });
        const auto answer = dialogs.SaveFile(request);
        QVERIFY(answer && asked);
        QCOMPARE(answer->paths, QStringList({file.fileName()}));

        request.askBeforeOverwriting = false;
        WhenUp<QFileDialog>([&](QFileDialog &dialog) { Accept(dialog); });
        QVERIFY(dialogs.SaveFile(request));
    }

    void SeveralFilesComeTogether()
    {
        QTemporaryDir folder;
        for (const QString &name : {u"a"_s, u"b"_s}) {
            QFile file(folder.filePath(name));
            QVERIFY(file.open(QFile::WriteOnly));
        }
        FileDialogRequest request;
        request.folder = folder.path();
        request.several = true;
        request.centreOnOwner = false;
        WhenUp<QFileDialog>([&](QFileDialog &dialog) {
            QCOMPARE(dialog.fileMode(), QFileDialog::ExistingFiles);
            dialog.findChild<QLineEdit *>(u"fileNameEdit"_s)->setText(u"\"a\" \"b\""_s);
            Accept(dialog);
        });
        const auto answer = dialogs.OpenFile(request);
        QVERIFY(answer);
        QCOMPARE(answer->paths, QStringList({folder.filePath(u"a"_s), folder.filePath(u"b"_s)}));
    }

    void AFolderIsChosenUnderItsPrompt()
    {
        QTemporaryDir folder;
        WhenUp<QFileDialog>([&](QFileDialog &dialog) {
            QCOMPARE(dialog.windowTitle(), u"Select Destination Folder..."_s);
            QCOMPARE(dialog.fileMode(), QFileDialog::Directory);
            Accept(dialog);
        });
        QCOMPARE(dialogs.ChooseFolder(u"Select Destination Folder..."_s, folder.path()), folder.path());
    }

    void AColourComesBackAsItsNumber()
    {
        WhenUp<QColorDialog>([&](QColorDialog &dialog) {
            QCOMPARE(dialog.windowTitle(), u"Choose a Color"_s);
            QCOMPARE(dialog.currentColor(), QColor(0xFA, 0xE2, 0xB6));
            dialog.setCurrentColor(QColor(1, 2, 3));
            dialog.accept();
        });
        QCOMPARE(dialogs.ChooseColour(0xB6E2FA), std::optional<quint32>(0x030201));
        WhenUp<QColorDialog>([&](QColorDialog &dialog) { dialog.reject(); });
        QVERIFY(!dialogs.ChooseColour(0));
    }

    void AFontComesBackWithItsColour()
    {
        FontChoice font;
        font.family = QFontInfo(QApplication::font()).family();
        font.points = 12;
        font.bold = true;
        font.underline = true;
        font.colour = 0x0000FF;
        WhenUp<QFontDialog>([&](QFontDialog &dialog) {
            QCOMPARE(dialog.windowTitle(), u"Choose a Color"_s);
            QVERIFY(dialog.currentFont().bold());
            WhenUp<QColorDialog>([&](QColorDialog &colours) {
                QCOMPARE(colours.currentColor(), QColor(Qt::red));
                colours.setCurrentColor(QColor(Qt::blue));
                colours.accept();
            });
            dialog.findChild<QPushButton *>(u"colourButton"_s)->click();
            dialog.accept();
        });
        const auto answer = dialogs.ChooseFont(font);
        QVERIFY(answer);
        QCOMPARE(answer->family, font.family);
        QCOMPARE(answer->points, 12.0);
        QVERIFY(answer->bold && answer->underline && !answer->italic && !answer->strikeout);
        QCOMPARE(answer->colour, 0xFF0000U);
        WhenUp<QFontDialog>([&](QFontDialog &dialog) { dialog.reject(); });
        QVERIFY(!dialogs.ChooseFont(font));
    }
};

TRESSEL_GUI_TEST(QtDialogsTest)
#include "QtDialogsTest.moc"
