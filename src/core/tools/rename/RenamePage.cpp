// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/rename/RenamePage.h"

#include "base/Steps.h"
#include "base/Text.h"
#include "language/TextParts.h"
#include "machine/FileSystem.h"
#include "machine/Paths.h"
#include "machine/Program.h"
#include "settings/Settings.h"
#include "tools/ClickSound.h"
#include "tools/dialogs/BrowseForFolder.h"

namespace tressel {

using namespace Qt::StringLiterals;

RenamePage::RenamePage(const ToolContext &toolContext)
    : page(toolContext.form, u"FrameXPMenu(1)"_s)
    , lblPath(toolContext.form, u"lblPath"_s, u"Path:"_s)
    , txtCurrentPath(toolContext.form, u"txtCurrentPath"_s)
    , btnGBBrowsePath(toolContext.form, u"btnGBBrowsePath"_s, u". . ."_s)
    , Picture1(toolContext.form, u"Picture1"_s)
    , Picture2(toolContext.form, u"Picture2"_s)
    , fraRenamingType(toolContext.form, u"fraRenamingType"_s, u"Type"_s)
    , optRename(toolContext.form, {u"optRenameFolder"_s, u"optRenameFile"_s, u"optRenameAll"_s},
                {u"Folders"_s, u"Files"_s, u"Both"_s})
    , fraRenamingCase(toolContext.form, u"fraRenamingCase"_s, u"Rename Case"_s)
    , optCase(toolContext.form, {u"optNoChange"_s, u"optUppercase"_s, u"optLowercase"_s},
              {u"No Change"_s, u"Uppercase"_s, u"Lowercase"_s})
    , fraRenamingCap(toolContext.form, u"fraRenamingCap"_s, u"Capitalize"_s)
    , chkCapFirstLetter(toolContext.form, u"chkCapFirstLetter"_s, u"First Letter"_s)
    , chkCapAfterEverySpace(toolContext.form, u"chkCapAfterEverySpace"_s, u"Every word"_s)
    , fraExtensions(toolContext.form, u"fraExtensions"_s, u"Extensions"_s)
    , optExtensions(toolContext.form, {u"optSpecificExtensions"_s, u"optAllExtensions"_s},
                    {u"Specific"_s, u"All"_s})
    , fraExtensionsSpecific(toolContext.form, u"fraExtensionsSpecific"_s, u"Specific Extensions"_s)
    , lblExtensionsFrom(toolContext.form, u"lblExtensionsFrom"_s, u"From:"_s)
    , txtSpecificExtFrom(toolContext.form, u"txtSpecificExtFrom"_s)
    , lblExtensionsTo(toolContext.form, u"lblExtensionsTo"_s, u"To:"_s)
    , txtSpecificExtTo(toolContext.form, u"txtSpecificExtTo"_s)
    , fraAllExtensions(toolContext.form, u"fraAllExtensions"_s, u"All &Extensions"_s)
    , lblExtensionsChangeAllTo(toolContext.form, u"lblExtensionsChangeAllTo"_s, u"Rename and Change to"_s)
    , txtExtensionsChangeAllTo(toolContext.form, u"txtExtensionsChangeAllTo"_s)
    , fraReplace(toolContext.form, u"fraReplace"_s, u"Presets"_s)
    , optReplacePreset(toolContext.form, {u"optReplacePresetNone"_s, u"optReplacePresetMP3"_s},
                       {u"None"_s, u"MP3"_s})
    , fraReplacePresets(toolContext.form, u"fraReplacePresets"_s, u"Replace in file/folder"_s)
    , lblReplaceEvery(toolContext.form, u"lblReplaceEvery"_s, u"Replace:"_s)
    , txtReplaceFrom(toolContext.form, u"txtReplaceFrom"_s)
    , lblReplaceWith(toolContext.form, u"lblReplaceWith"_s, u"With:"_s)
    , txtReplaceTo(toolContext.form, u"txtReplaceTo"_s)
    , fraReplaceType(toolContext.form, u"fraReplaceType"_s, u"Type"_s)
    , optReplace(toolContext.form, {u"optReplaceFolder"_s, u"optReplaceFile"_s, u"optReplaceBoth"_s},
                 {u"Folders"_s, u"Files"_s, u"Both"_s})
    , btnGBRename(toolContext.form, u"btnGBRename"_s, u"Rename"_s)
    , btnGBReplace(toolContext.form, u"btnGBReplace"_s, u"Replace"_s)
    , btnGBExtension(toolContext.form, u"btnGBExtension"_s, u"Extension"_s)
    , btnGBCancel(toolContext.form, u"btnGBCancel"_s, u"Cancel"_s)
    , ProgressBar(toolContext.form, u"ProgressBar"_s)
    , context(toolContext)
    , frame(*this, context)
    , caseRun(*this, frame, context)
    , extensionRun(*this, frame, context)
    , replaceRun(*this, frame, context)
{
    SetToolTips();
    SetFirstValues();
    TieButtons();
    txtCurrentPath.Drop.Handle([this](const QStringList &paths) { txtCurrentPath_Drop(paths); });
    optExtensions.Click.Handle([this](int) { ShowExtensionFrame(); });
    optReplacePreset.Click.Handle([this](int preset) { optReplacePreset_Click(preset); });
}

void RenamePage::SetToolTips()
{
    txtCurrentPath.SetToolTip(u" You can drag and drop Path in which all operation will be performed. "_s);
    chkCapFirstLetter.SetToolTip(u" Caps the first letter in name "_s);
    chkCapAfterEverySpace.SetToolTip(u" Caps every word after a space "_s);
    optExtensions.Button(Specific).SetToolTip(u" Specific extensions "_s);
    optExtensions.Button(All).SetToolTip(u" All extensions "_s);
    txtExtensionsChangeAllTo.SetToolTip(u"Without dot \".\""_s);
    txtExtensionsChangeAllTo.SetHint(u"Without dot \".\""_s);
}

void RenamePage::SetFirstValues()
{
    optRename.Select(Files);
    optCase.Select(NoChange);
    optExtensions.Select(Specific);
    ShowExtensionFrame();
    optReplacePreset.Select(None);
    optReplace.Select(Files);
    ProgressBar.SetRange(0, 2);
    btnGBCancel.SetEnabled(false);
    txtCurrentPath.SetTakesDrops(true);
}

void RenamePage::TieButtons()
{
    btnGBBrowsePath.Click.Handle([this] { btnGBBrowsePath_Click(); });
    btnGBRename.Click.Handle([this] { caseRun.Rename(); });
    btnGBExtension.Click.Handle([this] { extensionRun.Change(); });
    btnGBReplace.Click.Handle([this] { replaceRun.Replace(); });
    btnGBCancel.Click.Handle([this] { btnGBCancel_Click(); });
}

void RenamePage::ShowExtensionFrame()
{
    fraExtensionsSpecific.SetVisible(optExtensions.IsSelected(Specific));
    fraAllExtensions.SetVisible(optExtensions.IsSelected(All));
}

void RenamePage::Restore(Steps &steps)
{
    steps.Do([&] { txtCurrentPath.SetText(context.settings.ReadText(keys::LastPath)); });
}

void RenamePage::Save()
{
    context.settings.Write(keys::LastPath, txtCurrentPath.Text());
}

void RenamePage::ResetRenamePage(Steps &steps)
{
    frame.LoadRenameSettings(steps);
    if (txtCurrentPath.Text().isEmpty())
        txtCurrentPath.SetText(context.machine.program.Folder());
    frame.SetProgressRange(0, 2);
    frame.SetProgressValue(0);
    frame.CancelRename = false;
}

void RenamePage::SaveRenameSettings()
{
    frame.SaveRenameSettings();
}

void RenamePage::txtCurrentPath_Drop(const QStringList &paths)
{
    if (paths.isEmpty())
        return;
    const FileSystem &files = context.machine.files;
    QString path = paths.first();
    // Kept: what has an extension of three letters is taken for a file, also where it is a folder.
    if (path.size() > 3 && HasThreeLetterExtension(path)) {
        path = TextBeforeLast(path, files.Separator());
        // What is left of a root has lost its separator.
        if (path.size() == 2 || path.isEmpty())
            path = WithSeparator(files, path);
    }
    txtCurrentPath.SetText(path);
}

void RenamePage::btnGBBrowsePath_Click()
{
    context.clickSound.Play();
    const QString folder =
        BrowseFromPresent(context.machine.dialogs, context.machine.files, {}, txtCurrentPath.Text());
    if (!folder.isEmpty())
        txtCurrentPath.SetText(folder);
}

void RenamePage::btnGBCancel_Click()
{
    context.clickSound.Play();
    frame.CancelRename = true;
}

void RenamePage::optReplacePreset_Click(int preset)
{
    // An empty box stores where a filled one loads.
    if (preset != MP3 || txtReplaceFrom.Text().isEmpty()) {
        StorePreset();
        return;
    }
    txtReplaceFrom.SetText(GetPresetValue(keys::PresetReplaceFrom));
    txtReplaceTo.SetText(GetPresetValue(keys::PresetReplaceTo));
}

QString RenamePage::GetPresetValue(const KeyEntry &key) const
{
    // A default is stored by being read.
    return context.settings.ReadText(key);
}

void RenamePage::StorePreset()
{
    context.settings.Write(keys::PresetReplaceFrom, txtReplaceFrom.Text());
    context.settings.Write(keys::PresetReplaceTo, txtReplaceTo.Text());
}

} // namespace tressel
