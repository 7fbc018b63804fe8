// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <utility>

namespace tressel {

/// One event of a control. It has at most one handler: the procedure of the form that answers it.
template <typename... Arguments> class Event {
public:
    /// Sets the handler, in place of the one before.
    template <typename Handler> void Handle(Handler &&procedure)
    {
        handler = std::forward<Handler>(procedure);
    }

    /// Raises the event. Nothing happens without a handler.
    void Raise(Arguments... arguments) const
    {
        if (handler)
            handler(arguments...);
    }

private:
    std::function<void(Arguments...)> handler;
};

} // namespace tressel
