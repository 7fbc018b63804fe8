// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tools/ToolContext.h"

#include <QString>

namespace tressel {

/// Shows the folder list as a tree: a root and one child for each entry. The tree is thrown away and
/// built anew each time; it makes no folder. A step that fails is ignored and the next one runs.
class FolderTree {
public:
    explicit FolderTree(const ToolContext &context);

    /// The planned folders, with the busy pointer and words in the status line.
    void RefreshFolderTree();
    /// The planned folders, and nothing else.
    void FillFolderTree();
    /// The list after a run. The count is that of the list, whatever the run made.
    void ShowCreatedTree();

private:
    void Rebuild(const QString &rootText, int childImage);
    QString CountText() const;

    WorkArea &area;
    Events &events;
    Session &session;
};

} // namespace tressel
