// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

namespace tressel {

struct FileDialogRequest;

/// The filters of a file dialog in the toolkit's form, "Label (*.a *.b)": the label as it stands and
/// behind it the patterns. "*.*" means every file here too.
QStringList NameFilters(const QString &filter);

/// Which filter is on at first, counted from 0; -1 if there are none. A file name with a wildcard shows
/// files by that pattern alone, so its filter is the one if there is such a one; else the one asked for.
int FirstFilter(const FileDialogRequest &request);

/// True for a file name that is a pattern.
bool IsPattern(const QString &fileName);

} // namespace tressel
