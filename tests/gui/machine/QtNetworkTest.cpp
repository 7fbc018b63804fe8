// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/QtNetwork.h"

#include "gui/GuiTest.h"
#include "gui/machine/SmallServer.h"

#include <QTest>
#include <QTimer>

#include <arpa/inet.h>
#include <cstring>
#include <fcntl.h>
#include <linux/if_tun.h>
#include <net/if.h>
#include <sched.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace tressel;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// What a check says in a network of its own, in which there is nothing but the machine itself. Nothing where
/// the system makes none.
std::optional<bool> InNetworkOfItsOwn(const std::function<bool()> &check)
{
    constexpr int noNetwork = 2;
    const pid_t child = fork();
    if (child == 0) {
        if (unshare(CLONE_NEWNET) != 0 && unshare(CLONE_NEWUSER | CLONE_NEWNET) != 0)
            _exit(noNetwork);
        _exit(check() ? 1 : 0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    if (!WIFEXITED(status) || WEXITSTATUS(status) == noNetwork)
        return {};
    return WEXITSTATUS(status) == 1;
}

/// A port of the machine that leads to whoever holds this; there as long as it lives.
class Port {
public:
    Port()
    {
        request.ifr_flags = IFF_TUN | IFF_NO_PI;
        isMade = device >= 0 && ioctl(device, TUNSETIFF, &request) == 0;
    }
    ~Port()
    {
        close(device);
        close(control);
    }
    Port(const Port &) = delete;
    Port &operator=(const Port &) = delete;

    bool IsMade() const { return isMade; }
    bool SetAddress(const char *address)
    {
        sockaddr_in place{};
        place.sin_family = AF_INET;
        inet_pton(AF_INET, address, &place.sin_addr);
        std::memcpy(&request.ifr_addr, &place, sizeof place);
        return ioctl(control, SIOCSIFADDR, &request) == 0;
    }
    bool Switch(bool on)
    {
        request.ifr_flags = on ? IFF_UP | IFF_RUNNING : 0;
        return ioctl(control, SIOCSIFFLAGS, &request) == 0;
    }

private:
    int device = open("/dev/net/tun", O_RDWR | O_CLOEXEC);
    int control = socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    ifreq request{};
    bool isMade = false;
};

} // namespace

class QtNetworkTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void TheMachineAloneIsOffline()
    {
        const auto online = InNetworkOfItsOwn([] { return QtNetwork().IsOnline(); });
        if (!online)
            QSKIP("This system makes no network for a test.");
        QVERIFY(!*online);
    }

    void APortThatLeadsOutIsOnline()
    {
        const auto canBeMade = InNetworkOfItsOwn([] { return Port().IsMade(); });
        if (!canBeMade.value_or(false))
            QSKIP("This system makes no network port for a test.");
        const auto holds = InNetworkOfItsOwn([] {
            Port port;
            QtNetwork network;
            const bool offAtFirst = !network.IsOnline();
            const bool offWithoutCarrier =
                port.SetAddress("192.0.2.1") && port.Switch(false) && !network.IsOnline();
            const bool online = port.Switch(true) && network.IsOnline();
            // An address that the machine gave itself leads nowhere.
            const bool offAlone = port.SetAddress("169.254.7.7") && !network.IsOnline();
            return offAtFirst && offWithoutCarrier && online && offAlone;
        });
        QVERIFY(holds.value_or(false));
    }

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
