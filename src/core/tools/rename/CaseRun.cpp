// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/rename/CaseRun.h"

#include "tools/rename/RenameFolder.h"
#include "tools/rename/RenameFrame.h"
#include "tools/rename/RenamePage.h"

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

QString MessageOf(int failure)
{
    switch (failure) {
    case 5:
        return u"The path contains illegal character(s)"_s + RenameFrame::IllegalCharacterList;
    case 76:
        return u"Path does not exist"_s;
    default:
        return {};
    }
}

} // namespace

CaseRun::CaseRun(RenamePage &renamePage, RenameFrame &renameFrame, const ToolContext &toolContext)
    : page(renamePage)
    , frame(renameFrame)
    , context(toolContext)
{
}

void CaseRun::Rename()
{
    frame.Run([this] { RenameEntries(); }, MessageOf);
}

void CaseRun::RenameEntries()
{
    if (!frame.HasPath())
        return;
    RenameFolder folder(context.machine.files, page.txtCurrentPath.Text());
    const QStringList names = RenameFrame::Wanted(folder, page.optRename);
    const std::int16_t count = RenameFrame::CountOf(names);
    if (!frame.HasEntries(count))
        return;
    frame.StartProgress(count);
    const CaseRule rule = Rule();
    frame.RenameEach(folder, names, [&](const QString &name) { return CasedName(name, rule); });
}

CaseRule CaseRun::Rule() const
{
    CaseRule rule;
    if (page.optCase.IsSelected(RenamePage::Lowercase))
        rule.letters = LetterCase::Lower;
    if (page.optCase.IsSelected(RenamePage::Uppercase))
        rule.letters = LetterCase::Upper;
    rule.firstLetter = page.chkCapFirstLetter.IsChecked();
    rule.everyWord = page.chkCapAfterEverySpace.IsChecked();
    return rule;
}

} // namespace tressel
