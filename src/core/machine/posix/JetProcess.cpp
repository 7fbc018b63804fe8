// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/posix/JetProcess.h"

#include "machine/Events.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tressel {

namespace {

using namespace std::chrono_literals;

/// How long a window may stand still: most answers are there sooner.
constexpr auto shortestPause = 25ms;

struct Pipe {
    Descriptor reading;
    Descriptor writing;
};

/// The same open file under a number that is none of those which the started program shall have.
Descriptor OutOfTheWay(int descriptor)
{
    return Descriptor(fcntl(descriptor, F_DUPFD_CLOEXEC, jet::FileDescriptor + 1));
}

/// Both ends close when another program starts.
Pipe MakePipe()
{
    std::array<int, 2> ends{-1, -1};
    if (pipe2(ends.data(), O_CLOEXEC) != 0)
        return {};
    const Descriptor reading(ends[0]);
    const Descriptor writing(ends[1]);
    return {OutOfTheWay(reading.Number()), OutOfTheWay(writing.Number())};
}

/// Everything but the three standard streams and the file is closed in the program that starts.
class StartActions {
public:
    StartActions(int question, int answer, int file)
    {
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_adddup2(&actions, question, STDIN_FILENO);
        posix_spawn_file_actions_adddup2(&actions, answer, STDOUT_FILENO);
        posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
        posix_spawn_file_actions_adddup2(&actions, file, jet::FileDescriptor);
        posix_spawn_file_actions_addclosefrom_np(&actions, jet::FileDescriptor + 1);
    }
    ~StartActions() { posix_spawn_file_actions_destroy(&actions); }
    StartActions(const StartActions &) = delete;
    StartActions &operator=(const StartActions &) = delete;

    const posix_spawn_file_actions_t *Get() const { return &actions; }

private:
    posix_spawn_file_actions_t actions{};
};

/// A process starts without the signals that this one holds back.
class StartAttributes {
public:
    StartAttributes()
    {
        posix_spawnattr_init(&attributes);
        sigset_t none{};
        sigemptyset(&none);
        posix_spawnattr_setsigmask(&attributes, &none);
        sigset_t usual{};
        sigemptyset(&usual);
        sigaddset(&usual, SIGPIPE);
        posix_spawnattr_setsigdefault(&attributes, &usual);
        // A group of its own: Ctrl+C in a terminal is for the program that asked.
        posix_spawnattr_setpgroup(&attributes, 0);
        posix_spawnattr_setflags(&attributes,
                                 POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETPGROUP);
    }
    ~StartAttributes() { posix_spawnattr_destroy(&attributes); }
    StartAttributes(const StartAttributes &) = delete;
    StartAttributes &operator=(const StartAttributes &) = delete;

    const posix_spawnattr_t *Get() const { return &attributes; }

private:
    posix_spawnattr_t attributes{};
};

} // namespace

JetProcess::JetProcess(const QByteArray &program, const Descriptor &file, const std::string &question,
                       Events &eventLoop, std::chrono::milliseconds longest)
    : events(eventLoop)
    , patience(longest)
{
    Pipe asking = MakePipe();
    Pipe answering = MakePipe();
    const Descriptor database = OutOfTheWay(file.Number());
    if (!asking.writing.IsOpen() || !answering.writing.IsOpen() || !database.IsOpen())
        return;
    // Into the pipe before anybody listens: it is small, and nobody can go away meanwhile.
    if (fcntl(asking.writing.Number(), F_SETFL, O_NONBLOCK) != 0
        || write(asking.writing.Number(), question.data(), question.size())
            != static_cast<ssize_t>(question.size())) {
        return;
    }
    asking.writing = Descriptor();
    output = std::move(answering.reading);
    Start(program, asking.reading.Number(), answering.writing.Number(), database.Number());
    if (process < 0 || fcntl(output.Number(), F_SETFL, O_NONBLOCK) != 0)
        output = Descriptor();
}

JetProcess::~JetProcess()
{
    if (process < 0)
        return;
    kill(process, SIGKILL);
    while (waitpid(process, nullptr, 0) < 0 && errno == EINTR) { }
}

void JetProcess::Start(const QByteArray &program, int question, int answer, int file)
{
    const StartActions actions(question, answer, file);
    const StartAttributes attributes;
    const std::array<char *, 2> arguments{const_cast<char *>(program.constData()), nullptr};
    // Nothing of the environment, which could change how files are read.
    const std::array<char *, 1> environment{nullptr};
    pid_t started = -1;
    if (posix_spawn(&started, program.constData(), actions.Get(), attributes.Get(), arguments.data(),
                    environment.data())
        == 0) {
        process = started;
    }
}

std::optional<JetProcess::Frame> JetProcess::Next()
{
    auto frame = TakeFrame();
    if (frame)
        return frame;
    const Clock::time_point deadline = Clock::now() + patience;
    while (!frame && output.IsOpen()) {
        if (!Receive(deadline))
            output = Descriptor();
        frame = TakeFrame();
    }
    return frame;
}

std::optional<JetProcess::Frame> JetProcess::TakeFrame()
{
    const std::string_view rest = std::string_view(received).substr(taken);
    if (rest.size() < jet::FrameHeadLength)
        return {};
    const auto head = jet::ReadHead(rest);
    if (!head) {
        // No frame, and what follows can't be told apart any more.
        output = Descriptor();
        return {};
    }
    if (rest.size() - jet::FrameHeadLength < head->length)
        return {};
    taken += jet::FrameHeadLength + head->length;
    return Frame{head->kind, rest.substr(jet::FrameHeadLength, head->length)};
}

/// Takes what the process has written. False if nothing will come any more.
bool JetProcess::Receive(Clock::time_point deadline)
{
    received.erase(0, taken);
    taken = 0;
    std::array<char, 64 << 10> piece;
    while (true) {
        const ssize_t got = read(output.Number(), piece.data(), piece.size());
        if (got > 0) {
            received.append(piece.data(), static_cast<std::size_t>(got));
            return true;
        }
        if (got == 0 || (errno != EAGAIN && errno != EINTR) || !Wait(deadline))
            return false;
    }
}

/// Waits until there may be something to take, while the window keeps painting. False if that takes too long.
bool JetProcess::Wait(Clock::time_point deadline)
{
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now());
    if (left <= 0ms)
        return false;
    pollfd watched{output.Number(), POLLIN, 0};
    if (poll(&watched, 1, static_cast<int>(std::min(left, shortestPause).count())) == 0)
        events.KeepPainting();
    return true;
}

} // namespace tressel
