// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "DesktopStage.h"

using namespace tressel;
using namespace Qt::StringLiterals;

class WindowsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void EveryControlOfTheMainFormHasAFaceAndTheOtherWayRound()
    {
        DesktopStage stage;
        stage.Start();
        QCOMPARE(stage.MainFace().Faces().ControlsWithoutFace(), QStringList());
        QCOMPARE(stage.MainFace().Faces().WidgetsWithoutControl(), QStringList());
    }

    void EveryControlOfTheTipFormHasAFaceAndTheOtherWayRound()
    {
        DesktopStage stage;
        stage.Put(keys::ShowTips, u"1"_s);
        stage.Start();
        const WindowFace *face = stage.desktop->FaceOf(u"frmTip"_s);
        QVERIFY(face);
        QCOMPARE(face->Faces().ControlsWithoutFace(), QStringList());
        QCOMPARE(face->Faces().WidgetsWithoutControl(), QStringList());
    }
};

QTEST_MAIN(WindowsTest)
#include "WindowsTest.moc"
