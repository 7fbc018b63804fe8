// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/rename/ReplaceRun.h"

#include "base/Failure.h"
#include "tools/rename/RenameFolder.h"
#include "tools/rename/RenameFrame.h"
#include "tools/rename/RenamePage.h"
#include "tools/rename/RenameRules.h"

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

constexpr FailureNumber illegalTo{515};

QString MessageOf(int failure)
{
    switch (failure) {
    case 5:
        return u"The path contains illegal character(s)"_s + RenameFrame::IllegalCharacterList;
    case 76:
        return u"Path does not exist"_s;
    case 515:
        return u"The To field contains illegal character(s)"_s + RenameFrame::IllegalCharacterList;
    default:
        return {};
    }
}

} // namespace

ReplaceRun::ReplaceRun(RenamePage &renamePage, RenameFrame &renameFrame, const ToolContext &toolContext)
    : page(renamePage)
    , frame(renameFrame)
    , context(toolContext)
{
}

void ReplaceRun::Replace()
{
    frame.Run([this] { ReplaceInEntries(); }, MessageOf);
}

void ReplaceRun::ReplaceInEntries()
{
    if (!frame.HasPath())
        return;
    RenameFolder folder(context.machine.files, page.txtCurrentPath.Text());
    const QStringList names = RenameFrame::Wanted(folder, page.optReplace);
    const std::int16_t count = RenameFrame::CountOf(names);
    if (page.txtReplaceFrom.Text().isEmpty()) {
        frame.ShowError(u"There is nothing entered for Replace"_s);
        return;
    }
    if (!frame.HasEntries(count))
        return;
    const QString from = page.txtReplaceFrom.Text();
    const QString to = page.txtReplaceTo.Text();
    // What is looked for isn't checked: any piece of a name may be.
    if (HasIllegalCharacter(to))
        throw Failure(illegalTo);
    frame.StartProgress(count);
    // A name that comes out empty stays at the first of the two renames.
    frame.RenameEach(folder, names, [&](const QString &name) { return ReplacedName(name, from, to); });
}

} // namespace tressel
