// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/database/DatabaseFileDialog.h"

namespace tressel {

using namespace Qt::StringLiterals;

FileDialogRequest DatabaseFileRequest(const QString &title, const QString &folder)
{
    FileDialogRequest request;
    request.title = title;
    request.folder = folder;
    request.filter = u"All Files (*.*)|*.*|MDB Files (*.mdb)|*.mdb|"_s;
    request.filterIndex = 2;
    request.defaultExtension = u".mdb"_s;
    request.fileName = u"*.mdb"_s;
    request.mayBeMissing = true;
    return request;
}

} // namespace tressel
