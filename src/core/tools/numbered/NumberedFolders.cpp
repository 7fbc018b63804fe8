// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/numbered/NumberedFolders.h"

#include "base/Numbers.h"
#include "base/Steps.h"
#include "controls/OptionGroup.h"
#include "language/Language.h"
#include "machine/Events.h"
#include "tools/numbered/NumberedPage.h"

namespace tressel {

NumberedFolders::NumberedFolders(const ToolContext &context, NumberedPage &numberedPage,
                                 FolderList &folderList)
    : page(numberedPage)
    , DirList(folderList)
    , options(context.options)
    , files(context.machine.files)
    , events(context.machine.events)
{
}

void NumberedFolders::MakeFolders()
{
    ForEachTarget(NumberedRun::Make, [this](const QString &target) { MakeFolderPath(files, target); });
    ShowResult();
}

void NumberedFolders::DeleteFolders()
{
    events.SetBusyPointer(true);
    ForEachTarget(NumberedRun::Delete, [this](const QString &target) { RemoveFolderPath(files, target); });
    ShowResult();
}

void NumberedFolders::ForEachTarget(NumberedRun run, const std::function<void(const QString &)> &act)
{
    Steps steps;
    steps.Do([&] {
        const qsizetype toLength = page.cboTo.Text().size();
        const double first = ToInt32(page.cboFrom.Text());
        const double last = ToInt32(page.cboTo.Text());
        for (double number = first; number <= last; ++number) {
            NumberedNaming naming = Naming();
            naming.toLength = toLength;
            if (const auto target = NumberedTarget(files, naming, number, run))
                steps.Do([&] { act(*target); });
        }
    });
}

NumberedNaming NumberedFolders::Naming() const
{
    NumberedNaming naming;
    naming.folder = page.NumberedFolderPath;
    naming.base = page.txtFeltDir.Text();
    naming.sub = page.txtFeltDirSub.Text();
    naming.numbersSub = page.chkMain_Sub.IsChecked();
    naming.manualPadding = options.ChkAutoOption.IsChecked();
    naming.digit = options.OptDigit.Selected();
    return naming;
}

void NumberedFolders::ShowResult()
{
    Steps steps;
    steps.Do([&] { page.DirBox.Refresh(); });
    steps.Do([&] { DirList.Refresh(); });
    events.SetBusyPointer(false);
}

} // namespace tressel
