// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "base/Twips.h"
#include "gui/GuiTest.h"
#include "machine/CanberraSound.h"
#include "machine/QtClipboard.h"
#include "machine/QtScreen.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTemporaryFile>
#include <QTest>
#include <QWidget>

using namespace tressel;
using namespace Qt::StringLiterals;

class DesktopTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ScreenIsMeasuredInTwips()
    {
        const QRect size = QGuiApplication::primaryScreen()->availableGeometry();
        QtScreen screen;
        QCOMPARE(screen.Left(), size.left() * 15);
        QCOMPARE(screen.Top(), size.top() * 15);
        QCOMPARE(screen.Width(), size.width() * 15);
        QCOMPARE(screen.Height(), size.height() * 15);
        {
            QWidget window;
            screen.SetMainWindow(&window);
            QCOMPARE(screen.Width(), window.screen()->availableGeometry().width() * 15);
        }
        QCOMPARE(screen.Width(), size.width() * 15);
    }

    void PixelsHoldTheTwips()
    {
        QCOMPARE(ToPixels(8120), 542);
        QCOMPARE(ToPixels(6825), 455);
        QCOMPARE(ToPixels(-20), -1);
        QCOMPARE(ToTwips(455), 6825);
    }

    void ClipboardKeepsText()
    {
        QtClipboard clipboard;
        clipboard.SetText(u"C:\\a\nC:\\b"_s);
        QCOMPARE(clipboard.Text(), u"C:\\a\nC:\\b"_s);
    }

    void AMissingSoundFileIsSilence()
    {
        CanberraSound sound;
        QVERIFY(!sound.Play(u"/no/such/click.wav"_s));
    }

    void AMissingSoundLibraryIsSilence()
    {
        QTemporaryFile file;
        QVERIFY(file.open());
        CanberraSound sound(u"no-such-sound-library"_s);
        // The first sound only starts the search for it.
        QVERIFY(sound.Play(file.fileName()));
        QTRY_VERIFY(!sound.Play(file.fileName()));
    }
};

TRESSEL_GUI_TEST(DesktopTest)
#include "DesktopTest.moc"
