// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// The look for a newer version through the whole window, from a server to the page that is opened.

#include "DesktopStage.h"
#include "gui/GuiTest.h"
#include "gui/machine/SmallServer.h"
#include "machine/QtNetwork.h"
#include "support/EnvironmentVariable.h"
#include "widgets/IsButtonWidget.h"
#include "windows/ClickPlaces.h"

#include <QDir>
#include <QFile>
#include <QLabel>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

void Click(QWidget &widget)
{
    QTest::mouseClick(&widget, Qt::LeftButton);
}

/// The window of a program that asks a server on this machine, and a desktop whose opener only notes what it
/// is to open.
class UpdateStage : public DesktopStage {
public:
    explicit UpdateStage(const QByteArray &answer)
        : server({answer})
        , path("PATH", QFile::encodeName(Place(u"bin"_s)) + ':' + qgetenv("PATH"))
    {
        desktop->application.version.updateHost = server.Host();
        QDir(Place({})).mkdir(u"bin"_s);
        QFile opener(Place(u"bin/xdg-open"_s));
        if (!opener.open(QIODevice::WriteOnly))
            qFatal("There is no room for a program.");
        opener.write("#!/bin/sh\necho \"$1\" >> '" + QFile::encodeName(Place(u"opened"_s)) + "'\n");
        opener.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    NoticeBox &Notice() const { return Face<NoticeBox>(u"PicUpdate"_s); }
    QLabel &NoticeText() const { return Face<QLabel>(u"lblUpdate"_s); }
    QString Page() const { return u"http://"_s + server.Host() + u"/downloadupdate/Tressel5.htm"_s; }
    QStringList Opened() const
    {
        QFile file(Place(u"opened"_s));
        if (!file.open(QIODevice::ReadOnly))
            return {};
        return QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
    }
    /// The user turns to another window and back.
    void TurnAwayAndBack()
    {
        QWidget other;
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        Window().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&Window()));
        Settle();
    }

    SmallServer server;

private:
    EnvironmentVariable path;
};

} // namespace

class UpdateWindowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (!QtNetwork().IsOnline())
            QSKIP("This machine has no network that leads out of it, so that nothing is asked.");
    }

    void ANewerVersionIsShownInRedBesideTheStatus()
    {
        UpdateStage stage(Page("Tressel 5.1451"));
        stage.Start();
        QTRY_VERIFY(stage.Notice().isVisible());
        QCOMPARE(stage.server.requests, QByteArrayList{"GET /download/Tressel5.0.txt HTTP/1.1"});
        QCOMPARE(stage.NoticeText().text(), u" (New version 5.1451 is available)"_s);
        QCOMPARE(stage.Notice().toolTip(), u"Clcik here for new update"_s);
        QCOMPARE(stage.Notice().cursor().shape(), Qt::PointingHandCursor);
        QVERIFY(stage.NoticeText().font().bold());
        QCOMPARE(stage.NoticeText().palette().color(QPalette::WindowText), QColor(255, 255, 0));
        const QImage picture = stage.Notice().grab().toImage();
        QCOMPARE(picture.pixelColor(1, 1), QColor(255, 0, 0));
        // 300 twips from the text beside it, and 50 wider than its own.
        const auto &status = stage.Face<QLabel>(u"lblStatusLine"_s);
        QCOMPARE(stage.Notice().x() - (status.x() + status.sizeHint().width()), 20);
        QCOMPARE(stage.Notice().width(), stage.NoticeText().sizeHint().width() + 3);
        // It goes on standing there whatever the status says.
        stage.Form().area.lblStatusLine.SetCaption(u"Finished, folders created successfully"_s);
        stage.Settle();
        QCOMPARE(stage.Notice().x() - (status.x() + status.sizeHint().width()), 20);
    }

    void TheSameVersionAndAFailureShowNothing()
    {
        for (const QByteArray &answer :
             {Page("Tressel 5.1450"), QByteArray("HTTP/1.1 404 No\r\nContent-Length: 6\r\n\r\n5.1451")}) {
            UpdateStage stage(answer);
            stage.Start();
            QTRY_COMPARE(stage.server.requests.size(), 1);
            stage.Settle();
            QVERIFY(!stage.Notice().isVisible());
            QCOMPARE(stage.Face<QLabel>(u"lblStatusLine"_s).text(), u"Finished"_s);
        }
    }

    void AClickOpensThePageAndTheNextActivationShowsTheNoticeAgain()
    {
        UpdateStage stage(Page("5.1451"));
        stage.Start();
        QVERIFY(QTest::qWaitForWindowActive(&stage.Window()));
        QTRY_VERIFY(stage.Notice().isVisible());
        Click(stage.NoticeText());
        stage.Settle();
        QVERIFY(!stage.Notice().isVisible());
        QTRY_COMPARE(stage.Opened(), QStringList(stage.Page()));

        stage.TurnAwayAndBack();
        QTRY_VERIFY(stage.Notice().isVisible());
        QCOMPARE(stage.server.requests.size(), 2);
        // On the box itself, beside the text.
        QTest::mouseClick(&stage.Notice(), Qt::LeftButton, {},
                          QPoint(stage.Notice().width() - 1, stage.Notice().height() / 2));
        stage.Settle();
        QVERIFY(!stage.Notice().isVisible());
        QTRY_COMPARE(stage.Opened(), QStringList({stage.Page(), stage.Page()}));
    }

    void TheToolbarOpensThePageAndLeavesTheNotice()
    {
        UpdateStage stage(Page("5.1451"));
        stage.Start();
        QTRY_VERIFY(stage.Notice().isVisible());
        Click(stage.Face<IsButtonWidget>(u"btnGBToolbarUpdate"_s));
        stage.Settle();
        QTRY_COMPARE(stage.Opened(), QStringList(stage.Page()));
        QVERIFY(stage.Notice().isVisible());
        QCOMPARE(stage.Face<QLabel>(u"lblStatusLine"_s).text(), u"Finished"_s);
    }

    void TheNewsOfASecondActivationReplaceTheFirstOnes()
    {
        UpdateStage stage(Page("5.1451"));
        stage.server.answers += Page("5.1450");
        stage.Start();
        QVERIFY(QTest::qWaitForWindowActive(&stage.Window()));
        QTRY_VERIFY(stage.Notice().isVisible());
        stage.TurnAwayAndBack();
        QTRY_VERIFY(!stage.Notice().isVisible());
        QCOMPARE(stage.server.requests.size(), 2);
    }

    void AServerThatNeverAnswersHoldsTheWindowUpForThreeSeconds()
    {
        UpdateStage stage{QByteArray()};
        QElapsedTimer passed;
        passed.start();
        stage.Start();
        QCOMPARE(stage.server.requests.size(), 1);
        // The toolkit's timers may be five in a hundred early.
        QVERIFY2(passed.elapsed() >= 2850, qPrintable(QString::number(passed.elapsed())));
        QVERIFY(stage.Window().isVisible());
        QVERIFY(!stage.Notice().isVisible());
    }

    void WithoutAnAddressNothingIsAskedAndTheToolbarSaysSo()
    {
        UpdateStage stage(Page("5.1451"));
        stage.desktop->application.version.updateHost.clear();
        stage.Start();
        auto &button = stage.Face<IsButtonWidget>(u"btnGBToolbarUpdate"_s);
        button.setFocus();
        QTest::keyClick(&button, Qt::Key_Space);
        stage.Settle();
        QCOMPARE(stage.Face<QLabel>(u"lblStatusLine"_s).text(), u"No update address is set"_s);
        QVERIFY(stage.server.requests.isEmpty());
        QCOMPARE(stage.Opened(), QStringList());
    }
};

TRESSEL_GUI_TEST(UpdateWindowTest)
#include "UpdateWindowTest.moc"
