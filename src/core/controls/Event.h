// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <functional>
#include <utility>
#include <vector>

namespace tressel {

/// One event of a control. One handler is the procedure of the form that answers it; who else wants to
/// hear of it is told afterwards.
template <typename... Arguments> class Event {
public:
    using Procedure = std::function<void(Arguments...)>;

    /// Sets the handler. An event has one place for it: taking it a second time ends the program, since
    /// the handler before would be lost without a word.
    void Handle(Procedure procedure)
    {
        if (handler)
            qFatal("An event that has a handler was given another one.");
        handler = std::move(procedure);
    }

    /// Adds a procedure that is called after the handler and those added before. Not while the event is
    /// raised.
    void Also(Procedure procedure) { others.push_back(std::move(procedure)); }

    /// Raises the event. Nothing happens without a handler.
    void Raise(Arguments... arguments) const
    {
        if (handler)
            handler(arguments...);
        for (const Procedure &procedure : others)
            procedure(arguments...);
    }

private:
    Procedure handler;
    std::vector<Procedure> others;
};

} // namespace tressel
