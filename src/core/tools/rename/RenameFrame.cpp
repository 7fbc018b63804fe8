// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/rename/RenameFrame.h"

#include "base/Numbers.h"
#include "base/Pictures.h"
#include "base/Steps.h"
#include "language/Routines.h"
#include "machine/Events.h"
#include "settings/Settings.h"
#include "tools/ClickSound.h"
#include "tools/RunWatch.h"
#include "tools/WorkArea.h"
#include "tools/rename/RenameFolder.h"
#include "tools/rename/RenamePage.h"

#include <array>
#include <cmath>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

const QString detourMark = u"_"_s;

/// Kept: a root of a single character is too short to be a path.
constexpr qsizetype shortestPath = 3;

/// A text of the page and where it is stored.
struct StoredText {
    TextBox RenamePage::*box;
    const KeyEntry &key;
};

/// Kept: the text to put in comes twice.
const std::array<StoredText, 6> storedTexts{{
    {&RenamePage::txtReplaceFrom, keys::ReplaceFrom},
    {&RenamePage::txtReplaceTo, keys::ReplaceTo},
    {&RenamePage::txtExtensionsChangeAllTo, keys::ExtAll},
    {&RenamePage::txtSpecificExtFrom, keys::ExtFrom},
    {&RenamePage::txtSpecificExtTo, keys::ExtTo},
    {&RenamePage::txtReplaceTo, keys::ReplaceTo},
}};

/// Whether two fractions surely give one text as percentages, which have two decimals.
bool PrintAlike(double one, double other)
{
    constexpr double steps = 10'000;
    constexpr double surelyRounded = 0.499;
    const double nearest = std::round(one * steps);
    return std::abs(one * steps - nearest) < surelyRounded
        && std::abs(other * steps - nearest) < surelyRounded;
}

} // namespace

const QString RenameFrame::IllegalCharacterList = u"\r\n \\ / : * ? \" < > |"_s;

RenameFrame::RenameFrame(RenamePage &renamePage, const ToolContext &toolContext)
    : page(renamePage)
    , context(toolContext)
{
}

void RenameFrame::LockPathPage()
{
    CancelRename = false;
    EnablePage(false);
    page.btnGBCancel.SetEnabled(true);
    // The button that was pressed has just lost the keyboard.
    page.btnGBCancel.SetFocus();
}

void RenameFrame::UnlockPathPage()
{
    EnablePage(true);
    page.btnGBCancel.SetEnabled(false);
    CancelRename = false;
    SetProgressRange(0, 2);
    SetProgressValue(0);
    ShowFileCount();
}

void RenameFrame::EnablePage(bool enabled)
{
    const std::array<Control *, 21> controls{
        &page.txtCurrentPath,     &page.btnGBBrowsePath,
        &page.btnGBRename,        &page.btnGBReplace,
        &page.btnGBExtension,     &page.fraRenamingType,
        &page.fraRenamingCase,    &page.fraRenamingCap,
        &page.chkCapFirstLetter,  &page.chkCapAfterEverySpace,
        &page.fraExtensions,      &page.fraExtensionsSpecific,
        &page.txtSpecificExtFrom, &page.txtSpecificExtTo,
        &page.fraAllExtensions,   &page.txtExtensionsChangeAllTo,
        &page.fraReplace,         &page.fraReplacePresets,
        &page.txtReplaceFrom,     &page.txtReplaceTo,
        &page.fraReplaceType,
    };
    for (Control *control : controls)
        control->SetEnabled(enabled);
    for (OptionGroup *group :
         {&page.optRename, &page.optCase, &page.optExtensions, &page.optReplacePreset, &page.optReplace})
        group->SetEnabled(enabled);
}

void RenameFrame::SetProgressRange(std::int16_t minimum, std::int16_t maximum)
{
    page.ProgressBar.SetRange(minimum, maximum);
}

void RenameFrame::SetProgressValue(std::int16_t value)
{
    page.ProgressBar.SetValue(value);
    ShowProgress();
}

void RenameFrame::StepProgress()
{
    if (page.ProgressBar.Value() + 1 > page.ProgressBar.Max())
        return;
    page.ProgressBar.SetValue(page.ProgressBar.Value() + 1);
    ShowProgress();
}

void RenameFrame::ShowProgress()
{
    const double fraction = page.ProgressBar.Value() / page.ProgressBar.Max();
    Label &line = context.area.lblStatusLine;
    // Of a long run, most steps give the text that stands there.
    if (line.Caption() != progressText || !PrintAlike(fraction, progressShown))
        progressText = u"Processing wait "_s + FormatPercent(fraction);
    progressShown = fraction;
    line.SetCaption(progressText);
}

void RenameFrame::ShowFileCount()
{
    context.area.lblStatusLine.SetCaption(u"Total file count is "_s + QString::number(TotalFileCount)
                                          + u" files processed"_s);
}

void RenameFrame::LoadRenameSettings(Steps &steps)
{
    steps.Do([&] { TotalFileCount = context.settings.ReadInt32(keys::TotalFileCount); });
    for (const StoredText &stored : storedTexts)
        steps.Do([&] { (page.*stored.box).SetText(context.settings.ReadText(stored.key)); });
}

void RenameFrame::SaveRenameSettings()
{
    context.settings.Write(keys::TotalFileCount, TotalFileCount);
    for (const StoredText &stored : storedTexts)
        context.settings.Write(stored.key, (page.*stored.box).Text());
}

void RenameFrame::Run(const std::function<void()> &work, const std::function<QString(int)> &messageOf)
{
    context.clickSound.Play();
    LockPathPage();
    underWay = page.txtCurrentPath.Text();
    try {
        work();
    } catch (const Failure &failure) {
        context.watch.Failed(underWay, failure);
        const QString message = messageOf(failure.Number());
        if (!message.isEmpty())
            ShowError(message);
    }
    UnlockPathPage();
}

void RenameFrame::ShowError(const QString &text)
{
    tressel::ShowError(context.machine.dialogs, context.session, text);
}

bool RenameFrame::HasPath()
{
    if (page.txtCurrentPath.Text().size() >= shortestPath)
        return true;
    ShowError(u"Please insert a path. I'm not a mind reader."_s);
    return false;
}

QStringList RenameFrame::Wanted(const RenameFolder &folder, const OptionGroup &kinds)
{
    if (kinds.IsSelected(RenamePage::Folders))
        return folder.Folders();
    if (kinds.IsSelected(RenamePage::Files))
        return folder.Files();
    return folder.All();
}

std::int16_t RenameFrame::CountOf(const QStringList &names)
{
    return ToInt16(static_cast<double>(names.size()));
}

bool RenameFrame::HasEntries(std::int16_t count)
{
    if (count > 0)
        return true;
    ShowError(u"There are no files or folders in the currently selected folder. "
              "Please select a folder with something in it!"_s);
    return false;
}

void RenameFrame::StartProgress(std::int16_t count)
{
    SetProgressRange(1, count);
    SetProgressValue(1);
    context.watch.Started(count);
}

void RenameFrame::RenameEach(RenameFolder &folder, const QStringList &names,
                             const std::function<QString(const QString &)> &newNameOf)
{
    for (const QString &name : names) {
        ComeTo(folder, name);
        // Both renames also where the name doesn't change.
        const QString newName = newNameOf(name);
        RenameToDetour(folder, newName);
        RenameFromDetour(folder, name, newName);
        CountFile();
        if (CancelRename)
            return;
    }
}

void RenameFrame::ComeTo(const RenameFolder &folder, const QString &name)
{
    folder.PutPath(underWay, name);
    context.watch.Next(underWay);
    context.machine.events.LetEventsRun();
    StepProgress();
}

void RenameFrame::RenameToDetour(RenameFolder &folder, const QString &newName)
{
    folder.Rename(underWay, newName + detourMark);
}

void RenameFrame::RenameFromDetour(RenameFolder &folder, const QString &name, const QString &newName)
{
    folder.Rename(underWay, newName);
    context.watch.Did(name == newName ? Outcome::Kept : Outcome::Renamed, underWay);
}

void RenameFrame::StayOnDetour()
{
    context.watch.Failed(underWay, Failure(FailureNumber::FileAlreadyExists));
}

void RenameFrame::CountFile()
{
    TotalFileCount = ToInt32(TotalFileCount + 1.0);
}

} // namespace tressel
