// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "CreateCommand.h"
#include "ReportCommand.h"
#include "SeriesCommand.h"

#include <QString>
#include <QStringList>

#include <variant>

namespace tressel {

/// A text that was asked for: help or the version.
struct ShowText {
    QString text;
};

/// A command line that can't be understood, and why.
struct UsageError {
    QString sentence;
};

using Command = std::variant<CreateRequest, SeriesRequest, ReportRequest, ShowText, UsageError>;

/// Understands the arguments behind the program's name. Relative paths are taken from `workingFolder`.
Command ParseArguments(const QStringList &arguments, const QString &workingFolder);

} // namespace tressel
