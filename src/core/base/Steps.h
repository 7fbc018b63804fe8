// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Failure.h"

#include <functional>
#include <optional>
#include <utility>

namespace tressel {

/// Runs steps under the rule "a failure of a step is ignored and the next step runs".
/// The last failure stays readable, since some rules ask for it afterwards.
class Steps {
public:
    Steps() = default;
    /// A variant that also calls `handler` after each failed step, and then goes on.
    explicit Steps(std::function<void(const Failure &)> handler)
        : handler(std::move(handler))
    {
    }

    /// Runs one step. True if it ended without a failure.
    template <typename Step> bool Do(Step &&step)
    {
        try {
            step();
            return true;
        } catch (const Failure &failure) {
            Note(failure);
            return false;
        }
    }

    /// Takes over the outcome of a step that reports its failure instead of throwing it.
    /// True if there was none.
    bool Note(const std::optional<Failure> &failure)
    {
        if (!failure)
            return true;
        pending = failure->number;
        if (handler)
            handler(*failure);
        return false;
    }

    /// The number of the last failure, nothing if no step has failed since the start or the last Clear.
    std::optional<FailureNumber> Pending() const { return pending; }
    void Clear() { pending.reset(); }

private:
    std::function<void(const Failure &)> handler;
    std::optional<FailureNumber> pending;
};

} // namespace tressel
