// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/QtNetwork.h"

#include "base/Version.h"
#include "machine/TextFile.h"

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkInterface>
#include <QNetworkReply>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 longestText = 64 << 10;

bool IsPlainHttp(const QUrl &address)
{
    return address.isValid() && address.scheme() == u"http"_s && !address.host().isEmpty();
}

QNetworkRequest RequestFor(const QUrl &address)
{
    QNetworkRequest request(address);
    request.setRawHeader("User-Agent",
                         "Tressel/" + QByteArray::number(MajorVersion) + '.'
                             + QByteArray::number(MinorVersion) + '.' + QByteArray::number(Revision));
    // A text that came packed could be any length.
    request.setRawHeader("Accept-Encoding", "identity");
    request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::UserVerifiedRedirectPolicy);
    request.setMaximumRedirectsAllowed(1);
    return request;
}

bool LeadsOut(const QNetworkInterface &port)
{
    const QNetworkInterface::InterfaceFlags flags = port.flags();
    if (!flags.testFlag(QNetworkInterface::IsUp) || !flags.testFlag(QNetworkInterface::IsRunning)
        || flags.testFlag(QNetworkInterface::IsLoopBack))
        return false;
    return std::ranges::any_of(port.addressEntries(),
                               [](const QNetworkAddressEntry &entry) { return !entry.ip().isLinkLocal(); });
}

} // namespace

/// One fetch, from the request to the text.
class Transfer {
public:
    Transfer(QNetworkAccessManager &manager, const QUrl &address, std::chrono::milliseconds limit)
        : reply(manager.get(RequestFor(address)))
    {
        reply->setReadBufferSize(longestText + 1);
        QObject::connect(reply.get(), &QNetworkReply::readyRead, &loop, [this] { TakeBytes(); });
        QObject::connect(reply.get(), &QNetworkReply::redirected, &loop, [this](const QUrl &target) {
            if (IsPlainHttp(target))
                Q_EMIT reply->redirectAllowed();
            else
                reply->abort();
        });
        QObject::connect(reply.get(), &QNetworkReply::finished, &loop, &QEventLoop::quit);
        QObject::connect(&watch, &QTimer::timeout, &loop, [this] { reply->abort(); });
        watch.setSingleShot(true);
        watch.start(limit);
    }

    /// Waits for the end. Nothing if it was cancelled.
    std::optional<QString> Text()
    {
        if (!reply->isFinished())
            loop.exec(QEventLoop::ExcludeUserInputEvents);
        if (cancelled)
            return std::nullopt;
        if (reply->error() == QNetworkReply::NoError)
            TakeBytes();
        const bool failed = reply->error() != QNetworkReply::NoError || bytes.size() > longestText;
        return failed ? QString() : DecodeText(bytes);
    }

    void Cancel()
    {
        cancelled = true;
        reply->abort();
    }

private:
    void TakeBytes()
    {
        bytes += reply->read(longestText + 1 - bytes.size());
        if (bytes.size() > longestText)
            reply->abort();
    }

    std::unique_ptr<QNetworkReply> reply;
    QEventLoop loop;
    QTimer watch;
    QByteArray bytes;
    bool cancelled = false;
};

QtNetwork::QtNetwork(std::chrono::milliseconds longest)
    : limit(longest)
{
}

QtNetwork::~QtNetwork() = default;

bool QtNetwork::IsOnline()
{
    return std::ranges::any_of(QNetworkInterface::allInterfaces(), LeadsOut);
}

std::optional<QString> QtNetwork::FetchText(const QString &address)
{
    const QUrl url(address, QUrl::StrictMode);
    if (!IsPlainHttp(url))
        return QString();
    Transfer transfer(Manager(), url, limit);
    Transfer *const before = std::exchange(running, &transfer);
    const auto text = transfer.Text();
    running = before;
    return text;
}

void QtNetwork::Cancel()
{
    if (running)
        running->Cancel();
}

QNetworkAccessManager &QtNetwork::Manager()
{
    if (!manager)
        manager = std::make_unique<QNetworkAccessManager>();
    return *manager;
}

} // namespace tressel
