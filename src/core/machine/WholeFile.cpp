// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/WholeFile.h"

#include "machine/FileSystem.h"

namespace tressel {

void ReplaceContents(FileSystem &files, const QString &path, const QByteArray &bytes)
{
    const auto file = files.Replace(path, IfThere::Replace);
    file->Write(bytes);
    file->Commit();
}

} // namespace tressel
