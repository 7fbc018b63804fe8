// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace tressel {

/// The numbers under which failures are told apart and shown to the user.
/// Rules that raise numbers of their own (above 512) cast them to this type.
enum class FailureNumber : int {
    InvalidProcedureCall = 5,
    Overflow = 6,
    OutOfMemory = 7,
    SubscriptOutOfRange = 9,
    DivisionByZero = 11,
    TypeMismatch = 13,
    BadFileName = 52,
    FileNotFound = 53,
    FileAlreadyOpen = 55,
    DeviceIoError = 57,
    FileAlreadyExists = 58,
    DiskFull = 61,
    PermissionDenied = 70,
    DiskNotReady = 71,
    PathFileAccessError = 75,
    PathNotFound = 76,
    InvalidPropertyValue = 380,
};

/// The text that goes with a number; "Application-defined or object-defined error" for one without its own.
QString DescriptionOf(FailureNumber number);

/// What a step throws when it can't do its work: the only exception type of the program.
struct Failure {
    FailureNumber number;
    QString description;

    /// A failure with the number's own description.
    explicit Failure(FailureNumber number);
    Failure(FailureNumber number, QString description);

    /// The number as it is shown to the user.
    int Number() const { return static_cast<int>(number); }
};

} // namespace tressel
