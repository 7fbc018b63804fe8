// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "support/AsNobody.h"

#include <grp.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tressel {

namespace {

constexpr uid_t nobody = 65534;

[[noreturn]] void RunInChild(const std::function<bool()> &check)
{
    bool holds = false;
    try {
        const bool isNobody = setgroups(0, nullptr) == 0 && setgid(nobody) == 0 && setuid(nobody) == 0;
        holds = isNobody && check();
    } catch (...) {
        holds = false;
    }
    _exit(holds ? 0 : 1);
}

} // namespace

bool IsRoot()
{
    return geteuid() == 0;
}

bool HoldsAsNobody(const std::function<bool()> &check)
{
    const pid_t child = fork();
    if (child == 0)
        RunInChild(check);
    int status = 0;
    return child > 0 && waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

} // namespace tressel
