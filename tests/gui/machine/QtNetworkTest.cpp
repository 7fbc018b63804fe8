// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/QtNetwork.h"

#include "gui/GuiTest.h"

#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>
#include <QTimer>

using namespace tressel;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// A server on this machine that gives each caller the next of its answers, the last one again and again.
class SmallServer : public QTcpServer {
public:
    explicit SmallServer(QList<QByteArray> givenAnswers)
        : answers(std::move(givenAnswers))
    {
        if (!listen(QHostAddress::LocalHost))
            qFatal("There is no port to listen on.");
        connect(this, &QTcpServer::newConnection, this, [this] { Serve(*nextPendingConnection()); });
    }

    QString Address(const QString &path = u"/download/Tressel5.0.txt"_s) const
    {
        return u"http://127.0.0.1:%1%2"_s.arg(serverPort()).arg(path);
    }

    bool aByteATime = false;
    QList<QByteArray> answers;
    QByteArrayList requests; ///< the first line of each

private:
    void Serve(QTcpSocket &socket)
    {
        connect(&socket, &QTcpSocket::readyRead, this, [this, &socket] {
            requests += socket.readLine().trimmed();
            socket.readAll();
            const QByteArray answer = answers.size() > 1 ? answers.takeFirst() : answers.first();
            if (aByteATime)
                Trickle(socket, answer);
            else if (!answer.isEmpty())
                Give(socket, answer);
        });
        connect(&socket, &QTcpSocket::disconnected, &socket, &QObject::deleteLater);
    }
    static void Give(QTcpSocket &socket, const QByteArray &answer)
    {
        socket.write(answer);
        socket.disconnectFromHost();
    }
    static void Trickle(QTcpSocket &socket, const QByteArray &answer)
    {
        auto *timer = new QTimer(&socket);
        connect(timer, &QTimer::timeout, &socket, [&socket, answer, sent = 0]() mutable {
            socket.write(answer.mid(sent++, 1));
            socket.flush();
        });
        timer->start(10ms);
    }
};

QByteArray Page(const QByteArray &content)
{
    return "HTTP/1.1 200 OK\r\nContent-Type: text/plain\r\nContent-Length: "
        + QByteArray::number(content.size()) + "\r\nConnection: close\r\n\r\n" + content;
}

QByteArray Elsewhere(const QString &address)
{
    return "HTTP/1.1 302 Found\r\nLocation: " + address.toUtf8()
        + "\r\nContent-Length: 0\r\nConnection: close\r\n\r\n";
}

} // namespace

class QtNetworkTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ATextComesAsItIs_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("text");
        QTest::newRow("newer") << QByteArray("Tressel 5.1451") << u"Tressel 5.1451"_s;
        QTest::newRow("equal") << QByteArray("5.1450") << u"5.1450"_s;
        QTest::newRow("older") << QByteArray("5.1449") << u"5.1449"_s;
        QTest::newRow("short") << QByteArray("9") << u"9"_s;
        QTest::newRow("empty") << QByteArray() << QString();
        QTest::newRow("line break at the end") << QByteArray("5.1451\r\n") << u"5.1451\r\n"_s;
        QTest::newRow("bytes of no encoding") << QByteArray("\xFF\x80") << u"\u00FF\u20AC"_s;
        QTest::newRow("just short enough") << QByteArray(64 << 10, 'x') << QString(64 << 10, u'x');
    }

    void ATextComesAsItIs()
    {
        QFETCH(QByteArray, content);
        SmallServer server({Page(content)});
        QtNetwork network;
        const auto text = network.FetchText(server.Address());
        QVERIFY(text.has_value());
        QTEST(*text, "text");
        QCOMPARE(server.requests, QByteArrayList{"GET /download/Tressel5.0.txt HTTP/1.1"});
    }

    void WhatIsNoTextOfOursIsEmpty_data()
    {
        QTest::addColumn<QByteArray>("answer");
        QTest::newRow("404") << QByteArray("HTTP/1.1 404 Not Found\r\nContent-Length: 6\r\n\r\n5.1451");
        QTest::newRow("500") << QByteArray("HTTP/1.1 500 No\r\nContent-Length: 6\r\n\r\n5.1451");
        QTest::newRow("garbage") << QByteArray(500, '\x07');
        QTest::newRow("one byte too long") << Page(QByteArray((64 << 10) + 1, 'x'));
        QTest::newRow("10 MB") << Page(QByteArray(10 << 20, 'x'));
        QTest::newRow("10 MB without a length")
            << QByteArray("HTTP/1.1 200 OK\r\nConnection: close\r\n\r\n") + QByteArray(10 << 20, 'x');
        QTest::newRow("cut short") << QByteArray("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\n5.1451");
        QTest::newRow("to another protocol") << Elsewhere(u"https://127.0.0.1:9/x"_s);
        QTest::newRow("to a file") << Elsewhere(u"file:///etc/hostname"_s);
    }

    void WhatIsNoTextOfOursIsEmpty()
    {
        QFETCH(QByteArray, answer);
        SmallServer server({answer});
        QtNetwork network;
        QCOMPARE(network.FetchText(server.Address()), std::optional(QString()));
    }

    void OneRedirectIsFollowed()
    {
        SmallServer server({Page("5.1451")});
        SmallServer first({Elsewhere(server.Address(u"/there"_s))});
        QtNetwork network;
        QCOMPARE(network.FetchText(first.Address()), std::optional(u"5.1451"_s));
        QCOMPARE(server.requests, QByteArrayList{"GET /there HTTP/1.1"});
    }

    void ASecondRedirectIsNot()
    {
        SmallServer server({Page("5.1451")});
        SmallServer second({Elsewhere(server.Address())});
        SmallServer first({Elsewhere(second.Address())});
        QtNetwork network;
        QCOMPARE(network.FetchText(first.Address()), std::optional(QString()));
        QVERIFY(server.requests.isEmpty());
    }

    void AServerThatNeverAnswersIsGivenUp()
    {
        SmallServer server({QByteArray()});
        QtNetwork network(100ms);
        QCOMPARE(network.FetchText(server.Address()), std::optional(QString()));
        QCOMPARE(server.requests.size(), 1);
    }

    void AServerThatSendsByteByByteIsGivenUp()
    {
        SmallServer server({Page(QByteArray(10000, '9'))});
        server.aByteATime = true;
        QtNetwork network(200ms);
        QCOMPARE(network.FetchText(server.Address()), std::optional(QString()));
    }

    void NobodyThereIsEmpty()
    {
        QString address;
        {
            const SmallServer server({QByteArray()});
            address = server.Address();
        }
        QCOMPARE(QtNetwork().FetchText(address), std::optional(QString()));
    }

    void OtherProtocolsAreNotAsked()
    {
        QtNetwork network;
        for (const QString &address :
             {u"file:///etc/hostname"_s, u"https://127.0.0.1/"_s, u"http:///path"_s, QString()})
            QCOMPARE(network.FetchText(address), std::optional(QString()));
    }

    void WhatIsNoUserInputGoesOnMeanwhile()
    {
        SmallServer server({QByteArray()});
        QtNetwork network(300ms);
        int ticks = 0;
        QTimer timer;
        connect(&timer, &QTimer::timeout, &timer, [&] { ++ticks; });
        timer.start(20ms);
        network.FetchText(server.Address());
        QVERIFY(ticks >= 3);
    }

    void ACancelledTransferHasNothingToSay()
    {
        SmallServer server({QByteArray()});
        QtNetwork network;
        QTimer::singleShot(50ms, &server, [&] { network.Cancel(); });
        QVERIFY(!network.FetchText(server.Address()).has_value());
    }

    void ATransferWithinAnotherTakesItsPlace()
    {
        SmallServer silent({QByteArray()});
        SmallServer server({Page("5.1451")});
        QtNetwork network;
        std::optional<QString> inner;
        QTimer::singleShot(50ms, &server, [&] {
            network.Cancel();
            inner = network.FetchText(server.Address());
        });
        QVERIFY(!network.FetchText(silent.Address()).has_value());
        QCOMPARE(inner, std::optional(u"5.1451"_s));
    }
};

TRESSEL_GUI_TEST(QtNetworkTest)
#include "QtNetworkTest.moc"
