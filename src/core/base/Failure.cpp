// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT
#include "base/Failure.h"

#include <utility>

namespace tressel {

using namespace Qt::StringLiterals;

QString DescriptionOf(FailureNumber number)
{
    switch (number) {
    case FailureNumber::InvalidProcedureCall:
        return u"Invalid procedure call or argument"_s;
    case FailureNumber::Overflow:
        return u"Overflow"_s;
    case FailureNumber::OutOfMemory:
        return u"Out of memory"_s;
    case FailureNumber::SubscriptOutOfRange:
        return u"Subscript out of range"_s;
    case FailureNumber::DivisionByZero:
        return u"Division by zero"_s;
    case FailureNumber::TypeMismatch:
        return u"Type mismatch"_s;
    case FailureNumber::BadFileName:
        return u"Bad file name or number"_s;
    case FailureNumber::FileNotFound:
        return u"File not found"_s;
    case FailureNumber::FileAlreadyOpen:
        return u"File already open"_s;
    case FailureNumber::DeviceIoError:
        return u"Device I/O error"_s;
    case FailureNumber::FileAlreadyExists:
        return u"File already exists"_s;
    case FailureNumber::DiskFull:
        return u"Disk full"_s;
    case FailureNumber::PermissionDenied:
        return u"Permission denied"_s;
    case FailureNumber::DiskNotReady:
        return u"Disk not ready"_s;
    case FailureNumber::PathFileAccessError:
        return u"Path/File access error"_s;
    case FailureNumber::PathNotFound:
        return u"Path not found"_s;
    case FailureNumber::InvalidPropertyValue:
        return u"Invalid property value"_s;
    }
    return u"Application-defined or object-defined error"_s;
}

Failure::Failure(FailureNumber failureNumber)
    : Failure(failureNumber, DescriptionOf(failureNumber))
{
}

Failure::Failure(FailureNumber failureNumber, QString failureDescription)
    : number(failureNumber)
    , description(std::move(failureDescription))
{
}

} // namespace tressel
