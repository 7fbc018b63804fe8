// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "FaultPlan.h"

#include <cstddef>
#include <dlfcn.h>
#include <unistd.h>

namespace tressel::faults {

/// What this program has to do with the plan; null if nothing.
extern FaultPlan *const plan;

/// The call behind ours, in the C library.
template <typename Call> Call *Next(Call * /*ours*/, const char *name)
{
    return reinterpret_cast<Call *>(dlsym(RTLD_NEXT, name));
}

/// A bare call to the system.
template <typename... Words> long Bare(long number, Words... words)
{
    // Found when it is first needed: other libraries may call before this one is set up.
    static const auto next = Next(&syscall, "syscall");
    return next(number, words...);
}

// Each counts a call and tells whether it is to fail, with errno set. Its path is in a folder, or that of an
// open file.

bool FailsAt(Kind kind, const char *call, int folder, const char *path);
bool FailsOn(Kind kind, const char *call, int file);
/// The bytes that a call which reads or writes is carried out for; nothing goes if it fails.
bool FailsOrShortens(Kind kind, const char *call, int file, std::size_t &length);

/// From here on the process can't ask any more where its open files lead.
void NotePaths();

} // namespace tressel::faults
