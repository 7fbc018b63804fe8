// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "support/MemoryReplacingFile.h"

#include <algorithm>
#include <utility>

namespace tressel {

MemoryReplacingFile::MemoryReplacingFile(MemoryFileSystem &theFiles, QString thePath, IfThere whatIfThere)
    : files(theFiles)
    , path(std::move(thePath))
    , ifThere(whatIfThere)
{
}

MemoryReplacingFile::~MemoryReplacingFile()
{
    files.DriveFor(path).freeSpace += bytes.size();
}

void MemoryReplacingFile::Write(const QByteArray &more)
{
    files.Ask(Operation::WriteBytes, path, QString::number(more.size()), [&] {
        files.Obey(Operation::WriteBytes, files.Find(path, Links::Follow));
        MemoryDrive &drive = files.DriveFor(path);
        const QByteArray taken = more.first(std::min<qint64>(more.size(), drive.freeSpace));
        drive.freeSpace -= taken.size();
        bytes += taken;
        if (taken.size() < more.size())
            throw Failure(FailureNumber::DiskFull);
    });
}

void MemoryReplacingFile::Commit()
{
    files.Ask(Operation::CommitFile, path, QString::number(bytes.size()), [&] {
        MemoryFileSystem::Place place = files.Find(path, Links::Follow);
        if (place.node && ifThere == IfThere::Refuse)
            throw Failure(FailureNumber::FileAlreadyExists);
        files.Obey(Operation::CommitFile, place);
        if (!place.node)
            place.node = files.Add(place, EntryKind::File);
        files.TakeRoom(*place.node, -place.node->bytes.size());
        place.node->bytes = std::exchange(bytes, {});
        place.node->modified = files.clock.Now();
    });
}

} // namespace tressel
