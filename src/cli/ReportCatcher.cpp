// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "ReportCatcher.h"

#include <algorithm>
#include <utility>

namespace tressel {

namespace {

/// The open report. It is only ever written on at its end.
class CaughtFile : public OpenFile {
public:
    explicit CaughtFile(ReportOutput &to)
        : output(to)
    {
    }

    QByteArray Read(qint64) override { return {}; }
    void Write(const QByteArray &bytes) override { output.Write(bytes); }
    qint64 Position() const override { return 0; }
    void Seek(qint64) override { }
    qint64 Length() const override { return 0; }
    void Flush() override { }
    void Close() override { }

private:
    ReportOutput &output;
};

} // namespace

void ReportCatcher::SpareLengths(bool isDriveRoot)
{
    sparesLengths = true;
    refusesNext = !isDriveRoot;
}

std::optional<FileStatus> ReportCatcher::Status(const QString &path, Links links)
{
    if (output && path == reportPath)
        return FileStatus();
    return files.Status(path, links);
}

QList<FolderEntry> ReportCatcher::List(const QString &folder, Lengths lengths)
{
    if (!output)
        return files.List(folder, lengths);
    if (onFolder)
        onFolder();
    if (std::exchange(refusesNext, false))
        throw Failure(FailureNumber::PathFileAccessError);
    lastFolder = folder;
    filesInLast = 0;
    failureOfLast.reset();
    try {
        QList<FolderEntry> entries = files.List(folder, sparesLengths ? Lengths::LeftOut : lengths);
        filesInLast = static_cast<int>(std::ranges::count_if(
            entries, [](const FolderEntry &entry) { return entry.kind != EntryKind::Folder; }));
        return entries;
    } catch (const Failure &failure) {
        failureOfLast = failure;
        throw;
    }
}

std::unique_ptr<OpenFile> ReportCatcher::Open(const QString &path, OpenFor purpose, Sharing sharing)
{
    if (!output)
        return files.Open(path, purpose, sharing);
    if (purpose == OpenFor::Reading || purpose == OpenFor::Changing)
        throw Failure(FailureNumber::FileNotFound);
    if (purpose == OpenFor::Appending)
        CountBlock();
    reportPath = path;
    return std::make_unique<CaughtFile>(*output);
}

void ReportCatcher::RemoveFile(const QString &path)
{
    // The leftover of the window's last listing, which is none of ours.
    if (!output)
        files.RemoveFile(path);
}

void ReportCatcher::Rename(const QString &from, const QString &to)
{
    // The report on its way to the folder list: it has gone where it was wanted.
    if (!output)
        files.Rename(from, to);
}

void ReportCatcher::CountBlock()
{
    ++count.folders;
    count.files += filesInLast;
    if (!failureOfLast)
        return;
    ++count.unreadable;
    if (onUnreadable)
        onUnreadable(lastFolder, *failureOfLast);
}

} // namespace tressel
