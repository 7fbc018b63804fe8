// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

#include <chrono>
#include <utility>

namespace tressel {

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

    /// What stands between "http://" and the path.
    QString Host() const { return QStringLiteral("127.0.0.1:%1").arg(serverPort()); }
    QString Address(const QString &path = QStringLiteral("/download/Tressel5.0.txt")) const
    {
        return QStringLiteral("http://") + Host() + path;
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
        timer->start(std::chrono::milliseconds(10));
    }
};

/// A whole answer with this content.
inline QByteArray Page(const QByteArray &content)
{
    return "HTTP/1.1 200 OK\r\nContent-Type: text/plain\r\nContent-Length: "
        + QByteArray::number(content.size()) + "\r\nConnection: close\r\n\r\n" + content;
}

/// An answer that sends the caller on.
inline QByteArray Elsewhere(const QString &address)
{
    return "HTTP/1.1 302 Found\r\nLocation: " + address.toUtf8()
        + "\r\nContent-Length: 0\r\nConnection: close\r\n\r\n";
}

} // namespace tressel
