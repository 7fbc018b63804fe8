// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QByteArrayList>

namespace tressel {

/// The whole path of a command in the folders of $PATH; empty if there is none that can be run.
QByteArray FindCommand(const QByteArray &name);

/// Starts a program that lives on by itself, in a session of its own and without this one's open files,
/// and returns at once; no shell reads the arguments. The first is the program's whole path.
/// False if it can't be started.
bool StartDetached(const QByteArrayList &arguments);

} // namespace tressel
