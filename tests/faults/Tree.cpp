// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "Tree.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sys/stat.h>

namespace tressel::faults {

namespace fs = std::filesystem;

namespace {

Entry EntryAt(const fs::path &path)
{
    struct stat status = {};
    lstat(path.c_str(), &status);
    constexpr mode_t rights = 07777;
    if (S_ISLNK(status.st_mode))
        return {EntryKind::Link, 0, fs::read_symlink(path)};
    if (S_ISDIR(status.st_mode))
        return {EntryKind::Folder, status.st_mode & rights, {}};
    std::ifstream file(path, std::ios::binary);
    return {EntryKind::File, status.st_mode & rights, {std::istreambuf_iterator<char>(file), {}}};
}

bool Has(const Tree &tree, const std::string &path, const Entry &entry)
{
    const auto found = tree.find(path);
    return found != tree.end() && found->second == entry;
}

/// The same file, link or folder under whichever path.
bool HasSomewhere(const Tree &tree, const Entry &entry)
{
    return std::ranges::any_of(tree, [&](const auto &each) { return each.second == entry; });
}

Finding WhatIsStrange(const Evidence &evidence)
{
    Finding worst;
    for (const auto &[path, entry] : evidence.now) {
        if (Has(evidence.before, path, entry) || Has(evidence.done, path, entry))
            continue;
        const bool isOfUser = evidence.before.contains(path);
        if (isOfUser || evidence.done.contains(path))
            return {State::Damaged, path + " is neither the old nor the new one", isOfUser ? "" : path};
        worst = {State::Leftover, path + " stays behind", path};
    }
    return worst;
}

/// What was there and has gone without having been wanted to go, or too early; empty if nothing.
std::string WhatIsLost(const Evidence &evidence)
{
    const bool allNewStands = std::ranges::all_of(
        evidence.done, [&](const auto &each) { return Has(evidence.now, each.first, each.second); });
    for (const auto &[path, entry] : evidence.before) {
        const bool keepsPlace = evidence.done.contains(path);
        if (keepsPlace && !evidence.now.contains(path))
            return path;
        if (keepsPlace || entry.kind == EntryKind::Folder || HasSomewhere(evidence.now, entry))
            continue;
        const bool isWantedToGo = !HasSomewhere(evidence.done, entry);
        if (!isWantedToGo || !allNewStands)
            return path;
    }
    return {};
}

} // namespace

Tree TreeOf(const fs::path &folder)
{
    Tree tree;
    for (const auto &entry : fs::recursive_directory_iterator(folder))
        tree.emplace(entry.path().lexically_relative(folder), EntryAt(entry.path()));
    return tree;
}

Finding EachWhole(const Evidence &evidence)
{
    const std::string lost = WhatIsLost(evidence);
    if (!lost.empty())
        return {State::Damaged, lost + " has gone", {}};
    Finding strange = WhatIsStrange(evidence);
    if (strange.state != State::Done)
        return strange;
    if (evidence.now == evidence.done)
        return {};
    return {evidence.now == evidence.before ? State::Untouched : State::PartWay, {}, {}};
}

} // namespace tressel::faults
