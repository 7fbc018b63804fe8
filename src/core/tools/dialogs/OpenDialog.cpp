// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/dialogs/OpenDialog.h"

#include "base/Failure.h"
#include "machine/Dialogs.h"
#include "machine/FileSystem.h"
#include "machine/Paths.h"

namespace tressel {

namespace {

constexpr qsizetype mostNames = 200;

// Long names, links not followed, several files, no box for write protection.
constexpr std::int32_t openFlags = 0x382204;

} // namespace

const QString &OpenFileResult::Files(std::int32_t number) const
{
    if (number < 1 || number > Count)
        throw Failure(FailureNumber::SubscriptOutOfRange);
    return names.at(number - 1);
}

OpenFileResult ShowOpenDialog(Dialogs &dialogs, const FileSystem &files, OpenFileRequest &request,
                              bool CentreOnOwner)
{
    request.Flags = openFlags;
    FileDialogRequest asked;
    asked.folder = request.StartFolder;
    asked.filter = request.Filter;
    asked.several = true;
    asked.centreOnOwner = CentreOnOwner;
    const auto answer = dialogs.OpenFile(asked);

    OpenFileResult result;
    if (!answer || answer->paths.isEmpty()) {
        result.Cancelled = true;
        return result;
    }
    if (answer->paths.size() > mostNames)
        throw Failure(FailureNumber::SubscriptOutOfRange);
    const QString &first = answer->paths.constFirst();
    result.Path = first.left(first.lastIndexOf(files.Separator()) + 1);
    for (const QString &path : answer->paths)
        result.names += FileNameOf(files, path);
    result.Count = static_cast<std::int32_t>(result.names.size());
    return result;
}

} // namespace tressel
