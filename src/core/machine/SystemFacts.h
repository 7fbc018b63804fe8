// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <optional>

namespace tressel {

/// Facts about the system and its owner, under the names that the machine-wide key knows:
/// RegisteredOwner, RegisteredOrganization, ProductName, CurrentVersion, CurrentBuildNumber, CSDVersion.
class SystemFacts {
public:
    virtual ~SystemFacts() = default;
    /// Nothing for a name that this system has no fact for.
    virtual std::optional<QString> Fact(const QString &name) const = 0;
};

} // namespace tressel
