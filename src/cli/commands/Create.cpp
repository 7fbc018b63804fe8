// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "Arguments.h"
#include "Console.h"
#include "FolderMaker.h"
#include "Names.h"
#include "Tally.h"
#include "commands/CommandFiles.h"
#include "controls/FileList.h"
#include "language/FolderPaths.h"
#include "machine/Databases.h"
#include "machine/Paths.h"
#include "tools/database/ValueText.h"
#include "tools/folders/CreationRules.h"

#include <limits>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

const QString listOption = u"list"_s;
const QString namesOfOption = u"names-of"_s;
const QString databaseOption = u"database"_s;
const QString tableOption = u"table"_s;
const QString fieldOption = u"field"_s;
const QString removeExtension = u"remove-ext"_s;

/// The list is read by a 16-bit index.
constexpr qsizetype longestList = std::numeric_limits<std::int16_t>::max();

/// The suffix of the first run of a session, which each run of a command is.
constexpr std::int32_t runNumber = 1;

/// One run: the entries it was given, and the folders that it makes for them.
class Creation {
public:
    Creation(const Arguments &theArguments, Console &toConsole)
        : arguments(theArguments)
        , console(toConsole)
        , files(toConsole.machine.files)
        , destination(toConsole.Path(theArguments.Need(u"to"_s)))
        , removesExtension(theArguments.Has(removeExtension))
        , isDryRun(theArguments.Has(shared::DryRun()))
        , tally(toConsole)
        , maker(toConsole, tally, isDryRun)
    {
    }

    int Run()
    {
        if (!ReadEntries() || !MayBeDone()) {
            console.FailAs(u"nothing was made"_s);
            return SomethingFailed;
        }
        return console.Conclude([this] { MakeAll(); }, [this] { TellCount(); });
    }

private:
    // What is to be made: nothing on the disc is changed here.

    bool ReadEntries();
    void ReadList(const QString &file);
    void ReadField(const QString &file);
    void Take(const QString &line);
    bool MayBeDone();
    std::optional<QString> WhyNot(const QString &name) const;

    // The making of it.

    void MakeAll();
    bool HasDestination();
    void Make(const QString &name);
    bool IsThere(const QString &name);
    QString PathOf(const QString &entry) const;
    void TellCount();

    const Arguments &arguments;
    Console &console;
    FileSystem &files;
    const QString destination;
    const bool removesExtension;
    const bool isDryRun;
    QStringList entries;
    QStringList names; ///< of the entries, without what goes, before they are mended
    QString lastFixedName;
    Tally tally;
    FolderMaker maker;
    bool isReady = false; ///< the destination is there
    qint64 madeForDestination = 0; ///< levels
};

bool Creation::ReadEntries()
{
    const auto list = arguments.Value(listOption);
    const auto folder = arguments.Value(namesOfOption);
    const auto database = arguments.Value(databaseOption);
    const QString source = list ? *list : folder ? *folder : database.value_or(QString());
    try {
        if (list)
            ReadList(*list);
        else if (folder)
            for (const QString &name : ShownFiles(files, console.Path(*folder)))
                entries += EntryOfName(name);
        else if (database)
            ReadField(*database);
        else
            entries = arguments.Operands();
    } catch (const Failure &failure) {
        console.Fail(source, failure);
    }
    return !console.HasFailed();
}

void Creation::ReadList(const QString &file)
{
    for (const QString &line : ReadListLines(console, file)) {
        if (console.EndsInNul())
            entries += line;
        else
            Take(line);
    }
}

/// Each row gives one entry, as the window has it. A row without a text is one that can't be made.
void Creation::ReadField(const QString &file)
{
    const ValueWriter writer{QLocale()};
    const auto reader = console.machine.databases.Read(console.Path(file), arguments.Need(tableOption),
                                                       {arguments.Need(fieldOption)});
    qint64 row = 0;
    while (const auto value = reader->Next()) {
        ++row;
        try {
            entries += writer.Text(*value);
        } catch (const Failure &) {
            console.Fail(file, u"Row %1 has no text"_s.arg(row));
        }
        console.BetweenSteps();
    }
}

void Creation::Take(const QString &line)
{
    try {
        if (const auto entry = EntryOfLine(line, removesExtension))
            entries += *entry;
    } catch (const Failure &) {
        console.Fail(line, u"It is too short for an extension to be taken off"_s);
    }
}

bool Creation::MayBeDone()
{
    if (entries.size() > longestList)
        console.FailAs(u"%1 names are more than the %2 that a list of folders takes"_s.arg(entries.size())
                           .arg(longestList));
    const auto status = files.Status(destination, Links::Follow);
    if (status && status->kind != EntryKind::Folder)
        console.Fail(destination, u"It is no folder"_s);
    names.reserve(entries.size());
    for (const QString &entry : entries) {
        try {
            names += CreatedName(entry, removesExtension);
            if (const auto reason = WhyNot(names.last()))
                console.Fail(entry, *reason);
        } catch (const Failure &) {
            console.Fail(entry, u"It is too short for four characters to be taken off"_s);
        }
    }
    return !console.HasFailed();
}

std::optional<QString> Creation::WhyNot(const QString &name) const
{
    const QString mended = MendedName(name);
    if (!mended.contains(u'\\'))
        return WhyNoName(mended);
    for (const QString &level : mended.split(u'\\')) {
        if (const auto reason = WhyNoName(level))
            return reason;
    }
    return {};
}

void Creation::MakeAll()
{
    const auto hold = files.Hold(destination);
    tally.Started(names.size());
    // The name that the tree of the list shows last is what a run starts from.
    if (!entries.isEmpty())
        lastFixedName = MendedName(removesExtension ? WithoutShortExtension(entries.last()) : entries.last());
    for (const QString &name : names) {
        tally.Next(name);
        // An entry of nothing stands for the destination itself.
        if (!name.isEmpty() && !HasDestination())
            return;
        Make(name);
    }
}

bool Creation::HasDestination()
{
    if (isReady)
        return true;
    const qint64 before = tally.Count(Outcome::Made);
    isReady = maker.Make(destination) != PathEnd::NotThere;
    madeForDestination = tally.Count(Outcome::Made) - before;
    return isReady;
}

void Creation::Make(const QString &name)
{
    const QString mended = MendedName(name);
    // What can be made as it stands wasn't there.
    if (!name.isEmpty() && mended == name && maker.MadeAtOnce(PathOf(name))) {
        lastFixedName = name;
        return;
    }
    if (IsThere(name)) {
        tally.Did(Outcome::AlreadyThere, PathOf(name));
        // Kept: the suffix goes to the name handled before this one.
        maker.Make(PathOf(SuffixedName(lastFixedName, runNumber)));
        return;
    }
    lastFixedName = mended;
    if (maker.Make(PathOf(mended)) == PathEnd::StoodThere)
        tally.Did(Outcome::AlreadyThere, PathOf(mended));
}

bool Creation::IsThere(const QString &name)
{
    if (LeadsOut(name))
        return false;
    const QString tested = WithSeparator(files, destination) + files.Separator() + EntryToPath(files, name);
    return FolderPathExists(files, tested) || (isDryRun && maker.IsThere(PathOf(name)));
}

QString Creation::PathOf(const QString &entry) const
{
    if (!entry.isEmpty() && !entry.contains(u'\\'))
        return JoinPath(files, destination, entry);
    const QStringList levels = entry.split(u'\\', Qt::SkipEmptyParts);
    return levels.isEmpty() ? destination : JoinPath(files, destination, levels.join(files.Separator()));
}

void Creation::TellCount()
{
    const QString sentence =
        u"made %1, already there %2, failed %3"_s.arg(tally.Count(Outcome::Made) - madeForDestination)
            .arg(tally.Count(Outcome::AlreadyThere))
            .arg(tally.Failures());
    if (isDryRun)
        console.Aside(u"would have "_s + sentence);
    else
        console.Count(sentence);
}

int Run(const Arguments &arguments, Console &console)
{
    const int sources = (arguments.Has(listOption) ? 1 : 0) + (arguments.Has(namesOfOption) ? 1 : 0)
        + (arguments.Has(databaseOption) ? 1 : 0) + (arguments.Operands().isEmpty() ? 0 : 1);
    if (sources != 1)
        throw UsageError{
            u"create takes its names from one of --list FILE, --names-of DIR, --database FILE or NAME..."_s};
    const bool hasParts = arguments.Has(tableOption) && arguments.Has(fieldOption);
    const bool hasAPart = arguments.Has(tableOption) || arguments.Has(fieldOption);
    if (arguments.Has(databaseOption) ? !hasParts : hasAPart)
        throw UsageError{u"--database FILE, --table TABLE and --field FIELD go together"_s};
    return Creation(arguments, console).Run();
}

} // namespace

Command CreateCommand()
{
    return {
        u"create"_s,
        u"makes one folder for each name"_s,
        {u"--to DIR NAME..."_s, u"--to DIR --list FILE"_s, u"--to DIR --names-of DIR"_s,
         u"--to DIR --database FILE --table TABLE --field FIELD"_s},
        uR"(Makes one folder in DIR for each name. "\" in a name stands between nested folders; characters that no
folder name may hold become "_". What exists is left as it is; for a name that exists, a folder is made
that is called as the one before it, with (1) behind, as the window does. A list that can't be read, and a
name that can't be, leave everything unmade. The last line counts what was made; DIR itself, which is made
if it isn't there, isn't counted.)"_s,
        {{u"to"_s, u"DIR"_s, u"the folder to make them in"_s},
         {listOption, u"FILE"_s,
          u"names from a text file, one a line; lines that start with \";\" are\ncomments; - is standard input"_s},
         {namesOfOption, u"DIR"_s, u"the names of the files in a folder"_s},
         {databaseOption, u"FILE"_s, u"the values of one field of a database"_s},
         {tableOption, u"TABLE"_s, u"the table of that field"_s},
         {fieldOption, u"FIELD"_s, u"its name"_s},
         {removeExtension,
          {},
          u"what the window's \"Remove Ext\" does: a list file loses extensions of\nthree letters as it is "
          u"read, "
          "and each name loses its last four\ncharacters as its folder is made"_s},
         {shared::Null().name, {}, u"the names of --list end in NUL, and none is a comment"_s},
         shared::DryRun(),
         shared::Quiet()},
        {},
        uR"(tressel-cli create --to Projects --list names.txt
         makes a folder in Projects for each line of names.txt)"_s,
        Run};
}

} // namespace tressel
