// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/EndSignals.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace tressel {

namespace {

constexpr std::array endSignals{SIGTERM, SIGINT, SIGHUP};

// A signal may come at any moment, when next to nothing may be called: it leaves a byte for the event loop.
int readEnd = -1;
int writeEnd = -1;

void LeaveByte(int)
{
    const int kept = errno;
    [[maybe_unused]] const ssize_t written = write(writeEnd, "", 1);
    errno = kept;
}

void Handle(void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    for (const int number : endSignals)
        sigaction(number, &action, nullptr);
}

} // namespace

EndSignals::EndSignals(std::function<void()> asked)
{
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    readEnd = ends[0];
    writeEnd = ends[1];
    notifier = std::make_unique<QSocketNotifier>(readEnd, QSocketNotifier::Read);
    QObject::connect(notifier.get(), &QSocketNotifier::activated, [passOn = std::move(asked)] {
        std::array<char, 16> bytes{};
        while (read(readEnd, bytes.data(), bytes.size()) > 0) { }
        passOn();
    });
    Handle(LeaveByte);
}

EndSignals::~EndSignals()
{
    if (!notifier)
        return;
    Handle(SIG_DFL);
    notifier.reset();
    close(std::exchange(readEnd, -1));
    close(std::exchange(writeEnd, -1));
}

} // namespace tressel
