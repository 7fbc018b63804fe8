// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "ReportCommand.h"

#include "Console.h"
#include "ConsoleProgram.h"
#include "ReportCatcher.h"
#include "ReportOutput.h"
#include "machine/Paths.h"
#include "machine/Program.h"

#include <utility>
#include <variant>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

/// The file for the output, which is there afterwards; a sentence if it can't be had.
std::variant<std::unique_ptr<OpenFile>, QString> MakeOutput(const QString &path, FileSystem &files)
{
    try {
        return files.Open(path, OpenFor::Creating);
    } catch (const Failure &failure) {
        if (failure.number == FailureNumber::FileAlreadyExists)
            return u"%1 is there already and stays as it is"_s.arg(path);
        return u"%1 can't be made: %2"_s.arg(path, failure.description);
    }
}

QString ClosingLine(const ListingCount &count, bool foldersOnly)
{
    const QString files = foldersOnly ? QString() : u" %1 files,"_s.arg(count.files);
    return u"listed %1 folders,%2 unreadable %3"_s.arg(count.folders).arg(files).arg(count.unreadable);
}

/// Says what was really listed, beside the lines and not among them, and says how the command ended.
int Conclude(const ReportRequest &request, const ListingCount &count, ReportOutput &output)
{
    output.Finish();
    if (const auto &problem = output.Problem()) {
        PrintError(u"the report can't be written: %1"_s.arg(problem->description));
        return SomethingFailed;
    }
    if (!request.quiet) {
        const QString line = ClosingLine(count, request.foldersOnly);
        if (request.output)
            Print(line);
        else
            PrintAside(line);
    }
    return count.unreadable > 0 ? SomethingFailed : AllDone;
}

void FillPage(const ReportRequest &request, ListingPage &page)
{
    page.CboFilePath.SetText(request.folder);
    page.ChckValg.SetChecked(!request.namesOnly);
    page.ChckDir.SetChecked(request.foldersOnly);
}

int ListInto(ReportOutput &output, const ReportRequest &request, FileSystem &disc, Clock &clock,
             Program &program)
{
    ReportCatcher files(disc);
    ConsoleProgram console(files, clock, program);
    ListingPage &page = console.form.listing;
    FillPage(request, page);
    ProgressLine progress(!request.quiet);
    const auto onStep = [&] {
        progress.Show(page.ProgressBar1.Value(), page.ProgressBar1.Max());
        if (output.Problem())
            program.End(Conclude(request, files.Count(), output));
        EndIfInterrupted(program, progress, [&] { Conclude(request, files.Count(), output); });
    };
    if (!progress.IsShown())
        files.SpareLengths(IsDriveRoot(disc, request.folder));
    files.onFolder = onStep;
    files.onUnreadable = [&](const QString &folder, const Failure &failure) {
        progress.Clear();
        PrintError(u"the folder %1 can't be read: %2"_s.arg(folder, failure.description));
    };
    console.machine.events.onPause = onStep;
    files.CatchReport(output);
    NoteInterruptions();
    page.btnGBMakeList.UserClicks();
    progress.Clear();
    return Conclude(request, files.Count(), output);
}

} // namespace

int RunReport(const ReportRequest &request, FileSystem &disc, Clock &clock, Program &program)
{
    if (!FolderExists(disc, request.folder)) {
        PrintError(u"%1 is no folder that could be listed"_s.arg(request.folder));
        return SomethingFailed;
    }
    std::unique_ptr<OpenFile> file;
    if (request.output) {
        auto made = MakeOutput(*request.output, disc);
        if (const auto *sentence = std::get_if<QString>(&made)) {
            PrintError(*sentence);
            return SomethingFailed;
        }
        file = std::move(std::get<std::unique_ptr<OpenFile>>(made));
    }
    ReportOutput output(std::move(file));
    return ListInto(output, request, disc, clock, program);
}

} // namespace tressel
