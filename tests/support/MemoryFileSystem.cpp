// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "support/MemoryFileSystem.h"

#include "support/MemoryOpenFile.h"
#include "support/MemoryReplacingFile.h"

#include <algorithm>
#include <utility>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestName = 255;
constexpr int mostLinks = 40;

bool HasDrive(const QString &path)
{
    return path.size() >= 2 && path.at(1) == u':' && path.at(0).isLetter();
}

/// Throws for a path that no file of this system can have.
void RefuseImpossible(const QString &path)
{
    if (path.isEmpty())
        throw Failure(FailureNumber::BadFileName);
    static const QString refused = u"/:*?\"<>|"_s;
    for (const QChar character : QStringView(path).sliced(HasDrive(path) ? 2 : 0)) {
        if (character < u' ' || refused.contains(character))
            throw Failure(FailureNumber::InvalidProcedureCall);
    }
}

FolderEntry EntryOf(const MemoryNode &node, Lengths lengths)
{
    return {node.name, node.kind, node.hidden, lengths == Lengths::Wanted ? node.bytes.size() : 0};
}

/// Entries in the order in which they were made; what has gone meanwhile stays out.
class MemoryFolderReader : public FolderReader {
public:
    MemoryFolderReader(const MemoryNode &folder, Lengths lengths)
        : lengths(lengths)
    {
        for (const auto &[key, node] : folder.children)
            nodes.append(node);
        std::sort(nodes.begin(), nodes.end(),
                  [](const auto &one, const auto &other) { return one->born < other->born; });
    }
    std::optional<FolderEntry> Next() override
    {
        while (!nodes.isEmpty()) {
            const std::shared_ptr<MemoryNode> node = nodes.takeFirst();
            if (node->parent)
                return EntryOf(*node, lengths);
        }
        return {};
    }

private:
    Lengths lengths;
    QList<std::shared_ptr<MemoryNode>> nodes;
};

} // namespace

MemoryFileSystem::MemoryFileSystem(Journal &theJournal, const Clock &theClock)
    : journal(theJournal)
    , clock(theClock)
{
    AddDrive(u'C');
}

void MemoryFileSystem::RefuseLongName(const QString &name)
{
    if (name.size() > longestName)
        throw Failure(FailureNumber::PathFileAccessError);
}

void MemoryFileSystem::Obey(Operation operation, const Place &place)
{
    orders.Obey(operation,
                place.parent ? FoldedPath(*place.parent) + u'\\' + place.name.toCaseFolded()
                             : FoldedPath(*place.node));
}

MemoryDrive &MemoryFileSystem::DriveFor(const QString &path)
{
    const auto drive = drives.find(HasDrive(path) ? path.at(0).toUpper() : QChar(u'C'));
    if (drive == drives.end())
        throw Failure(FailureNumber::PathNotFound);
    if (!drive->second.ready)
        throw Failure(FailureNumber::DiskNotReady);
    return drive->second;
}

MemoryFileSystem::Place MemoryFileSystem::Find(const QString &path, Links links, int depth)
{
    RefuseImpossible(path);
    if (depth > mostLinks)
        throw Failure(FailureNumber::PathNotFound);
    if (Held *const held = depth == 0 ? HeldAbove(path) : nullptr)
        return FindBeneath(*held, path);
    Place place{{}, {}, DriveFor(path).root};
    const QStringList names = path.mid(HasDrive(path) ? 2 : 0).split(u'\\', Qt::SkipEmptyParts);
    for (qsizetype index = 0; index < names.size(); ++index) {
        const QString &name = names.at(index);
        RefuseLongName(name);
        if (!place.node || place.node->kind != EntryKind::Folder)
            throw Failure(FailureNumber::PathNotFound);
        if (name == u"."_s)
            continue;
        if (name == u".."_s) {
            const MemoryNode &above = place.node->parent ? *place.node->parent : *place.node;
            place = Find(FoldedPath(above), Links::Keep, depth + 1);
            continue;
        }
        const auto child = place.node->children.find(name.toCaseFolded());
        const Node node = child == place.node->children.end() ? Node() : child->second;
        const QString folder = FoldedPath(*place.node);
        place = {place.node, name, node};
        const bool isLast = index + 1 == names.size();
        if (node && node->kind == EntryKind::Link && (!isLast || links == Links::Follow))
            place = Find(HasDrive(node->target) ? node->target : folder + u'\\' + node->target, Links::Follow,
                         depth + 1);
    }
    return place;
}

MemoryFileSystem::Node MemoryFileSystem::FindFolder(const QString &path)
{
    const Node node = Find(path, Links::Follow).node;
    if (!node || node->kind != EntryKind::Folder)
        throw Failure(FailureNumber::PathNotFound);
    return node;
}

MemoryFileSystem::Node MemoryFileSystem::FindFile(const QString &path)
{
    const Node node = Find(path, Links::Keep).node;
    if (!node)
        throw Failure(FailureNumber::FileNotFound);
    return node;
}

MemoryFileSystem::Node MemoryFileSystem::Add(const Place &place, EntryKind kind)
{
    const Node node = std::make_shared<MemoryNode>();
    node->name = place.name;
    node->kind = kind;
    node->parent = place.parent.get();
    node->born = ++births;
    node->modified = clock.Now();
    place.parent->children.emplace(place.name.toCaseFolded(), node);
    place.parent->modified = clock.Now();
    return node;
}

void MemoryFileSystem::Remove(const Node &node)
{
    TakeRoom(*node, -node->bytes.size());
    MemoryNode *const parent = std::exchange(node->parent, nullptr);
    parent->modified = clock.Now();
    parent->children.erase(node->name.toCaseFolded());
}

qint64 MemoryFileSystem::TakeRoom(const MemoryNode &node, qint64 bytes)
{
    const MemoryNode *root = &node;
    while (root->parent)
        root = root->parent;
    for (auto &[letter, drive] : drives) {
        if (drive.root.get() == root) {
            const qint64 taken = std::min(bytes, std::max<qint64>(drive.freeSpace, 0));
            drive.freeSpace -= taken;
            return taken;
        }
    }
    // A file that was removed while it was open.
    return bytes;
}

std::optional<FileStatus> MemoryFileSystem::Status(const QString &path, Links links)
{
    try {
        return Ask(Operation::Status, path, {}, [&] {
            const Place place = FindToLookAt(path, links);
            if (!place.node)
                throw Failure(FailureNumber::FileNotFound);
            Obey(Operation::Status, place);
            const MemoryNode &node = *place.node;
            return FileStatus{node.kind,   node.bytes.size(), node.readOnly,
                              node.hidden, node.modified,     FoldedPath(node).at(0).unicode(),
                              node.names};
        });
    } catch (const Failure &) {
        return {};
    }
}

QList<FolderEntry> MemoryFileSystem::List(const QString &folder, Lengths lengths)
{
    return Ask(Operation::List, folder, {}, [&] {
        const Node node = FindFolder(folder);
        orders.Obey(Operation::List, FoldedPath(*node));
        QList<FolderEntry> entries;
        for (const auto &[key, child] : node->children)
            entries += EntryOf(*child, lengths);
        return entries;
    });
}

std::unique_ptr<FolderReader> MemoryFileSystem::Read(const QString &folder, Lengths lengths)
{
    return Ask(Operation::ReadFolder, folder, {}, [&]() -> std::unique_ptr<FolderReader> {
        const Node node = FindFolder(folder);
        orders.Obey(Operation::ReadFolder, FoldedPath(*node));
        return std::make_unique<MemoryFolderReader>(*node, lengths);
    });
}

void MemoryFileSystem::FlushFolder(const QString &folder)
{
    Ask(Operation::FlushFolder, folder, {},
        [&] { orders.Obey(Operation::FlushFolder, FoldedPath(*FindFolder(folder))); });
}

std::optional<Failure> MemoryFileSystem::TryMakeFolder(const QString &path)
{
    try {
        Ask(Operation::MakeFolder, path, {}, [&] {
            const Place place = Find(path, Links::Keep);
            if (place.node)
                throw Failure(FailureNumber::PathFileAccessError);
            Obey(Operation::MakeFolder, place);
            Add(place, EntryKind::Folder);
            Forget(path);
        });
    } catch (const Failure &failure) {
        return failure;
    }
    return {};
}

std::optional<Failure> MemoryFileSystem::TryRemoveFolder(const QString &path)
{
    try {
        Ask(Operation::RemoveFolder, path, {}, [&] {
            const Place place = Find(path, Links::Keep);
            if (!place.node)
                throw Failure(FailureNumber::PathNotFound);
            if (!place.parent || place.node->kind != EntryKind::Folder || !place.node->children.empty())
                throw Failure(FailureNumber::PathFileAccessError);
            Obey(Operation::RemoveFolder, place);
            Remove(place.node);
            Forget(path);
        });
    } catch (const Failure &failure) {
        return failure;
    }
    return {};
}

void MemoryFileSystem::RemoveFile(const QString &path)
{
    Ask(Operation::RemoveFile, path, {}, [&] {
        const Node node = FindFile(path);
        if (node->kind == EntryKind::Folder || node->readOnly)
            throw Failure(FailureNumber::PathFileAccessError);
        if (node->heldExclusively)
            throw Failure(FailureNumber::PermissionDenied);
        orders.Obey(Operation::RemoveFile, FoldedPath(*node));
        Remove(node);
    });
}

void MemoryFileSystem::Rename(const QString &from, const QString &to)
{
    Ask(Operation::Rename, from, to, [&] {
        const Node node = FindFile(from);
        RefuseImpossible(to);
        if (to.endsWith(u'\\'))
            throw Failure(FailureNumber::BadFileName);
        const Place target = Find(to, Links::Keep);
        if (!node->parent || !target.parent)
            throw Failure(FailureNumber::PathFileAccessError);
        const bool isCaseOnly = target.node == node && target.name != node->name;
        if (target.node && !isCaseOnly)
            throw Failure(FailureNumber::FileAlreadyExists);
        for (const MemoryNode *above = target.parent.get(); above; above = above->parent) {
            if (above == node.get())
                throw Failure(FailureNumber::InvalidProcedureCall);
        }
        if (&DriveFor(from) != &DriveFor(to))
            throw Failure(FailureNumber::PathFileAccessError);
        orders.Obey(Operation::Rename, FoldedPath(*node));
        node->parent->children.erase(node->name.toCaseFolded());
        node->name = target.name;
        node->parent = target.parent.get();
        target.parent->children.emplace(target.name.toCaseFolded(), node);
        Forget(from);
        Forget(to);
    });
}

std::unique_ptr<OpenFile> MemoryFileSystem::Open(const QString &path, OpenFor purpose, Sharing sharing)
{
    static const QStringList purposes{u"Reading"_s,   u"Streaming"_s, u"Writing"_s,
                                      u"Appending"_s, u"Changing"_s,  u"Creating"_s};
    const QString detail = purposes.at(static_cast<int>(purpose))
        + (sharing == Sharing::Exclusive ? u" exclusively"_s : QString());
    const bool reads = purpose == OpenFor::Reading || purpose == OpenFor::Streaming;
    const Operation operation = reads ? Operation::OpenForReading : Operation::OpenForWriting;
    return Ask(operation, path, detail, [&]() -> std::unique_ptr<OpenFile> {
        const bool keepsLinks = purpose == OpenFor::Creating || purpose == OpenFor::Changing;
        Place place = Find(path, keepsLinks ? Links::Keep : Links::Follow);
        if (place.node && purpose == OpenFor::Creating)
            throw Failure(FailureNumber::FileAlreadyExists);
        const bool isStream =
            place.node && place.node->kind == EntryKind::Other && purpose == OpenFor::Streaming;
        if (place.node && place.node->kind != EntryKind::File && !isStream)
            throw Failure(FailureNumber::PathFileAccessError);
        if (!place.node && (reads || purpose == OpenFor::Changing))
            throw Failure(FailureNumber::FileNotFound);
        if (place.node && place.node->readOnly && !reads)
            throw Failure(FailureNumber::PathFileAccessError);
        if (place.node && place.node->heldExclusively && sharing == Sharing::Exclusive)
            throw Failure(FailureNumber::PermissionDenied);
        Obey(operation, place);
        if (!place.node)
            place.node = Add(place, EntryKind::File);
        return std::make_unique<MemoryOpenFile>(*this, place.node, path, purpose, sharing);
    });
}

std::unique_ptr<ReplacingFile> MemoryFileSystem::Replace(const QString &path, IfThere ifThere)
{
    return Ask(Operation::Replace, path, {}, [&]() -> std::unique_ptr<ReplacingFile> {
        if (ifThere == IfThere::Refuse && Find(path, Links::Keep).node)
            throw Failure(FailureNumber::FileAlreadyExists);
        const Place place = Find(path, Links::Follow);
        if (place.node && (place.node->kind != EntryKind::File || place.node->readOnly))
            throw Failure(FailureNumber::PathFileAccessError);
        Obey(Operation::Replace, place);
        return std::make_unique<MemoryReplacingFile>(*this, path, ifThere);
    });
}

QString MemoryFileSystem::LinkTarget(const QString &path)
{
    return Ask(Operation::LinkTarget, path, {}, [&] {
        const Node node = FindFile(path);
        if (node->kind != EntryKind::Link)
            throw Failure(FailureNumber::PathFileAccessError);
        orders.Obey(Operation::LinkTarget, FoldedPath(*node));
        return node->target;
    });
}

void MemoryFileSystem::MakeLink(const QString &path, const QString &target)
{
    Ask(Operation::MakeLink, path, target, [&] {
        const Place place = Find(path, Links::Keep);
        if (place.node)
            throw Failure(FailureNumber::FileAlreadyExists);
        Obey(Operation::MakeLink, place);
        Add(place, EntryKind::Link)->target = target;
    });
}

void MemoryFileSystem::SetReadOnly(const QString &path, bool readOnly)
{
    Ask(Operation::SetReadOnly, path, readOnly ? u"on"_s : u"off"_s, [&] {
        const Node node = FindFile(path);
        orders.Obey(Operation::SetReadOnly, FoldedPath(*node));
        if (node->kind != EntryKind::Link)
            node->readOnly = readOnly;
    });
}

QList<Volume> MemoryFileSystem::Volumes()
{
    QList<Volume> volumes;
    for (const auto &[letter, drive] : drives) {
        if (drive.ready)
            volumes.insert(letter == u'C' ? 0 : volumes.size(),
                           Volume{drive.root->name + u'\\', drive.label, letter == u'A'});
    }
    return volumes;
}

QString MemoryFileSystem::VolumeLabel(const QString &path)
{
    return Ask(Operation::VolumeLabel, path, {}, [&] {
        const bool isThere = !HasDrive(path) || drives.contains(path.at(0).toUpper());
        if (!isThere)
            throw Failure(FailureNumber::DiskNotReady);
        const MemoryDrive &drive = DriveFor(path);
        orders.Obey(Operation::VolumeLabel, FoldedPath(*drive.root));
        return drive.label;
    });
}

qint64 MemoryFileSystem::FreeSpace(const QString &path)
{
    return Ask(Operation::FreeSpace, path, {}, [&] {
        const MemoryDrive &drive = DriveFor(path);
        orders.Obey(Operation::FreeSpace, FoldedPath(*drive.root));
        return drive.freeSpace;
    });
}

} // namespace tressel
