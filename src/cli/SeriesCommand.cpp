// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "SeriesCommand.h"

#include "Console.h"
#include "ConsoleProgram.h"
#include "CountingFiles.h"
#include "CountingRemovals.h"
#include "base/Numbers.h"
#include "machine/Paths.h"
#include "machine/Program.h"

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

void FillPage(const SeriesRequest &request, ConsoleProgram &console)
{
    OptionForm &options = console.application.frmOption();
    options.ChkAutoOption.SetChecked(request.digits.has_value());
    if (request.digits)
        options.OptDigit.Select(*request.digits - 1);

    NumberedPage &page = console.form.numbered;
    page.DirBox.SetPath(request.folder);
    page.txtFeltDir.SetText(request.base);
    page.txtFeltDirSub.SetText(request.sub);
    page.chkMain_Sub.SetChecked(request.numbersSub);
    page.cboFrom.SetText(request.from);
    page.cboTo.SetText(request.to);
    page.Chck_MakeDel.SetChecked(request.act == SeriesAct::Delete);
}

/// How many numbers the series has.
qint64 Length(const SeriesRequest &request)
{
    return qint64(ToInt32(request.to)) - ToInt32(request.from) + 1;
}

int Make(const SeriesRequest &request, FileSystem &disc, Clock &clock, Program &program)
{
    CountingFiles files(disc);
    ConsoleProgram console(files, clock, program);
    FillPage(request, console);
    ProgressLine progress(!request.quiet);
    files.StartCounting(request.folder);
    files.onEntry = [&] {
        progress.Show(files.Tried(), Length(request));
        EndIfInterrupted(program, progress, [&] { TellCreation(files.Count(), request.quiet); });
    };
    NoteInterruptions();
    console.form.numbered.btnGBMake.UserClicks();
    progress.Clear();
    return TellCreation(files.Count(), request.quiet);
}

/// Prints what was really removed, and says how the command ended.
int TellRemoval(const RemovalCount &count, bool quiet)
{
    if (!quiet) {
        Print(u"removed %1, kept %2, not there %3, failed %4"_s.arg(count.removed)
                  .arg(count.kept)
                  .arg(count.missing)
                  .arg(count.failed));
    }
    return count.failed > 0 ? SomethingFailed : AllDone;
}

int Delete(const SeriesRequest &request, FileSystem &disc, Clock &clock, Program &program)
{
    CountingRemovals files(disc);
    ConsoleProgram console(files, clock, program);
    FillPage(request, console);
    ProgressLine progress(!request.quiet);
    files.onTarget = [&] {
        progress.Show(files.Tried(), Length(request));
        EndIfInterrupted(program, progress, [&] { TellRemoval(files.Count(), request.quiet); });
    };
    NoteInterruptions();
    console.form.numbered.btnGBDelete.UserClicks();
    progress.Clear();
    return TellRemoval(files.Count(), request.quiet);
}

} // namespace

int RunSeries(const SeriesRequest &request, FileSystem &disc, Clock &clock, Program &program)
{
    if (!FolderExists(disc, request.folder)) {
        PrintError(u"%1 is no folder for a series to stand in"_s.arg(request.folder));
        return SomethingFailed;
    }
    return request.act == SeriesAct::Make ? Make(request, disc, clock, program)
                                          : Delete(request, disc, clock, program);
}

} // namespace tressel
