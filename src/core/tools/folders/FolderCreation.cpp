// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/folders/FolderCreation.h"

#include "base/Numbers.h"
#include "base/Version.h"
#include "language/FolderPaths.h"
#include "language/Session.h"
#include "machine/Dialogs.h"
#include "machine/Events.h"
#include "machine/Paths.h"
#include "tools/RunWatch.h"
#include "tools/WatchedPaths.h"
#include "tools/WorkArea.h"
#include "tools/folders/CreationRules.h"

namespace tressel {

using namespace Qt::StringLiterals;

FolderCreation::FolderCreation(const ToolContext &context, FolderList &folderList)
    : area(context.area)
    , DirList(folderList)
    , files(context.machine.files)
    , events(context.machine.events)
    , dialogs(context.machine.dialogs)
    , session(context.session)
    , watch(context.watch)
{
}

void FolderCreation::CreateFolders()
{
    int index = 0;
    const auto hold = files.Hold(session.DestinationPath);
    try {
        // The bound is taken once: a list that changes in the middle of a run doesn't move it.
        const int count = area.LstItem.ListCount();
        watch.Started(count);
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

    watch.Next(PathOf(index));
    const QString entry = area.LstItem.Item(ToInt16(index));
    MakeEntry(CreatedName(entry, area.chkExtension.IsChecked()));
}

void FolderCreation::MakeEntry(const QString &item)
{
    const QString wanted = session.DestinationPath + EntryToPath(files, item);
    // The test takes the name before it is mended, behind a doubled separator.
    if (LeadsOut(item)
        || !FolderPathExists(files, session.DestinationPath + files.Separator() + EntryToPath(files, item))) {
        FixFolderName(item, events, session);
        const QString path = session.DestinationPath + EntryToPath(files, session.LastFixedName);
        if (MakeFolderPathTelling(files, path, watch) == PathEnd::StoodThere)
            watch.Did(Outcome::AlreadyThere, path);
    } else {
        // Kept: no name is mended on this road, so the suffix goes to the name handled before this one.
        const QString suffixed = SuffixedName(session.LastFixedName, session.RunNumber);
        const QString path = session.DestinationPath + EntryToPath(files, suffixed);
        if (MakeFolderPathTelling(files, path, watch) != PathEnd::NotThere)
            watch.Did(Outcome::AlreadyThere, wanted);
    }
}

/// Where an entry stands as the list has it.
QString FolderCreation::PathOf(int index) const
{
    return session.DestinationPath + EntryToPath(files, area.LstItem.Items().value(index));
}

void FolderCreation::RaiseRunNumber()
{
    session.RunNumber = ToInt32(session.RunNumber + 1.0);
}

void FolderCreation::EndAsFailed(const Failure &failure, int index)
{
    watch.Failed(PathOf(index), failure);
    area.lblStatusLine.SetCaption(u"Finished with ERROR, Total of "_s + QString::number(index)
                                  + u" folders created"_s);
    events.SetBusyPointer(false);
    if (failure.number == FailureNumber::PathFileAccessError) {
        dialogs.Show({failure.description + u", with err number "_s + QString::number(failure.Number()),
                      ApplicationTitle, BoxIcon::Exclamation});
    }
}

} // namespace tressel
