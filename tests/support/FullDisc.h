// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <csignal>
#include <sys/resource.h>

namespace tressel {

/// A limit on the length of files stands for a full disc. It would end the process if the signal weren't
/// ignored.
class FullDisc {
public:
    /// `largest`: the bytes that a file may have.
    explicit FullDisc(rlim_t largest)
        : handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &before);
        const rlimit small{largest, before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
    }
    ~FullDisc()
    {
        setrlimit(RLIMIT_FSIZE, &before);
        std::signal(SIGXFSZ, handler);
    }
    FullDisc(const FullDisc &) = delete;
    FullDisc &operator=(const FullDisc &) = delete;

private:
    rlimit before{};
    void (*handler)(int);
};

} // namespace tressel
