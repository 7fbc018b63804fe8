// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "controls/TreeView.h"

#include <algorithm>

namespace tressel {

namespace {

// The tree control's own numbers, which no rule asks for.
constexpr auto indexOutOfBounds = static_cast<FailureNumber>(35600);
constexpr auto elementNotFound = static_cast<FailureNumber>(35601);
constexpr auto keyNotUnique = static_cast<FailureNumber>(35602);

} // namespace

void TreeView::Clear()
{
    nodes.clear();
    expanded.clear();
    selected = -1;
    NoteChanged();
}

int TreeView::AddRoot(const QString &key, const QString &text, int image)
{
    if (!key.isEmpty() && KeyIndex(key) >= 0)
        throw Failure(keyNotUnique);
    nodes.append({text, key, image, -1});
    NoteChanged();
    return static_cast<int>(nodes.size()) - 1;
}

int TreeView::AddChild(const QString &parentKey, const QString &text, int image)
{
    const int parent = KeyIndex(parentKey);
    if (parent < 0)
        throw Failure(elementNotFound);
    nodes.append({text, {}, image, parent});
    NoteChanged();
    return static_cast<int>(nodes.size()) - 1;
}

int TreeView::Root() const
{
    if (nodes.isEmpty())
        throw Failure(indexOutOfBounds);
    return 0;
}

void TreeView::Expand(int node)
{
    if (!expanded.contains(node))
        expanded.append(node);
    NoteChanged();
}

void TreeView::Collapse(int node)
{
    expanded.removeOne(node);
    NoteChanged();
}

void TreeView::UserClicks(int node)
{
    if (node < 0 || node >= nodes.size())
        return;
    UserAct([&] {
        selected = node;
        NodeClick.Raise(node);
    });
}

void TreeView::UserMovesTo(int node)
{
    if (node >= 0 && node < nodes.size())
        selected = node;
}

void TreeView::UserExpands(int node, bool isExpanded)
{
    expanded.removeOne(node);
    if (isExpanded)
        expanded.append(node);
}

int TreeView::KeyIndex(const QString &key) const
{
    // The nodes with keys are the first ones, so this ends at once also in a long tree.
    const auto found = std::ranges::find_if(
        nodes, [&](const TreeNode &node) { return !node.key.isEmpty() && node.key == key; });
    return found == nodes.end() ? -1 : static_cast<int>(found - nodes.begin());
}

} // namespace tressel
