// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tools/ToolContext.h"
#include "tools/listing/MeasuredLengths.h"
#include "tools/listing/ReportFile.h"
#include "tools/listing/ReportLines.h"

#include <functional>

namespace tressel {

class FolderListFile;
class ListingPage;

/// The run that writes the names of a folder tree into a report, which stays as a file or becomes the
/// folder list. The button that starts it cancels it too: while it runs it lets events run, and a second
/// call of MakeList, which reads from the button's caption that a run is under way, has the first one stop.
///
/// A step that fails ends the run with a box, but for the first refusal to write (70): the report then goes
/// to drive C:, the walk stops, and every later failure is ignored.
class FolderListing {
public:
    FolderListing(const ToolContext &context, ListingPage &page, FolderListFile &listFile);

    void MakeList();

    QString ListSourcePath; ///< the folder that is listed

private:
    class Guard;

    void ListFolders(Guard &guard);
    void TakeSource(Guard &guard);
    void StartReport(Guard &guard);
    void StartProgress();
    void WalkFolders();
    void KeepReport();
    void TakeReportAsList(Guard &guard);
    void TellFallback();
    void EndAsFailed(const Failure &failure);

    QList<FolderEntry> EntriesOf(const QString &folder);
    QStringList Makelisting(const QString &path);
    void folderlist(const QString &path, const QStringList &folders);
    void AppendBlock(const QString &path, const QList<FolderEntry> &entries);
    void ListFiles(const QString &path, const QList<FolderEntry> &entries,
                   const std::function<void(const QString &)> &write);
    void ShowFolderSize(const QString &path);
    void EnableResult(bool enabled);
    ReportStyle Style() const;
    QString TemporaryPath() const;

    ListingPage &page;
    WorkArea &area;
    Machine machine;
    FileSystem &files;
    FolderListFile &listFile;
    Settings &settings;
    Session &session;
    RunWatch &watch;

    ReportFile report;
    bool StopListing = false;
    double FolderSizeTotal = 0; ///< bytes
    MeasuredLengths measured;
    QString MakeListCaption; ///< of the button while it reads "Cancel"
};

} // namespace tressel
