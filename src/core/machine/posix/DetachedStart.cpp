// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/posix/DetachedStart.h"

#include "machine/posix/Descriptor.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace tressel {

namespace {

bool IsExecutable(const QByteArray &path)
{
    struct stat status = {};
    return stat(path.constData(), &status) == 0 && S_ISREG(status.st_mode)
        && access(path.constData(), X_OK) == 0;
}

/// What the grandchild does. Only calls that are safe between fork and exec.
[[noreturn]] void Become(char *const *arguments, int report)
{
    const int nowhere = open("/dev/null", O_RDWR | O_CLOEXEC);
    if (nowhere >= 0)
        dup2(nowhere, STDIN_FILENO);
    sigset_t none{};
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
    execv(arguments[0], arguments);
    const int error = errno;
    // Nobody is left to be told if this fails too.
    if (write(report, &error, sizeof error) < 0)
        _exit(126);
    _exit(127);
}

} // namespace

QByteArray FindCommand(const QByteArray &name)
{
    for (const QByteArray &folder : qgetenv("PATH").split(':')) {
        // A folder that isn't told in full would mean whatever folder the program stands in.
        const QByteArray path = folder + '/' + name;
        if (folder.startsWith('/') && IsExecutable(path))
            return path;
    }
    return {};
}

bool StartDetached(const QByteArrayList &arguments)
{
    // All that needs memory is done before the fork.
    std::vector<char *> words;
    for (const QByteArray &argument : arguments)
        words.push_back(const_cast<char *>(argument.constData()));
    words.push_back(nullptr);
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0)
        return false;
    const Descriptor report(ends[0]);
    Descriptor reporting(ends[1]);
    const pid_t child = fork();
    if (child == 0) {
        // The grandchild belongs to nobody here, so nobody has to wait for its end.
        setsid();
        const pid_t grandchild = fork();
        if (grandchild == 0)
            Become(words.data(), reporting.Number());
        _exit(grandchild > 0 ? 0 : 1);
    }
    reporting = Descriptor();
    int status = 0;
    if (child < 0 || waitpid(child, &status, 0) != child || !WIFEXITED(status) || WEXITSTATUS(status) != 0)
        return false;
    // The end of the pipe closes when the other program has begun.
    int error = 0;
    ssize_t got = 0;
    do
        got = read(report.Number(), &error, sizeof error);
    while (got < 0 && errno == EINTR);
    return got == 0;
}

} // namespace tressel
