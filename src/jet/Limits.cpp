// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "Limits.h"

#include <csignal>
#include <initializer_list>
#include <seccomp.h>
#include <sys/prctl.h>
#include <sys/resource.h>

namespace tressel::jet {

namespace {

constexpr rlim_t mostMemory = 512U << 20U;
constexpr rlim_t mostSeconds = 60;
constexpr rlim_t mostFiles = 16;

// A build with a sanitizer maps terabytes, and makes system calls of its own at any time.
#if defined(__SANITIZE_ADDRESS__)
constexpr bool isSanitized = true;
#else
constexpr bool isSanitized = false;
#endif

void Limit(__rlimit_resource what, rlim_t most)
{
    const rlimit limit{most, most};
    setrlimit(what, &limit);
}

} // namespace

void SetLimits()
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (!isSanitized)
        Limit(RLIMIT_AS, mostMemory);
    Limit(RLIMIT_CPU, mostSeconds);
    Limit(RLIMIT_NOFILE, mostFiles);
    Limit(RLIMIT_FSIZE, 0);
    Limit(RLIMIT_CORE, 0);
}

void ForbidSystemCalls()
{
    if (isSanitized)
        return;
    const scmp_filter_ctx filter = seccomp_init(SCMP_ACT_KILL_PROCESS);
    if (filter == nullptr)
        return;
    // What reading an open file, memory and the end of a process take.
    for (const int call :
         {SCMP_SYS(read),         SCMP_SYS(pread64),   SCMP_SYS(readv),        SCMP_SYS(lseek),
          SCMP_SYS(_llseek),      SCMP_SYS(fstat),     SCMP_SYS(fstat64),      SCMP_SYS(newfstatat),
          SCMP_SYS(write),        SCMP_SYS(close),     SCMP_SYS(brk),          SCMP_SYS(mmap),
          SCMP_SYS(mmap2),        SCMP_SYS(munmap),    SCMP_SYS(mremap),       SCMP_SYS(madvise),
          SCMP_SYS(futex),        SCMP_SYS(getrandom), SCMP_SYS(rt_sigreturn), SCMP_SYS(rt_sigprocmask),
          SCMP_SYS(rt_sigaction), SCMP_SYS(exit),      SCMP_SYS(exit_group)}) {
        // A call that this processor doesn't have can't be made either.
        seccomp_rule_add(filter, SCMP_ACT_ALLOW, call, 0);
    }
    seccomp_load(filter);
    seccomp_release(filter);
}

} // namespace tressel::jet
