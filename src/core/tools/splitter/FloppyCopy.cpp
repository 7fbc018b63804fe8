// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/splitter/FloppyCopy.h"

#include "base/Steps.h"
#include "machine/Dialogs.h"
#include "machine/Events.h"
#include "machine/FileSystem.h"
#include "machine/MoveFile.h"
#include "machine/Paths.h"
#include "tools/RunWatch.h"
#include "tools/splitter/SplitRules.h"
#include "tools/splitter/SplitterRun.h"

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

const QString driveRoot = u"A:\\"_s;

} // namespace

FloppyCopy::FloppyCopy(const SplitterRun &splitterRun, Steps &runSteps, std::int16_t &diskNumber,
                       bool &copySucceeded)
    : run(splitterRun)
    , steps(runSteps)
    , disk(diskNumber)
    , isCopied(copySucceeded)
{
}

void FloppyCopy::CopyParts(const QString &name, std::int16_t count)
{
    for (int number = 1; number <= count; ++number) {
        disk = static_cast<std::int16_t>(number);
        if (!AsksForDisk())
            return;
        run.context.machine.events.LetEventsRun();
        if (!CopyToDisk(name, number == count))
            return;
        run.context.machine.events.LetEventsRun();
    }
}

bool FloppyCopy::AsksForDisk()
{
    const MessageBox box{u"Please enter Disk #"_s + QString::number(disk) + u" in Drive A:"_s,
                         u"Coppy to Floppy"_s, BoxIcon::Information, BoxButtons::OkCancel};
    return run.context.machine.dialogs.Show(box) == BoxAnswer::Ok;
}

bool FloppyCopy::AsksForAnother()
{
    const MessageBox box{u"Unable to find disk in drive or disk is write-protected\r"
                         "Please insert another disk and press OK"_s,
                         u"Disk Missing"_s, BoxIcon::Critical, BoxButtons::OkCancel};
    return run.context.machine.dialogs.Show(box) == BoxAnswer::Ok;
}

bool FloppyCopy::CopyToDisk(const QString &name, bool isLast)
{
    do {
        while (!ClearDiskRoot(run.context.machine.files, driveRoot)) {
            if (!AsksForAnother())
                return false;
        }
        isCopied = true;
        steps.Do([&] { CopyFileToDisk(PartName(name, disk)); });
    } while (!isCopied);
    // Kept: a batch file that can't be copied is told as its part, and not tried again.
    if (isLast)
        steps.Do([&] { CopyFileToDisk(BatchName(name)); });
    return true;
}

void FloppyCopy::CopyFileToDisk(const QString &name)
{
    FileSystem &files = run.context.machine.files;
    const QString target = OnDriveA(files, driveRoot + name);
    CopyFile(files, run.Whole(name), target);
    run.context.watch.Did(Outcome::Made, target);
}

bool ClearDiskRoot(FileSystem &files, const QString &Path)
{
    try {
        const QString root = OnDriveA(files, Path.endsWith(u'\\') ? Path : Path + u'\\');
        for (const FolderEntry &entry : files.List(root)) {
            // Kept: a folder, which can't be deleted as a file can, makes the disk unfit, but for one of
            // this name.
            if (entry.kind == EntryKind::Folder && !entry.name.endsWith(".sys"_L1))
                return false;
        }
        for (const FolderEntry &entry : files.List(root)) {
            if (entry.kind != EntryKind::Folder)
                files.RemoveFile(root + entry.name);
        }
        return true;
    } catch (const Failure &) {
        // Also behind a folder of that name: with the first listing at its end there is nothing to go on
        // with.
        return false;
    }
}

} // namespace tressel
