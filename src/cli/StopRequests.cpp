// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "StopRequests.h"

#include <csignal>
#include <initializer_list>

namespace tressel {

namespace {

volatile std::sig_atomic_t noted = 0;

void Note(int signal)
{
    noted = signal;
}

bool IsIgnored(int signal)
{
    struct sigaction present = {};
    return sigaction(signal, nullptr, &present) == 0 && present.sa_handler == SIG_IGN;
}

} // namespace

void StopSignals::TakeOver()
{
    // Without SA_RESTART: who waits for a pipe is to hear of it.
    struct sigaction action = {};
    action.sa_handler = Note;
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        if (!IsIgnored(signal))
            sigaction(signal, &action, nullptr);
    }
    action.sa_handler = SIG_IGN;
    for (const int signal : {SIGPIPE, SIGXFSZ})
        sigaction(signal, &action, nullptr);
}

int StopSignals::Noted()
{
    return noted;
}

} // namespace tressel
