// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/folders/FolderCreation.h"

#include "base/Numbers.h"
#include "base/Text.h"
#include "base/Version.h"
#include "language/Language.h"
#include "language/Session.h"
#include "machine/Dialogs.h"
#include "machine/Events.h"
#include "machine/Paths.h"
#include "tools/WorkArea.h"

namespace tressel {

using namespace Qt::StringLiterals;

FolderCreation::FolderCreation(const ToolContext &context, FolderList &folderList)
    : area(context.area)
    , DirList(folderList)
    , files(context.machine.files)
    , events(context.machine.events)
    , dialogs(context.machine.dialogs)
    , session(context.session)
{
}

void FolderCreation::CreateFolders()
{
    int index = 0;
    try {
        // The bound is taken once: a list that changes in the middle of a run doesn't move it.
        const int count = area.LstItem.ListCount();
        for (; index < count; ++index)
            CreateFolder(index);
        RaiseRunNumber();
        events.SetBusyPointer(false);
        DirList.Refresh();
        area.lblStatusLine.SetCaption(u"Finished"_s);
    } catch (const Failure &failure) {
        EndAsFailed(failure, index);
    }
}

void FolderCreation::CreateFolder(int index)
{
    session.DestinationPath = WithSeparator(files, session.DestinationPath);
    area.lblStatusLine.SetCaption(u"Wait working..."_s);
    events.SetBusyPointer(true);

    const QString entry = area.LstItem.Item(ToInt16(index));
    // Kept: the last four characters go whatever they are, where the list and the tree look for a dot.
    const QString item = area.chkExtension.IsChecked() ? WithoutLast(entry, 4) : entry;

    // The test takes the name before it is mended, behind a doubled separator.
    if (!FolderPathExists(files, session.DestinationPath + files.Separator() + EntryToPath(files, item))) {
        FixFolderName(item, events, session);
        MakeFolderPath(files, session.DestinationPath + EntryToPath(files, session.LastFixedName));
    } else {
        // Kept: no name is mended on this road, so the suffix goes to the name handled before this one.
        const QString suffixed = session.LastFixedName + u" ("_s + QString::number(session.RunNumber) + u')';
        MakeFolderPath(files, session.DestinationPath + EntryToPath(files, suffixed));
    }
}

void FolderCreation::RaiseRunNumber()
{
    session.RunNumber = ToInt32(session.RunNumber + 1.0);
}

void FolderCreation::EndAsFailed(const Failure &failure, int index)
{
    area.lblStatusLine.SetCaption(u"Finished with ERROR, Total of "_s + QString::number(index)
                                  + u" folders created"_s);
    events.SetBusyPointer(false);
    if (failure.number == FailureNumber::PathFileAccessError) {
        dialogs.Show({failure.description + u", with err number "_s + QString::number(failure.Number()),
                      ApplicationTitle, BoxIcon::Exclamation});
    }
}

} // namespace tressel
