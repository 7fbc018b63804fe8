// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/rename/RenamePage.h"

namespace tressel {

using namespace Qt::StringLiterals;

RenamePage::RenamePage(const ToolContext &context)
    : page(context.form, u"FrameXPMenu(1)"_s)
    , lblPath(context.form, u"lblPath"_s, u"Path:"_s)
    , txtCurrentPath(context.form, u"txtCurrentPath"_s)
    , btnGBBrowsePath(context.form, u"btnGBBrowsePath"_s, u". . ."_s)
    , Picture1(context.form, u"Picture1"_s)
    , Picture2(context.form, u"Picture2"_s)
    , fraRenamingType(context.form, u"fraRenamingType"_s, u"Type"_s)
    , optRename(context.form, {u"optRenameFolder"_s, u"optRenameFile"_s, u"optRenameAll"_s},
                {u"Folders"_s, u"Files"_s, u"Both"_s})
    , fraRenamingCase(context.form, u"fraRenamingCase"_s, u"Rename Case"_s)
    , optCase(context.form, {u"optNoChange"_s, u"optUppercase"_s, u"optLowercase"_s},
              {u"No Change"_s, u"Uppercase"_s, u"Lowercase"_s})
    , fraRenamingCap(context.form, u"fraRenamingCap"_s, u"Capitalize"_s)
    , chkCapFirstLetter(context.form, u"chkCapFirstLetter"_s, u"First Letter"_s)
    , chkCapAfterEverySpace(context.form, u"chkCapAfterEverySpace"_s, u"Every word"_s)
    , fraExtensions(context.form, u"fraExtensions"_s, u"Extensions"_s)
    , optExtensions(context.form, {u"optSpecificExtensions"_s, u"optAllExtensions"_s},
                    {u"Specific"_s, u"All"_s})
    , fraExtensionsSpecific(context.form, u"fraExtensionsSpecific"_s, u"Specific Extensions"_s)
    , lblExtensionsFrom(context.form, u"lblExtensionsFrom"_s, u"From:"_s)
    , txtSpecificExtFrom(context.form, u"txtSpecificExtFrom"_s)
    , lblExtensionsTo(context.form, u"lblExtensionsTo"_s, u"To:"_s)
    , txtSpecificExtTo(context.form, u"txtSpecificExtTo"_s)
    , fraAllExtensions(context.form, u"fraAllExtensions"_s, u"All &Extensions"_s)
    , lblExtensionsChangeAllTo(context.form, u"lblExtensionsChangeAllTo"_s, u"Rename and Change to"_s)
    , txtExtensionsChangeAllTo(context.form, u"txtExtensionsChangeAllTo"_s)
    , fraReplace(context.form, u"fraReplace"_s, u"Presets"_s)
    , optReplacePreset(context.form, {u"optReplacePresetNone"_s, u"optReplacePresetMP3"_s},
                       {u"None"_s, u"MP3"_s})
    , fraReplacePresets(context.form, u"fraReplacePresets"_s, u"Replace in file/folder"_s)
    , lblReplaceEvery(context.form, u"lblReplaceEvery"_s, u"Replace:"_s)
    , txtReplaceFrom(context.form, u"txtReplaceFrom"_s)
    , lblReplaceWith(context.form, u"lblReplaceWith"_s, u"With:"_s)
    , txtReplaceTo(context.form, u"txtReplaceTo"_s)
    , fraReplaceType(context.form, u"fraReplaceType"_s, u"Type"_s)
    , optReplace(context.form, {u"optReplaceFolder"_s, u"optReplaceFile"_s, u"optReplaceBoth"_s},
                 {u"Folders"_s, u"Files"_s, u"Both"_s})
    , btnGBRename(context.form, u"btnGBRename"_s, u"Rename"_s)
    , btnGBReplace(context.form, u"btnGBReplace"_s, u"Replace"_s)
    , btnGBExtension(context.form, u"btnGBExtension"_s, u"Extension"_s)
    , btnGBCancel(context.form, u"btnGBCancel"_s, u"Cancel"_s)
    , ProgressBar(context.form, u"ProgressBar"_s)
{
    SetToolTips();
    SetFirstValues();
    optExtensions.Click.Handle([this](int) { ShowExtensionFrame(); });
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
    btnGBBrowsePath.SetEnabled(false);
    btnGBRename.SetEnabled(false);
    btnGBReplace.SetEnabled(false);
    btnGBExtension.SetEnabled(false);
    btnGBCancel.SetEnabled(false);
}

void RenamePage::ShowExtensionFrame()
{
    fraExtensionsSpecific.SetVisible(optExtensions.IsSelected(Specific));
    fraAllExtensions.SetVisible(optExtensions.IsSelected(All));
}

void RenamePage::ResetRenamePage(const QString &programFolder)
{
    if (txtCurrentPath.Text().isEmpty())
        txtCurrentPath.SetText(programFolder);
    ProgressBar.SetRange(0, 2);
    ProgressBar.SetValue(0);
}

} // namespace tressel
