// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/Network.h"
#include "support/Journal.h"

#include <functional>

namespace tressel {

/// A network that is off until the test sets it, with one text for whoever asks.
class MemoryNetwork : public Network {
public:
    explicit MemoryNetwork(Journal &journal)
        : journal(journal)
    {
    }
    bool IsOnline() override { return online; }
    /// Journal: "Fetch" about the address.
    std::optional<QString> FetchText(const QString &address) override
    {
        journal.Note(QStringLiteral("Fetch"), address);
        const int number = ++fetches;
        if (whileFetching)
            std::exchange(whileFetching, {})();
        return cancelled >= number ? std::nullopt : std::optional(text);
    }
    /// Journal: "CancelFetch".
    void Cancel() override
    {
        journal.Note(QStringLiteral("CancelFetch"));
        cancelled = fetches;
    }

    bool online = false;
    QString text; ///< what the server has; empty also stands for one that can't be reached
    std::function<void()> whileFetching; ///< what happens during the next transfer

private:
    Journal &journal;
    int fetches = 0;
    int cancelled = 0; ///< the last transfer that was running when it was cancelled
};

} // namespace tressel
