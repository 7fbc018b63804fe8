// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/posix/SystemError.h"

#include <cerrno>

namespace tressel {

FailureNumber NumberOfError(int error)
{
    switch (error) {
    case ENOENT:
    case ENOTDIR:
        return FailureNumber::PathNotFound;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return FailureNumber::DiskFull;
    case EIO:
        return FailureNumber::DeviceIoError;
    case EINVAL:
        return FailureNumber::InvalidProcedureCall;
    case EBADF:
        return FailureNumber::BadFileName;
    case EOVERFLOW:
        return FailureNumber::Overflow;
    case ENOMEM:
        return FailureNumber::OutOfMemory;
    case EWOULDBLOCK:
        return FailureNumber::PermissionDenied;
    case ENXIO:
    case ENODEV:
    case ENOMEDIUM:
        return FailureNumber::DiskNotReady;
    default:
        return FailureNumber::PathFileAccessError;
    }
}

} // namespace tressel
