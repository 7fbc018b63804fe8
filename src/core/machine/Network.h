// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <optional>

namespace tressel {

/// The network, for one small text that a server keeps.
class Network {
public:
    virtual ~Network() = default;
    /// Whether the machine has a network that leads out of it.
    virtual bool IsOnline() = 0;
    /// Fetches the text of an "http://" address and waits for it. Empty if it couldn't be had, for whatever
    /// reason; nothing if the transfer was cancelled meanwhile.
    virtual std::optional<QString> FetchText(const QString &address) = 0;
    /// Stops a transfer that is still running.
    virtual void Cancel() = 0;
};

} // namespace tressel
