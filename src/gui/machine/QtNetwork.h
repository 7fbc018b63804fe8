// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/Network.h"

#include <chrono>
#include <memory>

class QNetworkAccessManager;

namespace tressel {

class Transfer;

/// The network of the desktop's machine. Plain HTTP and nothing else. A transfer ends without a text when it
/// takes too long, when the text is longer than 64 KiB, or when it is sent on more than once or to another
/// protocol. While it runs, the windows are painted; what the user does waits.
class QtNetwork : public Network {
public:
    /// `limit` is how long a transfer may take as a whole.
    explicit QtNetwork(std::chrono::milliseconds limit = std::chrono::seconds(3));
    ~QtNetwork() override;

    bool IsOnline() override;
    std::optional<QString> FetchText(const QString &address) override;
    void Cancel() override;

private:
    QNetworkAccessManager &Manager();

    const std::chrono::milliseconds limit;
    std::unique_ptr<QNetworkAccessManager> manager; ///< made with the first transfer
    Transfer *running = nullptr;
};

} // namespace tressel
