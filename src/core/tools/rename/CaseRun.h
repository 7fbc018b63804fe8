// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tools/ToolContext.h"
#include "tools/rename/RenameRules.h"

namespace tressel {

class RenameFrame;
class RenamePage;

/// The run that changes upper and lower case in the names of a folder's entries. The first failure ends it;
/// what was renamed stays so.
class CaseRun {
public:
    CaseRun(RenamePage &page, RenameFrame &frame, const ToolContext &context);

    void Rename();

private:
    void RenameEntries();
    CaseRule Rule() const;

    RenamePage &page;
    RenameFrame &frame;
    ToolContext context;
};

} // namespace tressel
