// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/numbered/NumberedFolders.h"

#include "base/Numbers.h"
#include "base/Steps.h"
#include "controls/OptionGroup.h"
#include "language/FolderPaths.h"
#include "machine/Events.h"
#include "tools/RunWatch.h"
#include "tools/WatchedPaths.h"
#include "tools/numbered/NumberedPage.h"

namespace tressel {

NumberedFolders::NumberedFolders(const ToolContext &context, NumberedPage &numberedPage,
                                 FolderList &folderList)
    : page(numberedPage)
    , DirList(folderList)
    , options(context.options)
    , files(context.machine.files)
    , events(context.machine.events)
    , watch(context.watch)
{
}

void NumberedFolders::MakeFolders()
{
    ForEachTarget(NumberedRun::Make, [this](const QString &target) {
        if (MakeFolderPathTelling(files, target, watch) == PathEnd::StoodThere)
            watch.Did(Outcome::AlreadyThere, target);
    });
    ShowResult();
}

void NumberedFolders::DeleteFolders()
{
    events.SetBusyPointer(true);
    ForEachTarget(NumberedRun::Delete,
                  [this](const QString &target) { RemoveFolderPathTelling(files, target, watch); });
    ShowResult();
}

void NumberedFolders::ForEachTarget(NumberedRun run, const std::function<void(const QString &)> &act)
{
    Steps steps([this](const Failure &failure) { watch.Failed(page.NumberedFolderPath, failure); });
    const auto hold = files.Hold(page.NumberedFolderPath);
    steps.Do([&] {
        // Nothing that the names come from can change before the last one, since no event runs.
        NumberedSeries series = Series(run);
        watch.Started(series.Count());
        while (const auto target = series.Next()) {
            watch.Next(*target);
            act(*target);
        }
    });
}

NumberedSeries NumberedFolders::Series(NumberedRun run) const
{
    NumberedNaming naming;
    naming.toLength = page.cboTo.Text().size();
    naming.folder = page.NumberedFolderPath;
    naming.base = page.txtFeltDir.Text();
    naming.sub = page.txtFeltDirSub.Text();
    naming.numbersSub = page.chkMain_Sub.IsChecked();
    naming.manualPadding = options.ChkAutoOption.IsChecked();
    naming.digit = options.OptDigit.Selected();
    return {files, naming, ToInt32(page.cboFrom.Text()), ToInt32(page.cboTo.Text()), run};
}

void NumberedFolders::ShowResult()
{
    Steps steps;
    steps.Do([&] { page.DirBox.Refresh(); });
    steps.Do([&] { DirList.Refresh(); });
    events.SetBusyPointer(false);
}

} // namespace tressel
