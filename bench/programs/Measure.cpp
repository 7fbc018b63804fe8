// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// Runs a command and then writes to descriptor 3 the seconds that it took on the clock and of the
// processor, and the kilobytes of memory that it had at the most: tressel-measure COMMAND...
// The status is the command's. What starts the command must be small: the system counts the memory of
// who starts a process as its own.

#include <chrono>
#include <cstdio>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

double Seconds(const timeval &time)
{
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

} // namespace

int main(int count, char **arguments)
{
    if (count < 2)
        return 2;
    const auto start = std::chrono::steady_clock::now();
    const pid_t child = fork();
    if (child == 0) {
        close(3);
        execvp(arguments[1], arguments + 1);
        _exit(127);
    }
    int status = 0;
    rusage usage = {};
    if (child < 0 || wait4(child, &status, 0, &usage) != child)
        return 1;
    const std::chrono::duration<double> wall = std::chrono::steady_clock::now() - start;
    dprintf(3, "%.6f %.6f %ld\n", wall.count(), Seconds(usage.ru_utime) + Seconds(usage.ru_stime),
            usage.ru_maxrss);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 1;
}
