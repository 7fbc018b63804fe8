// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/splitter/FileJoin.h"

#include "base/Numbers.h"
#include "base/Steps.h"
#include "machine/CopiedAtOnce.h"
#include "machine/Dialogs.h"
#include "machine/Events.h"
#include "machine/FileSystem.h"
#include "machine/Paths.h"
#include "tools/RunWatch.h"
#include "tools/splitter/SplitRules.h"
#include "tools/splitter/SplitterPage.h"

#include <algorithm>

namespace tressel {

using namespace Qt::StringLiterals;

FileJoin::FileJoin(const ToolContext &context, SplitterPage &page, LeftOpen &open, RoomMaker maker)
    : run(context, page)
    , leftOpen(open)
    , makeRoom(std::move(maker))
{
}

void FileJoin::JoinFiles(const QString &FileName)
{
    target = FileName;
    if (!IsTargetFree()) {
        run.page.lblFileCount.SetCaption(u"Join Count: Output File Exists"_s);
        return;
    }
    if (!FileExists(run.context.machine.files, run.Whole(PartName(target, 1)))) {
        run.page.lblFileCount.SetCaption(u"Join Count: No Input Files"_s);
        return;
    }
    FindParts();
    run.Start();
    run.context.watch.Started(count);
    if (!JoinParts())
        return;
    // Kept: the parts go before the output is closed.
    if (run.page.chkDeleteParts.IsChecked())
        DeleteParts();
    Steps unseen;
    unseen.Do([&] { output->Close(); });
    run.context.watch.Did(Outcome::Made, run.Whole(target));
    // Kept: the running text begins with "Join Count", this one doesn't.
    run.ShowFinish(u"Finished Joining"_s,
                   u"File Count: Finished ("_s + QString::number(count) + u" Files)"_s);
    run.End();
    run.OpenFolderIfAsked();
}

bool FileJoin::IsTargetFree()
{
    if (!FileExists(run.context.machine.files, run.Whole(target)))
        return true;
    const MessageBox question{u"Output file ("_s + target + u") already exists.\r"_s
                                  + u"Are you sure you want to overwrite it?"_s,
                              u"Overwrite Warning"_s, BoxIcon::Question, BoxButtons::YesNo};
    if (run.context.machine.dialogs.Show(question) != BoxAnswer::Yes)
        return false;
    run.Remove(target);
    return true;
}

void FileJoin::FindParts()
{
    run.ShowProgressStart(u"Joining"_s, run.Length(PartName(target, 1)));
    std::int16_t number = 1;
    for (;;) {
        number = ToInt16(number + 1.0);
        const QString part = PartName(target, number);
        if (!HasPart(part))
            break;
        run.page.ctlProgress1.SetMax(
            ToInt32(static_cast<double>(run.page.ctlProgress1.Max()) + run.Length(part)));
    }
    count = ToInt16(number - 1.0);
}

/// Whether there is a part of that name. One that can't be looked at is no end of the parts: what comes of
/// them without it would pass for the whole.
bool FileJoin::HasPart(const QString &name)
{
    FileSystem &files = run.context.machine.files;
    const QString path = run.Whole(name);
    if (const auto status = files.Status(path, Links::Follow))
        return status->kind != EntryKind::Folder;
    try {
        files.Open(path, OpenFor::Reading)->Close();
        return true;
    } catch (const Failure &failure) {
        if (failure.number == FailureNumber::FileNotFound)
            return false;
        throw;
    }
}

bool FileJoin::JoinParts()
{
    // What a link in the output's place leads to was never named by anybody.
    if (!OpenForRun(output, target, Links::Keep))
        return EndAs(u"Join Count: Write Error"_s);
    for (std::int32_t part = 1; part <= count; ++part) {
        if (!JoinPart(ToInt16(part)))
            return false;
    }
    return true;
}

bool FileJoin::JoinPart(std::int16_t part)
{
    const QString name = PartName(target, part);
    run.context.machine.events.LetEventsRun();
    const std::int32_t length = run.Length(name);
    MakeRoomFor(length);
    std::unique_ptr<OpenFile> file;
    if (!OpenForRun(file, name, Links::Follow))
        return EndAs(u"Join Count: Read Error"_s);
    try {
        WritePart(*file, name, length);
    } catch (const Failure &failure) {
        run.context.watch.Failed(run.Whole(target), failure);
        leftOpen.push_back(std::move(file));
        return EndAs(u"Join Count: Write Error"_s);
    }
    Steps unseen;
    unseen.Do([&] { output->Flush(); });
    unseen.Do([&] { file->Close(); });
    run.ShowProgress(length);
    run.page.lblFileCount.SetCaption(u"Join Count: "_s + QString::number(part) + u" of "_s
                                     + QString::number(count));
    return true;
}

void FileJoin::MakeRoomFor(std::int32_t length)
{
    const qint64 wanted = length < 0 ? length : length + qint64{1};
    // Parts are of one size as a rule.
    if (room.size() == wanted)
        return;
    room.clear();
    // Kept: a part that there is no room for ends the program, though little of the room is used.
    room = makeRoom(wanted);
}

void FileJoin::WritePart(OpenFile &file, const QString &name, qint64 length)
{
    const qint64 start = output->Position();
    if (CopyPart(file, name, length))
        return;
    // Kept: a part that can't be read is zeros in the output, and nobody is told.
    output->Seek(start);
    WriteZeros(length);
}

bool FileJoin::CopyPart(OpenFile &file, const QString &name, qint64 length)
{
    for (qint64 left = length; left > 0;) {
        qint64 moved = output->TakeFrom(file, std::min(left, takenAtOnce));
        if (moved == 0) {
            moved = std::min(left, copiedAtOnce);
            if (!ReadPiece(file, name, {room.data(), static_cast<size_t>(moved)}))
                return false;
            output->Write(QByteArray::fromRawData(room.data(), moved));
        }
        left -= moved;
    }
    return true;
}

bool FileJoin::ReadPiece(OpenFile &file, const QString &name, std::span<char> piece)
{
    try {
        const qint64 got = file.ReadInto(piece);
        std::fill(piece.begin() + got, piece.end(), '\0');
        return true;
    } catch (const Failure &failure) {
        run.context.watch.Failed(run.Whole(name), failure);
        return false;
    }
}

void FileJoin::WriteZeros(qint64 length)
{
    const QByteArray zeros(std::min(length, copiedAtOnce), '\0');
    for (qint64 left = length; left > 0; left -= copiedAtOnce)
        output->Write(zeros.first(std::min(left, copiedAtOnce)));
}

bool FileJoin::OpenForRun(std::unique_ptr<OpenFile> &file, const QString &path, Links links)
{
    try {
        file = OpenOrMake(run.context.machine.files, run.Whole(path), links);
        return true;
    } catch (const Failure &failure) {
        run.context.watch.Failed(run.Whole(path), failure);
        return false;
    }
}

bool FileJoin::EndAs(const QString &text)
{
    run.page.lblFileCount.SetCaption(text);
    // Kept: the page stays shut, and the files held, until a choice in the list of files opens it again.
    if (output)
        leftOpen.push_back(std::move(output));
    return false;
}

void FileJoin::DeleteParts()
{
    for (std::int32_t part = 1; part <= count; ++part)
        run.Remove(PartName(target, part));
    if (FileExists(run.context.machine.files, run.Whole(BatchName(target))))
        run.Remove(BatchName(target));
}

} // namespace tressel
