// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/SystemFacts.h"

#include <QByteArray>
#include <QHash>

namespace tressel {

/// Facts from the system's release file, its kernel and its list of users: ProductName is the name of the
/// distribution, CurrentVersion its version, CurrentBuildNumber and CSDVersion the kernel's release and
/// version, RegisteredOwner the user's full name, or the login name where none is given.
class PosixSystemFacts : public SystemFacts {
public:
    PosixSystemFacts();
    /// The same for a release file of these contents and a user with this line of facts, of which the part
    /// before the first comma is the full name.
    PosixSystemFacts(const QByteArray &release, const QByteArray &userFacts, const QByteArray &login);
    std::optional<QString> Fact(const QString &name) const override;

private:
    void Put(const QString &name, const QByteArray &value);

    QHash<QString, QString> facts; ///< by the name in lower case
};

/// The value of a variable in a file of shell assignments, such as /etc/os-release, without its quotes.
QByteArray AssignedValue(const QByteArray &text, const QByteArray &variable);

} // namespace tressel
