// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/folders/TextListTool.h"

#include "base/Steps.h"
#include "language/Session.h"
#include "machine/Dialogs.h"
#include "machine/FileSystem.h"
#include "settings/Settings.h"
#include "tools/ClickSound.h"
#include "tools/folders/FolderListFile.h"

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

const QString listFileFilter = u"All Files (*.*)|*.*|TXT Files (*.txt)|*.txt|DOC Files (*.doc)|*.doc|"_s;
// Kept: the filter has three entries, so this index is beyond them.
constexpr int listFileFilterIndex = 4;

} // namespace

TextListTool::TextListTool(const ToolContext &context, FolderListFile &textFile)
    : lblInfo(context.form, u"lblInfo"_s,
              u"Open from textfile and read to list for making of folders or Save from list to textfile to "
              "later use"_s)
    , btnGBLoadFile(context.form, u"btnGBLoadFile"_s, u"Load File"_s)
    , btnGBSaveFile(context.form, u"btnGBSaveFile"_s, u"Save File"_s)
    , files(context.machine.files)
    , dialogs(context.machine.dialogs)
    , clickSound(context.clickSound)
    , listFile(textFile)
    , settings(context.settings)
    , session(context.session)
{
    btnGBLoadFile.Click.Handle([this] { btnGBLoadFile_Click(); });
    btnGBSaveFile.Click.Handle([this] { btnGBSaveFile_Click(); });
}

void TextListTool::Restore(Steps &steps)
{
    steps.Do([&] { OpenTXTPath = settings.ReadText(keys::OpenTXTPath); });
}

void TextListTool::Save()
{
    settings.Write(keys::OpenTXTPath, OpenTXTPath);
}

void TextListTool::btnGBLoadFile_Click()
{
    clickSound.Play();
    FileDialogRequest request;
    request.title = u"Open file"_s;
    request.folder = OpenTXTPath;
    request.filter = listFileFilter;
    request.filterIndex = listFileFilterIndex;
    request.defaultExtension = u".txt"_s;
    request.fileName = u"*.txt"_s;
    const auto answer = dialogs.OpenFile(request);
    if (!answer)
        return;

    session.ListFile = answer->paths.value(0);
    OpenTXTPath = answer->folder;
    listFile.LoadList();
    // The flags say where the list was to come from, so a load that failed sets them too.
    session.ListFromReport = false;
    session.ListFromTextFile = true;
    session.ListFromFileList = false;
}

void TextListTool::btnGBSaveFile_Click()
{
    clickSound.Play();
    FileDialogRequest request;
    request.title = u"Save file"_s;
    request.folder = OpenTXTPath;
    request.filter = listFileFilter;
    request.filterIndex = listFileFilterIndex;
    request.fileName = session.ListFile;
    request.askBeforeOverwriting = true;
    const auto answer = dialogs.SaveFile(request);
    // Kept: the dialog has asked about overwriting already, and the box asks once more.
    if (!answer || !MayBeOverwritten(answer->paths.value(0)))
        return;
    session.ListFile = answer->paths.value(0);
    listFile.SaveList();
}

bool TextListTool::MayBeOverwritten(const QString &path)
{
    if (!files.Status(path, Links::Follow))
        return true;
    return dialogs.Show({path + u"\n\nAre you sure you want to overwrite this file?"_s, u"Overwrite file"_s,
                         BoxIcon::Question, BoxButtons::YesNo, BoxAnswer::No})
        == BoxAnswer::Yes;
}

} // namespace tressel
