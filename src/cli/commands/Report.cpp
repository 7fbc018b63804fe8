// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "Arguments.h"
#include "Console.h"
#include "ReportOutput.h"
#include "commands/CommandFiles.h"
#include "machine/FolderWalk.h"
#include "machine/Paths.h"
#include "tools/listing/ReportLines.h"

#include <optional>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

const QString outputOption = u"output"_s;
const QString foldersOnly = u"folders-only"_s;
const QString namesOnly = u"names-only"_s;

/// One run: a folder and all below it, each read once, its block written at once.
class Report {
public:
    Report(const Arguments &theArguments, Console &toConsole)
        : arguments(theArguments)
        , console(toConsole)
        , files(toConsole.machine.files)
        , folder(toConsole.Path(theArguments.Operands().first()))
        , style{theArguments.Has(foldersOnly), !theArguments.Has(namesOnly)}
    {
        if (const auto file = arguments.Value(outputOption); file && *file != u"-"_s)
            outputPath = console.Path(*file, Links::Keep);
    }

    int Run()
    {
        if (!FolderExists(files, folder)) {
            console.Fail(folder, u"It is no folder that could be listed"_s);
            return SomethingFailed;
        }
        const auto output = Begin();
        if (!output)
            return SomethingFailed;
        return console.Conclude([&] { WriteTo(*output); }, [this] { TellCount(); });
    }

private:
    std::unique_ptr<ReportOutput> Begin();
    void WriteTo(ReportOutput &output);
    void WriteAll(ReportOutput &output);
    QStringList WriteBlock(ReportOutput &output, const QString &path);
    QList<FolderEntry> EntriesOf(const QString &path);
    void TellCount();

    const Arguments &arguments;
    Console &console;
    FileSystem &files;
    const QString folder;
    const ReportStyle style;
    const QString fileLineStart{StartOfFileLine(style)};
    std::optional<QString> outputPath; ///< none for standard output

    /// What the folder of the output held before the output was begun.
    QList<FolderEntry> besideOutput;

    qint64 folders = 0;
    qint64 listedFiles = 0;
    qint64 unreadable = 0;
};

/// Opens the output; none if that can't be, and why has been told.
std::unique_ptr<ReportOutput> Report::Begin()
{
    if (!outputPath)
        return std::make_unique<ReportOutput>(console);
    try {
        const QString place = FolderOf(files, *outputPath);
        if (place == folder || place.startsWith(WithSeparator(files, folder)))
            besideOutput = files.List(place);
        return std::make_unique<ReportOutput>(
            console, *outputPath, arguments.Has(shared::Force()) ? IfThere::Replace : IfThere::Refuse);
    } catch (const Failure &failure) {
        console.Fail(*outputPath, failure);
        return {};
    }
}

void Report::WriteTo(ReportOutput &output)
{
    try {
        WriteAll(output);
        output.Commit();
    } catch (const Failure &failure) {
        // Folders that can't be read were passed over: it is the output.
        console.Fail(*outputPath, failure);
    }
}

void Report::WriteAll(ReportOutput &output)
{
    const auto hold = files.Hold(folder);
    for (const QString &line : ReportHeader(style))
        output.WriteLine(line);
    FolderWalk walk(files, folder, WriteBlock(output, folder));
    while (const auto next = walk.Next())
        walk.Enter(WriteBlock(output, *next));
}

/// Writes the block of a folder and gives the names of the folders in it. Links are no folders.
QStringList Report::WriteBlock(ReportOutput &output, const QString &path)
{
    console.BetweenSteps();
    QList<FolderEntry> entries;
    try {
        entries = EntriesOf(path);
    } catch (const Failure &failure) {
        ++unreadable;
        console.Fail(path, failure);
        if (failure.number == FailureNumber::PathNotFound)
            return {};
    }
    ++folders;
    const BlockStart start = StartOfBlock(output.Shown(path), style);
    for (const QString &line : start.lines)
        output.WriteLine(line);
    QStringList below;
    for (const FolderEntry &entry : entries) {
        if (entry.kind == EntryKind::Folder) {
            below += entry.name;
            continue;
        }
        ++listedFiles;
        if (!style.foldersOnly)
            output.WriteLine(fileLineStart, output.Shown(entry.name));
    }
    output.WriteLine(start.begun + EndOfBlock());
    return below;
}

/// The entries of a folder without the report itself and what is on its way to become it.
QList<FolderEntry> Report::EntriesOf(const QString &path)
{
    if (!outputPath || path != FolderOf(files, *outputPath))
        return files.List(path);
    const QString ownName = FileNameOf(files, *outputPath);
    besideOutput.removeIf([&](const FolderEntry &entry) { return entry.name == ownName; });
    return besideOutput;
}

void Report::TellCount()
{
    const QString ofFiles = style.foldersOnly ? QString() : u" %1 files,"_s.arg(listedFiles);
    const QString sentence =
        u"listed %1 folders,%2 unreadable %3"_s.arg(folders).arg(ofFiles).arg(unreadable);
    if (outputPath)
        console.Count(sentence);
    else
        console.Aside(sentence);
}

int Run(const Arguments &arguments, Console &console)
{
    if (arguments.Operands().size() != 1 || arguments.Operands().first().isEmpty())
        throw UsageError{u"report needs one DIR"_s};
    return Report(arguments, console).Run();
}

} // namespace

Command ReportCommand()
{
    return {
        u"report"_s,
        u"lists the folders and files of a tree"_s,
        {u"DIR [--folders-only] [--names-only] [--output FILE]"_s},
        uR"(Lists DIR and all folders below it: the path of each folder, then the names of its files, with a line of
one blank ahead and behind. Links are listed as files and not followed. Nothing is written into DIR.

Names come out byte for byte; on a terminal, one that holds a line break or what a terminal would obey
is quoted as a shell reads it. The last line says what was listed; it goes to standard error where the
report itself goes to standard output.)"_s,
        {{foldersOnly, {}, u"one line with each folder's path and a blank, without the files"_s},
         {namesOnly, {}, u"without the lines at the head and without the blanks ahead of each file"_s},
         {outputOption, u"FILE"_s,
          u"write the report to a new file, with line ends as the window's\nreports have them (CR LF); - is "
          "standard output, where lines end in LF"_s},
         shared::Force(),
         shared::Null(),
         shared::Quiet()},
        {},
        u"tressel-cli report Music --output music.txt\n         writes the names below Music to music.txt"_s,
        Run};
}

} // namespace tressel
