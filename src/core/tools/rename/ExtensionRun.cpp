// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/rename/ExtensionRun.h"

#include "base/Failure.h"
#include "tools/RunWatch.h"
#include "tools/rename/RenameFolder.h"
#include "tools/rename/RenameFrame.h"
#include "tools/rename/RenamePage.h"
#include "tools/rename/RenameRules.h"

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

constexpr FailureNumber illegalFrom{513};
constexpr FailureNumber illegalTo{514};
constexpr FailureNumber illegalAllTo{515};

QString MessageOf(int failure)
{
    switch (failure) {
    case 5:
        return u"The path contains illegal character(s)"_s + RenameFrame::IllegalCharacterList;
    case 58:
        return u"Unexpected duplicate file"_s;
    case 76:
        return u"Path does not exist"_s;
    case 513:
        return u"The extension From field contains illegal character(s)"_s
            + RenameFrame::IllegalCharacterList;
    case 514:
        return u"The extension To field contains illegal character(s)"_s + RenameFrame::IllegalCharacterList;
    case 515:
        return u"The Change All To field contains illegal character(s)"_s + RenameFrame::IllegalCharacterList;
    default:
        return {};
    }
}

} // namespace

ExtensionRun::ExtensionRun(RenamePage &renamePage, RenameFrame &renameFrame, const ToolContext &toolContext)
    : page(renamePage)
    , frame(renameFrame)
    , context(toolContext)
{
}

void ExtensionRun::Change()
{
    frame.Run([this] { ChangeExtensions(); }, MessageOf);
}

void ExtensionRun::ChangeExtensions()
{
    if (!frame.HasPath())
        return;
    // Kept: nothing is said of a folder without files.
    RenameFolder folder(context.machine.files, page.txtCurrentPath.Text());
    frame.StartProgress(RenameFrame::CountOf(folder.Files()));
    const std::optional<Fields> fields = TakeFields();
    if (!fields)
        return;
    for (const QString &name : folder.Files()) {
        frame.ComeTo(folder, name);
        if (!fields->from || HasExtension(name, *fields->from))
            ChangeExtension(folder, name, fields->to);
        else
            context.watch.Did(Outcome::Kept, folder.PathOf(name));
        // Kept: the entry at which the run is cancelled isn't counted here.
        if (frame.CancelRename)
            return;
        frame.CountFile();
    }
}

std::optional<ExtensionRun::Fields> ExtensionRun::TakeFields()
{
    const bool isSpecific = page.optExtensions.IsSelected(RenamePage::Specific);
    const QString from = page.txtSpecificExtFrom.Text();
    const QString to = isSpecific ? page.txtSpecificExtTo.Text() : page.txtExtensionsChangeAllTo.Text();
    if (isSpecific && from.isEmpty()) {
        frame.ShowError(u"You need to enter an extension for the From field"_s);
        return {};
    }
    if (to.isEmpty()) {
        frame.ShowError(isSpecific ? u"You need to enter an extension for the To field"_s
                                   : u"You need to enter an extension for the Change All To field"_s);
        return {};
    }
    Fields fields{{}, ReducedExtension(to)};
    if (isSpecific)
        fields.from = ReducedExtension(from);
    RefuseIllegal(fields);
    return fields;
}

void ExtensionRun::RefuseIllegal(const Fields &fields)
{
    if (fields.from && HasIllegalCharacter(*fields.from))
        throw Failure(illegalFrom);
    if (HasIllegalCharacter(fields.to))
        throw Failure(fields.from ? illegalTo : illegalAllTo);
}

void ExtensionRun::ChangeExtension(RenameFolder &folder, const QString &name, const QString &extension)
{
    const QString newName = WithExtension(name, extension);
    frame.RenameToDetour(folder, newName);
    if (folder.HasFile(newName))
        frame.StayOnDetour();
    else
        frame.RenameFromDetour(folder, name, newName);
}

} // namespace tressel
