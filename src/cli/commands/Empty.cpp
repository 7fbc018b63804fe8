// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "Arguments.h"
#include "Console.h"
#include "Tally.h"
#include "commands/CommandFiles.h"
#include "machine/Paths.h"

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

const QString list = u"list"_s;
const QString remove = u"remove"_s;
const QString cascadeOption = u"cascade"_s;
const QString selfOption = u"self"_s;

/// One walk below a folder, in the order of the window's: each folder after those below it. Unlike the
/// window's it takes a folder that can't be read for one that holds something, and stays on the file system
/// that it began on.
class EmptyFolders {
public:
    EmptyFolders(const Arguments &arguments, Console &toConsole)
        : console(toConsole)
        , files(toConsole.machine.files)
        , top(toConsole.Path(arguments.Operands().at(1)))
        , removes(arguments.Operands().first() == remove)
        , cascades(arguments.Has(cascadeOption))
        , takesTop(arguments.Has(selfOption) || !removes)
        , isDryRun(arguments.Has(shared::DryRun()))
        , tally(toConsole)
    {
    }

    int Run()
    {
        const auto status = files.Status(top, Links::Follow);
        if (!status || status->kind != EntryKind::Folder) {
            console.Fail(top, status ? u"It is no folder"_s : DescriptionOf(FailureNumber::PathNotFound));
            return SomethingFailed;
        }
        volume = status->volume;
        const auto hold = files.Hold(top);
        return console.Conclude([this] { Goes(top); }, [this] { TellCount(); });
    }

private:
    bool Goes(const QString &folder);
    bool AllGo(const QString &folder, const QList<FolderEntry> &entries);
    bool IsOurs(const QString &folder);
    bool Take(const QString &folder);
    void TellCount();

    Console &console;
    FileSystem &files;
    const QString top;
    const bool removes;
    const bool cascades; ///< a folder that holds nothing but such folders counts too
    const bool takesTop;
    const bool isDryRun;
    quint64 volume = 0;
    Tally tally;
};

/// Whether nothing is left of the folder, or would be, when its turn is over.
bool EmptyFolders::Goes(const QString &folder)
{
    console.BetweenSteps();
    QList<FolderEntry> entries;
    try {
        entries = files.List(folder);
    } catch (const Failure &failure) {
        // One that has gone since its parent was read is nobody's concern.
        if (failure.number == FailureNumber::PathNotFound && folder != top)
            return true;
        tally.Failed(folder, failure);
        return false;
    }
    // Without --cascade too all of them have their turn.
    const bool allGo = AllGo(folder, entries);
    return (entries.isEmpty() || (cascades && allGo)) && Take(folder);
}

bool EmptyFolders::AllGo(const QString &folder, const QList<FolderEntry> &entries)
{
    bool allGo = true;
    for (const FolderEntry &entry : entries) {
        const QString path = JoinPath(files, folder, entry.name);
        if (entry.kind != EntryKind::Folder) {
            allGo = false;
            continue;
        }
        allGo = IsOurs(path) && Goes(path) && allGo;
    }
    return allGo;
}

/// Whether the folder isn't mounted here from elsewhere. Where that can't be told, it is left alone as
/// failed.
bool EmptyFolders::IsOurs(const QString &folder)
{
    if (const auto status = files.Status(folder, Links::Keep))
        return status->volume == volume;
    try {
        files.Read(folder);
    } catch (const Failure &failure) {
        // It has gone, which its own turn finds too.
        if (failure.number == FailureNumber::PathNotFound)
            return true;
    }
    tally.Failed(folder, Failure(FailureNumber::PathFileAccessError));
    return false;
}

bool EmptyFolders::Take(const QString &folder)
{
    if (folder == top && !takesTop) {
        tally.Did(Outcome::Kept, folder);
        return false;
    }
    if (!removes) {
        console.Line(console.Shown(folder));
        tally.Did(Outcome::Found, folder);
        return true;
    }
    if (isDryRun) {
        console.Line(u"remove "_s + console.Shown(folder));
    } else if (const auto failure = files.TryRemoveFolder(folder)) {
        tally.Failed(folder, *failure);
        return false;
    }
    tally.Did(Outcome::Removed, folder);
    return true;
}

void EmptyFolders::TellCount()
{
    if (!removes) {
        console.Aside(u"found %1, failed %2"_s.arg(tally.Count(Outcome::Found)).arg(tally.Failures()));
        return;
    }
    const QString sentence =
        u"removed %1, failed %2"_s.arg(tally.Count(Outcome::Removed)).arg(tally.Failures());
    if (isDryRun)
        console.Aside(u"would have "_s + sentence);
    else
        console.Count(sentence);
}

int Run(const Arguments &arguments, Console &console)
{
    const QStringList &operands = arguments.Operands();
    if (operands.isEmpty() || (operands.first() != list && operands.first() != remove))
        throw UsageError{u"empty needs one of list or remove"_s};
    if (operands.size() != 2)
        throw UsageError{u"empty %1 needs one folder"_s.arg(operands.first())};
    if (operands.first() == list && (arguments.Has(selfOption) || arguments.Has(shared::DryRun())))
        throw UsageError{u"empty list takes neither --self nor --dry-run"_s};
    return EmptyFolders(arguments, console).Run();
}

} // namespace

Command EmptyCommand()
{
    return {
        u"empty"_s,
        u"lists or removes empty folders"_s,
        {u"list DIR"_s, u"remove DIR"_s},
        uR"(Looks for folders below DIR that hold nothing at all, each after those below it. A hidden entry, a link
and an empty folder are content. No link is followed, and what is mounted below DIR is left alone.

"remove" removes them, one by one and each only if it is still empty. DIR itself stays without --self.
A folder that can't be read counts as one that holds something, and is named.)"_s,
        {{cascadeOption, {}, u"a folder that holds nothing but folders that go counts too"_s},
         {selfOption, {}, u"remove DIR too, if it is empty"_s},
         shared::DryRun(),
         shared::Null(),
         shared::Quiet()},
        {list, remove},
        u"tressel-cli empty remove --cascade Projects\n         removes each tree of empty folders below "
        u"Projects"_s,
        Run};
}

} // namespace tressel
