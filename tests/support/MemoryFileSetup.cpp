// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "support/MemoryFileSystem.h"

namespace tressel {

void MemoryFileSystem::AddDrive(QChar letter, const QString &label, qint64 freeSpace)
{
    MemoryDrive &drive = drives[letter.toUpper()];
    if (!drive.root) {
        drive.root = std::make_shared<MemoryNode>();
        drive.root->name = QString(letter.toUpper()) + u':';
        drive.root->modified = clock.Now();
    }
    drive.label = label;
    drive.freeSpace = freeSpace;
}

void MemoryFileSystem::SetReady(QChar letter, bool ready)
{
    drives.at(letter.toUpper()).ready = ready;
}

void MemoryFileSystem::PutFolder(const QString &path)
{
    for (qsizetype end = path.indexOf(u'\\', 3); end >= 0; end = path.indexOf(u'\\', end + 1)) {
        const Place place = Find(path.left(end), Links::Follow);
        if (!place.node)
            Add(place, EntryKind::Folder);
    }
    const Place place = Find(path, Links::Follow);
    if (!place.node)
        Add(place, EntryKind::Folder);
    else if (place.node->kind != EntryKind::Folder)
        throw Failure(FailureNumber::PathFileAccessError);
}

void MemoryFileSystem::PutFile(const QString &path, const QByteArray &bytes)
{
    PutFolder(path.left(path.lastIndexOf(u'\\')));
    const Place place = Find(path, Links::Follow);
    const Node node = place.node ? place.node : Add(place, EntryKind::File);
    TakeRoom(*node, bytes.size() - node->bytes.size());
    node->bytes = bytes;
}

void MemoryFileSystem::PutPipe(const QString &path)
{
    PutFolder(path.left(path.lastIndexOf(u'\\')));
    Add(Find(path, Links::Keep), EntryKind::Other);
}

void MemoryFileSystem::PutLink(const QString &path, const QString &target)
{
    PutFolder(path.left(path.lastIndexOf(u'\\')));
    Add(Find(path, Links::Keep), EntryKind::Link)->target = target;
}

void MemoryFileSystem::PutLinkInPlaceOf(const QString &path, const QString &target)
{
    Remove(FindFile(path));
    PutLink(path, target);
}

void MemoryFileSystem::SetHidden(const QString &path, bool hidden)
{
    FindFile(path)->hidden = hidden;
}

void MemoryFileSystem::SetNames(const QString &path, quint64 names)
{
    FindFile(path)->names = names;
}

void MemoryFileSystem::SetPlace(const QString &path, quint64 place, bool movesOnWriting)
{
    const Node node = FindFile(path);
    node->extents = {{0, place, static_cast<quint64>(node->bytes.size())}};
    node->movesOnWriting = movesOnWriting;
}

void MemoryFileSystem::PutInJournal(const QString &path)
{
    FindFile(path)->isInJournal = true;
}

void MemoryFileSystem::SetModified(const QString &path, const QDateTime &modified)
{
    FindFile(path)->modified = modified;
}

void MemoryFileSystem::HoldByAnother(const QString &path, bool held)
{
    FindFile(path)->heldExclusively = held;
}

bool MemoryFileSystem::Exists(const QString &path)
{
    try {
        return Find(path, Links::Keep).node != nullptr;
    } catch (const Failure &) {
        return false;
    }
}

QByteArray MemoryFileSystem::Bytes(const QString &path)
{
    const Node node = Find(path, Links::Follow).node;
    if (!node || node->kind != EntryKind::File)
        throw Failure(FailureNumber::FileNotFound);
    return node->bytes;
}

QStringList MemoryFileSystem::Tree(const QString &folder)
{
    QStringList paths;
    const auto walk = [&paths](const auto &walkBelow, const MemoryNode &node, const QString &above) -> void {
        for (const auto &[key, child] : node.children) {
            const bool isFolder = child->kind == EntryKind::Folder;
            const QString path = above + child->name + (isFolder ? QStringLiteral("\\") : QString());
            paths += path;
            if (isFolder)
                walkBelow(walkBelow, *child, path);
        }
    };
    walk(walk, *FindFolder(folder), {});
    return paths;
}

void MemoryFileSystem::FailAt(Operation operation, const QString &path, int nth, FailureNumber number)
{
    orders.Order(operation, path, nth, number);
}

void MemoryFileSystem::DoBefore(Operation operation, const QString &path, int nth, std::function<void()> act)
{
    acts.Order(operation, path, nth, std::move(act));
}

} // namespace tressel
