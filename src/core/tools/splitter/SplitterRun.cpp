// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/splitter/SplitterRun.h"

#include "base/Numbers.h"
#include "language/Session.h"
#include "machine/Clock.h"
#include "machine/Events.h"
#include "machine/FileSystem.h"
#include "machine/Paths.h"
#include "machine/Shell.h"
#include "tools/RunWatch.h"
#include "tools/splitter/SplitRules.h"
#include "tools/splitter/SplitterPage.h"

namespace tressel {

using namespace Qt::StringLiterals;

SplitterRun::SplitterRun(const ToolContext &toolContext, SplitterPage &splitterPage)
    : context(toolContext)
    , page(splitterPage)
{
}

QString SplitterRun::Whole(const QString &path) const
{
    return page.Whole(path);
}

std::int32_t SplitterRun::Length(const QString &path) const
{
    return LengthOf(context.machine.files, Whole(path));
}

bool SplitterRun::IsThere(const QString &path) const
{
    const auto status = context.machine.files.Status(Whole(path), Links::Keep);
    return status && status->kind != EntryKind::Folder;
}

void SplitterRun::Remove(const QString &path)
{
    const QString whole = Whole(path);
    context.machine.files.RemoveFile(whole);
    context.watch.Did(Outcome::Removed, whole);
}

void SplitterRun::Start()
{
    startedAt = context.machine.clock.Now();
    context.machine.events.SetBusyPointer(true);
    page.btnGBJoinFile.SetEnabled(false);
    page.btnGBSplitFile.SetEnabled(false);
    page.txtSplitCount.SetEnabled(false);
    page.cmbSplitSize.SetEnabled(false);
    page.optSplit.SetEnabled(false);
    page.lblStart.SetCaption(u"Start Time: "_s + DateTimeText(startedAt));
}

void SplitterRun::ShowProgressStart(const QString &caption, std::int32_t max)
{
    page.ctlProgress1.SetMax(max);
    page.ctlProgress1.SetCaptionStyle(CaptionStyle::PercentWithoutCaption);
    page.ctlProgress1.SetCaption(caption);
    page.ctlProgress1.SetValue(0);
}

void SplitterRun::ShowProgress(qint64 bytes)
{
    page.ctlProgress1.SetValue(ToInt32(static_cast<double>(page.ctlProgress1.Value() + bytes)));
    page.ctlProgress1.Refresh();
}

void SplitterRun::ShowFinish(const QString &caption, const QString &count)
{
    page.ctlProgress1.SetCaption(caption);
    page.ctlProgress1.SetCaptionStyle(CaptionStyle::Caption);
    page.ctlProgress1.SetValue(page.ctlProgress1.Max());
    page.lblFileCount.SetCaption(count);
    const QDateTime now = context.machine.clock.Now();
    page.lblFinish.SetCaption(u"Finish Time: "_s + DateTimeText(now));
    const double seconds = GetSecondsToday(now) - GetSecondsToday(startedAt);
    page.lblElapsed.SetCaption(u"Elapsed Time: "_s + SecondsText(seconds) + u" seconds"_s);
}

void SplitterRun::End()
{
    page.cboFileName_Click();
    context.machine.events.SetBusyPointer(false);
    if (page.optSplit.IsSelected(SplitterPage::FileCount))
        page.txtSplitCount.SetEnabled(true);
    else
        page.cmbSplitSize.SetEnabled(true);
    page.optSplit.SetEnabled(true);
}

void SplitterRun::OpenFolderIfAsked()
{
    if (page.chkOpenExplorer.IsChecked())
        context.machine.shell.BrowseFolder(context.session.CurrentFolder);
}

} // namespace tressel
