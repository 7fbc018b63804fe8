// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "CreateCommand.h"

#include "Console.h"
#include "ConsoleProgram.h"
#include "CountingFiles.h"
#include "language/FolderPaths.h"
#include "machine/Paths.h"

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

/// A sentence if the sources or the destination can't be used, which the window would pass over in silence.
std::optional<QString> WhatIsWrong(const CreateRequest &request, FileSystem &files)
{
    if (request.listFile) {
        try {
            files.Open(*request.listFile, OpenFor::Streaming, Sharing::Shared);
        } catch (const Failure &failure) {
            return u"the list file %1 can't be read: %2"_s.arg(*request.listFile, failure.description);
        }
    }
    if (request.namesOf) {
        try {
            files.List(*request.namesOf);
        } catch (const Failure &failure) {
            return u"the file names of %1 can't be taken: %2"_s.arg(*request.namesOf, failure.description);
        }
    }
    MakeFolderPath(files, request.destination);
    if (!FolderExists(files, request.destination))
        return u"the destination %1 is no folder and can't be made"_s.arg(request.destination);
    return {};
}

/// False if the list is not the whole of what was asked for.
bool FillList(const CreateRequest &request, ConsoleMachine &machine, MainForm &form)
{
    form.area.chkExtension.SetChecked(request.removeExtension);
    if (request.listFile) {
        machine.dialogs.namedFile = *request.listFile;
        form.listFile.purpose = OpenFor::Streaming;
        form.textLists.btnGBLoadFile.UserClicks();
    } else if (request.namesOf) {
        form.browse.FileList.SetPath(*request.namesOf);
        form.btnGBToolbarLoadList.UserClicks();
    } else {
        for (const QString &name : request.names)
            form.area.LstItem.AddItem(name);
        form.tree.RefreshFolderTree();
    }
    // A load that ends before its time leaves the words of its beginning.
    return form.area.lblStatusLine.Caption() == u"Finished"_s;
}

} // namespace

int RunCreate(const CreateRequest &request, FileSystem &disc, Clock &clock, Program &program)
{
    if (const auto sentence = WhatIsWrong(request, disc)) {
        PrintError(*sentence);
        return SomethingFailed;
    }

    CountingFiles files(disc);
    ConsoleProgram console(files, clock, program);
    MainForm &form = console.form;
    if (!FillList(request, console.machine, form)) {
        PrintError(u"only %1 names could be read from the list file; nothing was made"_s.arg(
            form.area.LstItem.ListCount()));
        return SomethingFailed;
    }

    const int wanted = form.area.LstItem.ListCount();
    ProgressLine progress(!request.quiet);
    files.StartCounting(request.destination);
    console.machine.events.onPause = [&] {
        progress.Show(files.Tried(), wanted);
        // What was made stays, and the rest was never tried.
        EndIfInterrupted(program, progress, [&] { TellCreation(files.Count(), request.quiet); });
    };
    NoteInterruptions();
    form.area.txtStrtPath.SetText(request.destination);
    form.btnGBToolbarCreate.UserClicks();
    console.machine.events.onPause = {};
    progress.Clear();

    CreationCount count = files.Count();
    count.failed += wanted - count.tried;
    return TellCreation(count, request.quiet);
}

} // namespace tressel
