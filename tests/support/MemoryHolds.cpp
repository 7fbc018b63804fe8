// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// The folders of the memory file system that are held.

#include "support/MemoryFileSystem.h"

#include <algorithm>

namespace tressel {

using namespace Qt::StringLiterals;

class MemoryFileSystem::OneHold : public FolderHold {
public:
    OneHold(std::list<Held> &all, std::list<Held>::iterator mine)
        : all(all)
        , mine(mine)
    {
    }
    ~OneHold() override
    {
        if (--mine->holds == 0)
            all.erase(mine);
    }
    OneHold(const OneHold &) = delete;
    OneHold &operator=(const OneHold &) = delete;

private:
    std::list<Held> &all;
    std::list<Held>::iterator mine;
};

QStringList MemoryFileSystem::FoldedNames(const QString &path)
{
    const bool hasDrive = path.size() >= 2 && path.at(1) == u':';
    return ((hasDrive ? QString() : u"C:\\"_s) + path).toCaseFolded().split(u'\\', Qt::SkipEmptyParts);
}

std::unique_ptr<FolderHold> MemoryFileSystem::Hold(const QString &folder)
{
    if (folder.isEmpty())
        return std::make_unique<FolderHold>();
    const QStringList names = FoldedNames(folder);
    auto held = std::ranges::find(holds, names, &Held::names);
    if (held == holds.end())
        held = holds.insert(holds.end(), Held{names});
    ++held->holds;
    return std::make_unique<OneHold>(holds, held);
}

MemoryFileSystem::Held *MemoryFileSystem::HeldAbove(const QString &path)
{
    const QStringList names = FoldedNames(path);
    Held *innermost = nullptr;
    for (Held &held : holds) {
        const qsizetype depth = held.names.size();
        if (names.size() > depth && names.first(depth) == held.names
            && (!innermost || depth > innermost->names.size()))
            innermost = &held;
    }
    return innermost;
}

void MemoryFileSystem::Forget(const QString &path)
{
    const QStringList names = FoldedNames(path);
    for (Held &held : holds) {
        if (held.names.size() >= names.size() && held.names.first(names.size()) == names)
            held.folder.reset();
    }
}

MemoryFileSystem::Place MemoryFileSystem::FindBeneath(Held &held, const QString &path)
{
    // Spelled as in the path, but for the drive that a path may leave out.
    QStringList names = path.split(u'\\', Qt::SkipEmptyParts);
    names = names.last(FoldedNames(path).size() - held.names.size());
    if (names.contains(u".."_s))
        throw Failure(FailureNumber::PathFileAccessError);
    if (!held.folder)
        held.folder = Find(held.names.join(u'\\') + u'\\', Links::Follow, 1).node;
    Place place{{}, {}, held.folder};
    for (const QString &name : names) {
        if (place.node && place.node->kind == EntryKind::Link)
            throw Failure(FailureNumber::PathFileAccessError);
        if (!place.node || place.node->kind != EntryKind::Folder)
            throw Failure(FailureNumber::PathNotFound);
        RefuseLongName(name);
        const auto child = place.node->children.find(name.toCaseFolded());
        place = {place.node, name, child == place.node->children.end() ? Node() : child->second};
    }
    return place;
}

MemoryFileSystem::Place MemoryFileSystem::FindToLookAt(const QString &path, Links links)
{
    Place place = Find(path, links);
    if (links == Links::Keep || !place.node || place.node->kind != EntryKind::Link)
        return place;
    const bool isWhole = place.node->target.contains(u':');
    return Find(isWhole ? place.node->target : FoldedPath(*place.parent) + u'\\' + place.node->target,
                Links::Follow, 1);
}

} // namespace tressel
