// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

#include <sys/types.h>

namespace tressel {

/// Whether the file system on a device is mounted so that what is written to a file goes through its journal
/// first, by a table in the form of /proc/self/mountinfo.
bool IsMountedWithDataJournal(const QByteArray &mountInfo, dev_t device);

/// The same of the file system that an open file is on, or of that one file.
bool HasDataInJournal(int file);

} // namespace tressel
