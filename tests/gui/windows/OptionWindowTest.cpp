// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "DesktopStage.h"
#include "gui/GuiTest.h"

#include <QAbstractButton>

using namespace tressel;
using namespace Qt::StringLiterals;

class OptionWindowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void EveryControlHasAFaceAndTheOtherWayRound()
    {
        DesktopStage stage;
        stage.Start();
        const WindowFace *face = stage.desktop->FaceOf(u"frmOption"_s);
        QVERIFY(face);
        QCOMPARE(face->Faces().ControlsWithoutFace(), QStringList());
        QCOMPARE(face->Faces().WidgetsWithoutControl(), QStringList());
    }

    void EnterStoresAndEscapeDoesNot()
    {
        DesktopStage stage;
        stage.Start();
        OptionForm &options = stage.desktop->application.frmOption();
        QWidget &window = stage.desktop->FaceOf(u"frmOption"_s)->Window();
        options.Show();
        stage.Settle();
        options.OptDigit.Select(3);
        QTest::keyClick(&window, Qt::Key_Escape);
        QVERIFY(!options.IsVisible());
        QCOMPARE(stage.desktop->application.settings.ReadInt32(keys::DigitType), 1);
        options.Show();
        stage.Settle();
        QTest::keyClick(&window, Qt::Key_Return);
        QVERIFY(!options.IsVisible());
        QCOMPARE(stage.desktop->application.settings.ReadInt32(keys::DigitType), 3);
    }

    void SwatchTellsItsPurposeAndColour()
    {
        DesktopStage stage;
        stage.Start();
        QWidget &window = stage.desktop->FaceOf(u"frmOption"_s)->Window();
        auto *swatch = window.findChild<QAbstractButton *>(u"PicColor(11)"_s);
        QVERIFY(swatch);
        QCOMPARE(swatch->accessibleName(), u"Color form 2, header, #DEDEDE"_s);
        QCOMPARE(swatch->grab().toImage().pixelColor(10, 10), QColor(0xDE, 0xDE, 0xDE));
    }
};

TRESSEL_GUI_TEST(OptionWindowTest)
#include "OptionWindowTest.moc"
