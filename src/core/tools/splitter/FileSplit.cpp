// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/splitter/FileSplit.h"

#include "base/Numbers.h"
#include "base/Version.h"
#include "language/Session.h"
#include "machine/CopiedAtOnce.h"
#include "machine/Dialogs.h"
#include "machine/Events.h"
#include "machine/FileSystem.h"
#include "machine/Paths.h"
#include "machine/WholeFile.h"
#include "tools/RunWatch.h"
#include "tools/WorkArea.h"
#include "tools/splitter/FloppyCopy.h"
#include "tools/splitter/SplitRules.h"
#include "tools/splitter/SplitterPage.h"

#include <algorithm>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

constexpr int mostPartsUnasked = 10;

} // namespace

FileSplit::FileSplit(const ToolContext &context, SplitterPage &page, LeftOpen &open, RoomMaker maker)
    : run(context, page)
    , leftOpen(open)
    , makeRoom(std::move(maker))
    , steps([this](const Failure &failure) { TellFailure(failure); })
{
}

bool FileSplit::SplitFiles(const QString &fileName, std::int32_t chunkSize)
{
    FileName = fileName;
    ChunkSize = chunkSize;
    run.context.area.lblStatusLine.SetCaption(u"Wait working..."_s);
    PlanParts();
    if (!IsWanted())
        return false;
    run.Start();
    run.context.watch.Started(count);
    run.ShowProgressStart(u"Splitting"_s, length);
    part = 1;
    hasRoom = steps.Do([&] { room = makeRoom(ChunkSize < 0 ? ChunkSize : ChunkSize + qint64{1}); });
    GoToFolder();
    if (!OpenSource())
        return EndAsUnread();
    if (!WriteParts())
        return false;
    steps.Do([&] { WriteBatchFile(); });
    EndAsFinished();
    return true;
}

void FileSplit::PlanParts()
{
    steps.Do([&] { length = run.Length(FileName); });
    // The test and what hangs on it each work it out, so a count that can't be is told twice.
    const auto plan = [&] { count = PlannedParts(length, ChunkSize); };
    if (!steps.Do(plan))
        steps.Do(plan);
}

bool FileSplit::IsWanted()
{
    // Kept: with more than one file in the list, or none, nobody is asked.
    if (run.page.cboFileName.ListCount() != 1 || count <= mostPartsUnasked)
        return true;
    const MessageBox question{u"Are you sure you want to break this file up into "_s + QString::number(count)
                                  + u" pieces?"_s,
                              u"Are you sure?"_s, BoxIcon::Question, BoxButtons::YesNo};
    return run.context.machine.dialogs.Show(question) == BoxAnswer::Yes;
}

void FileSplit::GoToFolder()
{
    const QChar separator = run.context.machine.files.Separator();
    steps.Do([&] {
        const QString folder = GetPathPart(FileName, separator);
        if (folder.isEmpty())
            return;
        if (!FolderExists(run.context.machine.files, run.Whole(folder)))
            throw Failure(FailureNumber::PathNotFound);
        run.context.session.CurrentFolder = run.Whole(folder);
    });
    // Kept: a folder that has gone is told, and the name is then looked for in the folder before.
    FileName = GetFilePart(FileName, separator);
}

bool FileSplit::OpenSource()
{
    try {
        source = OpenOrMake(run.context.machine.files, run.Whole(FileName), Links::Follow);
        return true;
    } catch (const Failure &failure) {
        run.context.watch.Failed(run.Whole(FileName), failure);
        return false;
    }
}

bool FileSplit::WriteParts()
{
    ReadChunk();
    while (got > 0) {
        if (!WritePart())
            return false;
        ReadChunk();
        steps.Do([&] { part = ToInt16(part + 1.0); });
    }
    steps.Do([&] { source->Close(); });
    return true;
}

void FileSplit::ReadChunk()
{
    got = 0;
    steps.Do([&] {
        if (!hasRoom)
            throw Failure(FailureNumber::SubscriptOutOfRange);
        try {
            got = source->ReadInto({room.data(), static_cast<size_t>(ChunkSize)});
        } catch (const Failure &failure) {
            // Kept: a read that fails ends the parts as the end of the file would, and nobody is told.
            run.context.watch.Failed(run.Whole(FileName), failure);
        }
    });
    run.context.machine.events.LetEventsRun();
    steps.Do([&] { run.ShowProgress(got); });
}

bool FileSplit::WritePart()
{
    const QString name = PartName(FileName, part);
    run.page.lblFileCount.SetCaption(u"Split Count: "_s + QString::number(part) + u" of "_s
                                     + QString::number(count));
    steps.Do([&] {
        if (run.IsThere(name))
            run.Remove(name);
    });
    std::unique_ptr<OpenFile> file;
    try {
        file = OpenOrMake(run.context.machine.files, run.Whole(name), Links::Keep);
        const qint64 taken = TakeChunk(*file);
        file->Write(QByteArray::fromRawData(room.constData() + taken, got - taken));
    } catch (const Failure &failure) {
        if (file)
            leftOpen.push_back(std::move(file));
        return EndAsUnwritten(failure);
    }
    run.context.machine.events.LetEventsRun();
    // Kept: whether the part reached the medium is not looked at.
    Steps unseen;
    unseen.Do([&] { file->Flush(); });
    unseen.Do([&] { file->Close(); });
    run.context.watch.Did(Outcome::Made, run.Whole(name));
    return true;
}

qint64 FileSplit::TakeChunk(OpenFile &file)
{
    const qint64 end = source->Position();
    source->Seek(end - got);
    qint64 taken = 0;
    for (qint64 moved = -1; moved != 0 && taken < got; taken += moved)
        moved = file.TakeFrom(*source, std::min(got - taken, takenAtOnce));
    // Fails as a write does: the next chunk would be read from the wrong place.
    source->Seek(end);
    return taken;
}

void FileSplit::WriteBatchFile()
{
    const QString path = run.Whole(BatchName(FileName));
    const auto before = run.context.machine.files.Status(path, Links::Keep);
    // What a link leads to was never named by anybody.
    if (before && before->kind == EntryKind::Link)
        run.Remove(BatchName(FileName));
    ReplaceContents(run.context.machine.files, path,
                    JoinBatchBytes(FileName, part - 1, run.page.chkDeleteParts.IsChecked()));
    run.context.watch.Did(before ? Outcome::Rewritten : Outcome::Made, path);
}

bool FileSplit::EndAsUnread()
{
    const QString text = u"Split Count: Read Error"_s;
    run.page.lblFileCount.SetCaption(text);
    run.context.machine.dialogs.Show({text, u"File Error"_s, BoxIcon::Critical});
    run.End();
    return false;
}

bool FileSplit::EndAsUnwritten(const Failure &failure)
{
    run.context.watch.Failed(run.Whole(PartName(FileName, part)), failure);
    run.page.lblFileCount.SetCaption(u"Split Count: Write Error"_s);
    // Kept: the page stays as it is in the middle of a run, and the file held, so that nothing but a choice
    // in the list of files opens the page again.
    leftOpen.push_back(std::move(source));
    return false;
}

void FileSplit::EndAsFinished()
{
    run.ShowFinish(u"Finished Splitting"_s,
                   u"Split Count: Finished ("_s + QString::number(part - 1) + u" Files)"_s);
    run.End();
    if (run.page.chkCopyToFloppy.IsChecked())
        FloppyCopy(run, steps, part, isCopied).CopyParts(FileName, ToInt16(count));
    run.OpenFolderIfAsked();
    run.context.area.lblStatusLine.SetCaption(u"Finished"_s);
}

void FileSplit::TellFailure(const Failure &failure)
{
    const QString name = PartName(FileName, part);
    run.context.watch.Failed(run.Whole(name), failure);
    Dialogs &dialogs = run.context.machine.dialogs;
    if (failure.number == FailureNumber::OutOfMemory)
        dialogs.Show(
            {failure.description + u", Try with another size"_s, ApplicationTitle, BoxIcon::Exclamation});
    // Kept: the text speaks of a copy to a disk whatever failed.
    dialogs.Show(
        {u"Unable to copy "_s + name + u" to  A:\\"_s + name, u"File Copy Failed"_s, BoxIcon::Critical});
    isCopied = false;
}

} // namespace tressel
