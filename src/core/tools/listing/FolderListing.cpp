// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/listing/FolderListing.h"

#include "base/Steps.h"
#include "base/Version.h"
#include "language/Session.h"
#include "machine/Dialogs.h"
#include "machine/Events.h"
#include "machine/FolderWalk.h"
#include "machine/MoveFile.h"
#include "machine/Paths.h"
#include "machine/Program.h"
#include "settings/Settings.h"
#include "tools/RunWatch.h"
#include "tools/WorkArea.h"
#include "tools/folders/FolderListFile.h"
#include "tools/folders/RemoveDupes.h"
#include "tools/listing/ListingPage.h"

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

const QString cancelCaption = u"Cancel"_s;
const QString temporaryName = u"~TR24D0.tmp"_s;

/// The names of the folders among the entries. Links are no folders, whatever they point to.
QStringList FoldersOf(const QList<FolderEntry> &entries)
{
    QStringList folders;
    for (const FolderEntry &entry : entries) {
        if (entry.kind == EntryKind::Folder)
            folders += entry.name;
    }
    return folders;
}

} // namespace

/// Runs the steps of one run and decides about their failures.
class FolderListing::Guard {
public:
    explicit Guard(FolderListing &listing)
        : listing(listing)
    {
    }

    template <typename Step> void Do(Step &&step)
    {
        try {
            step();
        } catch (const Failure &failure) {
            Decide(failure);
        }
    }
    bool HasFallenBack() const { return hasFallenBack; }

private:
    void Decide(const Failure &failure)
    {
        if (hasFallenBack)
            return;
        if (failure.number != FailureNumber::PermissionDenied)
            throw;
        listing.watch.Failed(listing.report.Path(), failure);
        hasFallenBack = true;
        // Kept: the walk is stopped with it, so nothing is written to drive C: either.
        listing.StopListing = true;
        listing.report.ReportFolder = OnDriveC(listing.files, u"C:"_s);
    }

    FolderListing &listing;
    bool hasFallenBack = false;
};

FolderListing::FolderListing(const ToolContext &context, ListingPage &listingPage, FolderListFile &textFile)
    : page(listingPage)
    , area(context.area)
    , machine(context.machine)
    , files(machine.files)
    , listFile(textFile)
    , settings(context.settings)
    , session(context.session)
    , watch(context.watch)
    , report(machine.files, machine.clock)
{
}

void FolderListing::MakeList()
{
    machine.events.SetBusyPointer(true);
    if (page.btnGBMakeList.Caption() != cancelCaption)
        MakeListCaption = page.btnGBMakeList.Caption();
    // Kept: an empty path asks for a folder also where the click means Cancel.
    if (page.CboFilePath.Text().isEmpty())
        page.BrowseListFolder();
    area.lblStatusLine.SetCaption(u"Generate File list - Generate list wait. . ."_s);
    if (page.btnGBMakeList.Caption() != MakeListCaption) {
        page.btnGBMakeList.SetCaption(MakeListCaption);
        StopListing = true;
        return;
    }
    try {
        Guard guard(*this);
        ListFolders(guard);
    } catch (const Failure &failure) {
        EndAsFailed(failure);
    }
}

void FolderListing::ListFolders(Guard &guard)
{
    page.btnGBMakeList.SetCaption(cancelCaption);
    StopListing = false;
    watch.Started(-1);
    TakeSource(guard);
    const auto hold = files.Hold(ListSourcePath);
    StartReport(guard);
    StartProgress();
    EnableResult(false);
    WalkFolders();
    guard.Do([&] { page.ResetEmptyFolderPage.Raise(); });
    EnableResult(true);
    area.lblStatusLine.SetCaption(u"Generate File list - Finished"_s);
    if (page.ChckValg.IsChecked())
        KeepReport();
    else
        TakeReportAsList(guard);
    page.ProgressBar1.SetValue(1);
    page.btnGBMakeList.SetCaption(MakeListCaption);
    if (guard.HasFallenBack())
        TellFallback();
    machine.events.SetBusyPointer(false);
}

void FolderListing::TakeSource(Guard &guard)
{
    ListSourcePath = page.CboFilePath.Text();
    page.SaveRecentPath();
    guard.Do([&] { KillCBDupes(page.CboFilePath); });
    report.ReportFolder = ListSourcePath;
    report.NextReportFile(ListSourcePath, ReportHeader(Style()));
}

void FolderListing::StartReport(Guard &guard)
{
    std::unique_ptr<LineWriter> writer;
    guard.Do([&] { writer = report.Create(); });
    if (writer) {
        guard.Do([&] {
            for (const QString &line : ReportHeader(Style()))
                writer->WriteLine(line);
        });
    }
    const QString temporary = JoinPath(files, machine.program.WritableFolder(), temporaryName);
    if (FileExists(files, temporary))
        guard.Do([&] { files.RemoveFile(temporary); });
    if (writer)
        guard.Do([&] { writer->Close(); });
}

void FolderListing::StartProgress()
{
    ShowFolderSize(ListSourcePath);
    page.ProgressBar1.SetValue(1);
    if (FolderSizeTotal != 0)
        page.ProgressBar1.SetRange(page.ProgressBar1.Min(), FolderSizeTotal);
}

void FolderListing::WalkFolders()
{
    // A copy: the user may browse for another folder while this one is walked.
    const QString source = ListSourcePath;
    folderlist(source, Makelisting(source));
}

void FolderListing::KeepReport()
{
    page.lblRSaved.SetEnabled(true);
    page.txtReport.SetEnabled(true);
    page.txtReport.SetText(report.ShownPath());
}

void FolderListing::TakeReportAsList(Guard &guard)
{
    page.txtReport.SetText(u"Last Saved to list"_s);
    page.lblRSaved.SetEnabled(false);
    page.txtReport.SetEnabled(false);
    const QString temporary = TemporaryPath();
    guard.Do([&] { MoveFile(files, report.Path(), temporary); });
    session.ReportFile = temporary;
    guard.Do([&] { settings.Write(keys::ReportFile, temporary); });
    guard.Do([&] { listFile.LoadReportList(); });
}

void FolderListing::TellFallback()
{
    const QString path = report.Path();
    machine.dialogs.Show({u"NB! Report is saved on "_s + path, ApplicationTitle});
    page.txtReport.SetText(path);
}

void FolderListing::EndAsFailed(const Failure &failure)
{
    watch.Failed(report.Path(), failure);
    machine.events.SetBusyPointer(false);
    page.btnGBMakeList.SetCaption(MakeListCaption);
    machine.dialogs.Show({QString::number(failure.Number()) + u", "_s + failure.description, ApplicationTitle,
                          BoxIcon::Exclamation});
}

/// A folder's entries with their lengths, which were mostly measured before.
QList<FolderEntry> FolderListing::EntriesOf(const QString &folder)
{
    if (measured.Knows(folder)) {
        QList<FolderEntry> entries = files.List(folder);
        if (measured.FillIn(folder, entries))
            return entries;
    }
    return files.List(folder, Lengths::Wanted);
}

/// Appends the block of one folder and gives the names of the folders in it. A path that is no folder has
/// no block.
QStringList FolderListing::Makelisting(const QString &path)
{
    watch.Next(path);
    QList<FolderEntry> entries;
    try {
        entries = EntriesOf(path);
        watch.Did(Outcome::Searched, path);
    } catch (const Failure &failure) {
        if (failure.number == FailureNumber::PathNotFound || failure.number == FailureNumber::BadFileName) {
            watch.Did(Outcome::NotThere, path);
            return {};
        }
        // A folder that can't be read is one without entries.
        watch.Failed(path, failure);
    }
    AppendBlock(path, entries);
    return FoldersOf(entries);
}

void FolderListing::AppendBlock(const QString &path, const QList<FolderEntry> &entries)
{
    std::optional<Failure> problem;
    Steps steps([&](const Failure &failure) { problem = failure; });
    std::unique_ptr<LineWriter> writer;
    steps.Do([&] { writer = report.OpenToAppend(); });
    const auto [lines, start] = StartOfBlock(path, Style());
    QString lineSoFar = start;
    const auto write = [&](const QString &text) {
        if (writer)
            steps.Do([&] { writer->WriteLine(lineSoFar + text); });
        lineSoFar.clear();
    };
    for (const QString &line : lines)
        write(line);
    ListFiles(path, entries, write);
    write(EndOfBlock());
    if (writer)
        steps.Do([&] { writer->Close(); });
    if (problem)
        watch.Failed(report.Path(), *problem);
}

void FolderListing::ListFiles(const QString &path, const QList<FolderEntry> &entries,
                              const std::function<void(const QString &)> &write)
{
    for (const FolderEntry &entry : entries) {
        if (entry.kind == EntryKind::Folder)
            continue;
        machine.events.LetEventsRun();
        page.txtReport.SetText(entry.name);
        page.ProgressBar1.SetValue(page.ProgressBar1.Value() + static_cast<double>(entry.length));
        if (StopListing)
            return;
        if (page.ChckDir.IsChecked())
            continue;
        write(FileLine(entry.name, Style()));
        watch.Did(Outcome::Found, JoinPath(files, path, entry.name));
    }
}

/// Appends the blocks of the folders below a path, whose own folders are given.
void FolderListing::folderlist(const QString &path, const QStringList &folders)
{
    FolderWalk walk(files, path, folders);
    while (!StopListing) {
        const auto folder = walk.Next();
        if (!folder)
            return;
        machine.events.LetEventsRun();
        walk.Enter(Makelisting(*folder));
    }
}

/// Takes the bytes of all files below a folder for the progress bar. What can't be measured, a drive's root
/// or a folder that can't be read, leaves the number as it was.
void FolderListing::ShowFolderSize(const QString &path)
{
    measured.Clear();
    if (IsDriveRoot(files, path))
        return;
    double total = 0;
    const auto measure = [&](const QString &folder) {
        const QList<FolderEntry> entries = files.List(folder, Lengths::Wanted);
        measured.Keep(folder, entries);
        for (const FolderEntry &entry : entries)
            total += static_cast<double>(entry.length);
        return FoldersOf(entries);
    };
    try {
        FolderWalk walk(files, path, measure(path));
        while (const auto folder = walk.Next())
            walk.Enter(measure(*folder));
        FolderSizeTotal = total;
    } catch (const Failure &) {
        // The bar then fills by the number of an earlier run.
    }
}

void FolderListing::EnableResult(bool enabled)
{
    page.btnGBResult.SetEnabled(enabled);
    page.ChckValg.SetEnabled(enabled);
}

ReportStyle FolderListing::Style() const
{
    return {page.ChckDir.IsChecked(), page.ChckValg.IsChecked()};
}

QString FolderListing::TemporaryPath() const
{
    const QString folder = machine.program.WritableFolder();
    // Kept: for a drive's root no separator goes between, so the file lands beside the folder.
    return report.ReportFolder.endsWith(files.Separator()) ? folder + temporaryName
                                                           : folder + files.Separator() + temporaryName;
}

} // namespace tressel
