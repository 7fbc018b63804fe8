// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/posix/HeldFolders.h"

#include "machine/posix/Retried.h"
#include "machine/posix/SystemError.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>

namespace tressel {

class HeldFolders::OneHold : public FolderHold {
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

std::unique_ptr<FolderHold> HeldFolders::Hold(const QString &folder)
{
    // Without a folder there is nothing to be below of.
    if (folder.isEmpty())
        return std::make_unique<FolderHold>();
    QString root = folder;
    while (root.endsWith(u'/'))
        root.chop(1);
    root += u'/';
    auto held = std::ranges::find(all, root, &Held::root);
    if (held == all.end())
        held = all.insert(all.end(), Held{root, 0, {}});
    ++held->holds;
    return std::make_unique<OneHold>(all, held);
}

const HeldFolders::Held *HeldFolders::Innermost(const QString &path) const
{
    const Held *innermost = nullptr;
    for (const Held &held : all) {
        if (path.startsWith(held.root) && (!innermost || held.root.size() > innermost->root.size()))
            innermost = &held;
    }
    return innermost;
}

NativePath HeldFolders::PathOf(const QString &path) const
{
    const Held *const held = Innermost(path);
    QStringView below = held ? QStringView(path).sliced(held->root.size()) : QStringView();
    while (below.startsWith(u'/'))
        below = below.sliced(1);
    // The folder itself is named, not what is below it.
    if (below.isEmpty())
        return NativePath(QStringView(path));
    if (!held->folder.IsOpen()) {
        const NativePath root{QStringView(held->root)};
        if (root.Problem())
            return NativePath(*root.Problem());
        held->folder = Descriptor(
            Retried([&] { return openat(root.Folder(), root.Rest(), O_PATH | O_DIRECTORY | O_CLOEXEC); }));
        if (!held->folder.IsOpen())
            return NativePath(NumberOfError(errno));
    }
    return {held->folder.Number(), below};
}

std::optional<HeldFolders::TwoBelow> HeldFolders::BelowOne(const QString &one, const QString &other) const
{
    const Held *const held = Innermost(one);
    if (!held || !held->folder.IsOpen() || !other.startsWith(held->root))
        return {};
    return TwoBelow{held->folder.Number(), QStringView(one).sliced(held->root.size()),
                    QStringView(other).sliced(held->root.size())};
}

void HeldFolders::Forget(const QString &path) const
{
    for (const Held &held : all) {
        const bool isAbove = held.root.startsWith(path)
            && (held.root.size() == path.size() || held.root.at(path.size()) == u'/' || path.endsWith(u'/'));
        if (isAbove && held.folder.IsOpen())
            held.folder = Descriptor();
    }
}

} // namespace tressel
