// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tools/ToolContext.h"

namespace tressel {

class RenameFrame;
class RenamePage;

/// The run that replaces a piece of text in the names of a folder's entries. The first failure ends it; what
/// was renamed stays so.
class ReplaceRun {
public:
    ReplaceRun(RenamePage &page, RenameFrame &frame, const ToolContext &context);

    void Replace();

private:
    void ReplaceInEntries();

    RenamePage &page;
    RenameFrame &frame;
    ToolContext context;
};

} // namespace tressel
