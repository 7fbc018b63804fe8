// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/folders/FolderListFile.h"

#include "base/Text.h"
#include "base/Version.h"
#include "controls/Form.h"
#include "language/Session.h"
#include "machine/Dialogs.h"
#include "machine/Events.h"
#include "machine/Paths.h"
#include "machine/TextFile.h"
#include "machine/WholeFile.h"
#include "settings/Settings.h"
#include "tools/WorkArea.h"
#include "tools/folders/CreationRules.h"
#include "tools/folders/FolderTree.h"

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

/// The automatic reload takes a file of this many bytes and no larger one.
constexpr qint64 largestAtStart = 32000;

/// "Tressel v5.1450": the minor version stays out.
QString TitleWithVersion()
{
    return ApplicationTitle + u" v"_s + QString::number(MajorVersion) + u'.' + QString::number(Revision);
}

/// Why a file is no list for a limit of our own; empty for any other failure.
QString WhyNoList(FileSystem &files, const QString &path, const Failure &failure)
{
    const auto status = files.Status(path, Links::Follow);
    if (status && status->kind == EntryKind::Other)
        return u"It is no regular file"_s;
    const bool isTooLarge =
        failure.number == FailureNumber::OutOfMemory && failure.description != DescriptionOf(failure.number);
    return isTooLarge ? failure.description : QString();
}

QString TailOfPath(const QString &path)
{
    return Right(path, 70);
}

} // namespace

FolderListFile::FolderListFile(const ToolContext &context, FolderTree &folderTree)
    : form(context.form)
    , area(context.area)
    , tree(folderTree)
    , files(context.machine.files)
    , events(context.machine.events)
    , dialogs(context.machine.dialogs)
    , settings(context.settings)
    , session(context.session)
{
}

void FolderListFile::StartList()
{
    Loading([this] {
        BeginList();
        if (files.Open(session.ListFile, OpenFor::Reading)->Length() <= largestAtStart)
            ReadList();
    });
}

void FolderListFile::LoadList()
{
    Loading([this] {
        BeginList();
        ReadList();
    });
}

void FolderListFile::LoadReportList()
{
    Loading([this] {
        area.lblStatusLine.SetCaption(u"Read list Wait..."_s);
        area.LstItem.Clear();
        session.ReportFile = settings.ReadText(keys::ReportFile);
        LineReader reader = Taken(session.ReportFile, NameBytes::Raw);
        ReadLines(reader, [this](const QString &line) { return PathToEntry(files, line); });
        tree.FillFolderTree();
        // Kept: the caption quotes the list file, not the report that was read.
        TellLoaded();
        area.lblStatusLine.SetCaption(u"Finished"_s);
    });
}

void FolderListFile::SaveList()
{
    try {
        QString text;
        // Kept: an entry with a line break in it comes back as two.
        for (const QString &entry : area.LstItem.Items())
            text += entry + u"\r\n"_s;
        try {
            ReplaceContents(files, session.ListFile, EncodeText(text));
        } catch (const Failure &failure) {
            const bool passedOver = failure.number == FailureNumber::FileNotFound
                || failure.number == FailureNumber::PathNotFound;
            // Without a file the first entry can't be written; a list without entries gets to the end.
            if (!passedOver || area.LstItem.ListCount() > 0)
                throw;
        }
        form.SetCaption(TitleWithVersion() + u" - saved to ... "_s + TailOfPath(session.ListFile));
    } catch (const Failure &) {
        // Whatever it was, the list is still in the window and nobody is told.
    }
}

void FolderListFile::BeginList()
{
    events.SetBusyPointer(true);
    area.lblStatusLine.SetCaption(u"Read list Wait..."_s);
    area.LstItem.Clear();
}

void FolderListFile::ReadList()
{
    LineReader reader = Taken(session.ListFile, NameBytes::Escaped);
    ReadLines(reader, [](const QString &line) { return line; });
    tree.RefreshFolderTree();
    TellLoaded();
    area.lblStatusLine.SetCaption(u"Finished"_s);
    events.SetBusyPointer(false);
}

LineReader FolderListFile::Taken(const QString &path, NameBytes nameBytes)
{
    try {
        return {files, path, nameBytes};
    } catch (const Failure &failure) {
        const QString reason = WhyNoList(files, path, failure);
        if (!reason.isEmpty()) {
            dialogs.Show({u"The list "_s + path + u" can't be loaded. "_s + reason + u'.', ApplicationTitle,
                          BoxIcon::Exclamation});
        }
        throw;
    }
}

void FolderListFile::ReadLines(LineReader &reader, const std::function<QString(const QString &)> &entryOf)
{
    while (const auto line = reader.Next()) {
        events.LetEventsRun();
        // Only an extension of exactly three letters goes. A shorter line fails and ends the load.
        if (const auto entry = EntryOfLine(*line, area.chkExtension.IsChecked()))
            area.LstItem.AddItem(entryOf(*entry));
    }
    reader.Close();
}

void FolderListFile::TellLoaded()
{
    form.SetCaption(TitleWithVersion() + u" - Files load from ... "_s + TailOfPath(session.ListFile));
}

void FolderListFile::Loading(const std::function<void()> &steps)
{
    try {
        steps();
    } catch (const Failure &failure) {
        // Kept: the box names the list file also where the report was to be read.
        if (failure.number == FailureNumber::PathNotFound) {
            dialogs.Show(
                {u"Files "_s + session.ListFile + u" not found."_s, ApplicationTitle, BoxIcon::Exclamation});
        }
    }
}

} // namespace tressel
