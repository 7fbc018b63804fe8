// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "Arguments.h"
#include "Console.h"
#include "SafeName.h"
#include "Tally.h"
#include "commands/CommandFiles.h"
#include "machine/FileSystem.h"
#include "tools/rename/RenameFolder.h"
#include "tools/rename/RenamePlan.h"
#include "tools/rename/RenameRules.h"

#include <algorithm>
#include <array>
#include <functional>
#include <span>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

const QString changeCase = u"case"_s;
const QString changeExtension = u"extension"_s;
const QString replaceText = u"replace"_s;

const QString foldersOption = u"folders"_s;
const QString filesOption = u"files"_s;
const QString bothOption = u"both"_s;
const QString upperOption = u"upper"_s;
const QString lowerOption = u"lower"_s;
const QString firstLetter = u"first-letter"_s;
const QString everyWord = u"every-word"_s;
const QString fromOption = u"from"_s;
const QString toOption = u"to"_s;
const QString allOption = u"all"_s;

/// The new name of an entry.
using NewName = std::function<QString(const QString &name)>;

// What the arguments ask for.

/// Refuses options that say nothing to this way of renaming, and two of which each excludes the other.
void CheckOptions(const Arguments &arguments, const QString &act)
{
    const QStringList ofCase{upperOption, lowerOption, firstLetter, everyWord};
    const QStringList ofTexts{fromOption, toOption};
    const QStringList kinds{foldersOption, filesOption, bothOption};
    QStringList strange = act == changeCase ? ofTexts : ofCase;
    if (act != changeExtension)
        strange += allOption;
    else
        strange += {foldersOption, bothOption};
    for (const QString &option : std::as_const(strange)) {
        if (arguments.Has(option))
            throw UsageError{u"rename %1 takes no --%2"_s.arg(act, option)};
    }
    if (std::ranges::count_if(kinds, [&](const QString &kind) { return arguments.Has(kind); }) > 1)
        throw UsageError{u"--folders, --files and --both exclude each other"_s};
}

NewName CaseChange(const Arguments &arguments)
{
    if (arguments.Has(upperOption) && arguments.Has(lowerOption))
        throw UsageError{u"--upper and --lower exclude each other"_s};
    CaseRule rule;
    if (arguments.Has(upperOption))
        rule.letters = LetterCase::Upper;
    if (arguments.Has(lowerOption))
        rule.letters = LetterCase::Lower;
    rule.firstLetter = arguments.Has(firstLetter);
    rule.everyWord = arguments.Has(everyWord);
    if (rule.letters == LetterCase::Unchanged && !rule.firstLetter && !rule.everyWord)
        throw UsageError{u"rename case needs --upper, --lower, --first-letter or --every-word"_s};
    return [rule](const QString &name) { return CasedName(name, rule); };
}

/// The text of an option that becomes part of new names, or is compared with parts of them.
QString LegalText(const QString &option, const QString &text)
{
    if (HasIllegalCharacter(text))
        throw UsageError{u"--%1 may hold none of / \\ : * ? \" < > |"_s.arg(option)};
    return text;
}

QString Extension(const Arguments &arguments, const QString &option)
{
    const QString text = arguments.Need(option);
    if (text.isEmpty())
        throw UsageError{u"--%1 needs an extension"_s.arg(option)};
    return LegalText(option, ReducedExtension(text));
}

NewName ExtensionChange(const Arguments &arguments)
{
    if (arguments.Has(allOption) == (arguments.Has(fromOption) || arguments.Has(toOption)))
        throw UsageError{u"rename extension needs either --from EXT and --to EXT, or --all EXT"_s};
    if (arguments.Has(allOption)) {
        return
            [to = Extension(arguments, allOption)](const QString &name) { return WithExtension(name, to); };
    }
    const QString from = Extension(arguments, fromOption);
    const QString to = Extension(arguments, toOption);
    return
        [from, to](const QString &name) { return HasExtension(name, from) ? WithExtension(name, to) : name; };
}

NewName Replacement(const Arguments &arguments)
{
    const QString from = arguments.Need(fromOption);
    if (from.isEmpty())
        throw UsageError{u"--from needs a text to look for"_s};
    const QString to = LegalText(toOption, arguments.Need(toOption));
    return [from, to](const QString &name) { return ReplacedName(name, from, to); };
}

NewName ChangeOf(const Arguments &arguments, const QString &act)
{
    CheckOptions(arguments, act);
    if (act == changeCase)
        return CaseChange(arguments);
    return act == changeExtension ? ExtensionChange(arguments) : Replacement(arguments);
}

QStringList Wanted(const Arguments &arguments, const RenameFolder &folder)
{
    if (arguments.Has(foldersOption))
        return folder.Folders();
    return arguments.Has(bothOption) ? folder.All() : folder.Files();
}

QString ReasonOf(const RefusedName &refused)
{
    const QString name = SafeName(refused.change.to);
    switch (refused.problem) {
    case NameProblem::Empty:
        return u"Nothing would be left of its name"_s;
    case NameProblem::Dots:
        return u"Its name would be %1, which stands for a folder"_s.arg(name);
    case NameProblem::TooLong:
        return u"Its name would be longer than 255 bytes"_s;
    case NameProblem::HasSeparator:
        return u"Its name would be %1, which leads to another folder"_s.arg(name);
    case NameProblem::NotText:
        return u"Its name would hold half a character"_s;
    case NameProblem::Taken:
        return u"Its name would be %1, which is there already"_s.arg(SafeName(refused.other));
    case NameProblem::Meets:
        return u"Its name would be %1, as that of %2"_s.arg(name, SafeName(refused.other));
    }
    return {};
}

/// One run over a folder: thought through as a whole, and then done.
class Renaming {
public:
    Renaming(const Arguments &theArguments, Console &toConsole)
        : arguments(theArguments)
        , console(toConsole)
        , newName(ChangeOf(theArguments, theArguments.Operands().at(0)))
        , path(toConsole.Path(theArguments.Operands().at(1)))
        , tally(toConsole)
    {
    }

    int Run()
    {
        try {
            RenameFolder folder(console.machine.files, path);
            if (!MayBeDone(folder)) {
                console.FailAs(u"nothing was renamed"_s);
                return SomethingFailed;
            }
            if (arguments.Has(shared::DryRun()))
                return console.Conclude([this] { TellChanges(); }, [] {});
            return console.Conclude([&] { RenameAll(folder); }, [this] { TellCount(); });
        } catch (const Failure &failure) {
            console.Fail(path, failure);
            return SomethingFailed;
        }
    }

private:
    QList<NameChange> WantedChanges(const RenameFolder &folder) const;
    bool MayBeDone(RenameFolder &folder);
    void TellChanges();
    /// What a step of the plan is on the disc.
    struct Paths {
        QString from;
        QString to;
    };
    void PutPaths(const RenameFolder &folder, qsizetype first, std::span<Paths> paths) const;
    void RenameAll(RenameFolder &folder);
    void TellSteps(qsizetype done);
    void TellCount();

    const Arguments &arguments;
    Console &console;
    const NewName newName;
    const QString path;
    Tally tally;
    RenamePlan plan; ///< names that stay left out
};

QList<NameChange> Renaming::WantedChanges(const RenameFolder &folder) const
{
    const QStringList wanted = Wanted(arguments, folder);
    QList<NameChange> changes;
    changes.reserve(wanted.size());
    for (const QString &name : wanted) {
        QString changed = newName(name);
        if (changed != name)
            changes.append({name, std::move(changed)});
    }
    return changes;
}

bool Renaming::MayBeDone(RenameFolder &folder)
{
    plan = PlanRenames(folder.All(), WantedChanges(folder),
                       {console.machine.files.Separator(), folder.TellsCaseApart()});
    for (const RefusedName &refused : std::as_const(plan.refused))
        console.Fail(folder.PathOf(refused.change.from), ReasonOf(refused));
    return plan.refused.isEmpty();
}

void Renaming::TellChanges()
{
    for (const NameChange &change : std::as_const(plan.changes)) {
        if (console.EndsInNul()) {
            console.Line(change.from);
            console.Line(change.to);
        } else {
            console.Line(console.Shown(change.from) + u" -> "_s + console.Shown(change.to));
        }
        console.BetweenSteps();
    }
    console.Aside(u"would have renamed %1"_s.arg(plan.changes.size()));
}

/// Those of the steps from one on, as many as there is room for.
void Renaming::PutPaths(const RenameFolder &folder, qsizetype first, std::span<Paths> paths) const
{
    for (auto step = plan.steps.cbegin() + first; Paths & each : paths) {
        if (step == plan.steps.cend())
            return;
        folder.PutPath(each.from, plan.From(*step));
        folder.PutPath(each.to, plan.To(*step));
        ++step;
    }
}

void Renaming::RenameAll(RenameFolder &folder)
{
    tally.Started(plan.changes.size());
    // Paths are put together several at once: between two calls of the system, names are slow to come from
    // memory.
    std::array<Paths, 64> several;
    bool isOneAside = false;
    for (qsizetype done = 0; done < plan.steps.size(); ++done) {
        const RenameStep &step = plan.steps.at(done);
        const size_t place = static_cast<size_t>(done) % several.size();
        if (place == 0)
            PutPaths(folder, done, several);
        const auto &[from, to] = several.at(place);
        // Nothing stops a run while a name waits.
        if (!isOneAside)
            tally.Next(from);
        try {
            console.machine.files.Rename(from, to);
        } catch (const Failure &failure) {
            tally.Failed(from, failure);
            TellSteps(done);
            return;
        }
        if (step.way != RenameStep::Aside)
            tally.Did(Outcome::Renamed, to);
        if (step.way != RenameStep::Whole)
            isOneAside = step.way == RenameStep::Aside;
    }
}

/// Of a run that failed: what every name is by now.
void Renaming::TellSteps(qsizetype done)
{
    for (qsizetype index = 0; index < plan.steps.size(); ++index) {
        const RenameStep &step = plan.steps.at(index);
        console.FailAs((index < done ? u"renamed %1 -> %2"_s : u"not renamed %1 -> %2"_s)
                           .arg(SafeName(plan.From(step)), SafeName(plan.To(step))));
    }
}

void Renaming::TellCount()
{
    const qint64 renamed = tally.Count(Outcome::Renamed);
    console.Count(u"renamed %1, not renamed %2"_s.arg(renamed).arg(plan.changes.size() - renamed));
}

int Run(const Arguments &arguments, Console &console)
{
    const QStringList acts{changeCase, changeExtension, replaceText};
    const QStringList &operands = arguments.Operands();
    if (operands.isEmpty() || !acts.contains(operands.first()))
        throw UsageError{u"rename needs one of case, extension or replace"_s};
    if (operands.size() != 2 || operands.last().isEmpty())
        throw UsageError{u"rename %1 needs one DIR"_s.arg(operands.first())};
    return Renaming(arguments, console).Run();
}

} // namespace

Command RenameCommand()
{
    return {
        u"rename"_s,
        u"renames what stands in a folder by case, extension or a piece of text"_s,
        {u"case DIR --upper|--lower|--first-letter|--every-word"_s, u"extension DIR --from EXT --to EXT"_s,
         u"extension DIR --all EXT"_s, u"replace DIR --from TEXT --to TEXT"_s},
        uR"(Changes the names of the files directly in DIR. A link is renamed itself; one that leads to a folder
counts as a folder.

"case" makes all letters upper or lower case, then the first one a capital, and then the first one of
each word a capital and all others small; the extension is part of the name. "extension" takes what
stands behind the first "." for the extension; a file without one gets one. "replace" puts one text in
place of another wherever it stands, upper and lower case told apart.

Nothing is renamed if two names would meet, a name is taken, or one can't be. Nothing is ever
overwritten. A failure stops the run, which then says what was renamed and what wasn't.)"_s,
        {{filesOption, {}, u"rename files, as without it"_s},
         {foldersOption, {}, u"rename folders; not with \"extension\""_s},
         {bothOption, {}, u"rename folders and files; not with \"extension\""_s},
         {upperOption, {}, u"upper case"_s},
         {lowerOption, {}, u"lower case"_s},
         {firstLetter, {}, u"a capital at the start of the name"_s},
         {everyWord, {}, u"a capital at the start of each word, and small letters else"_s},
         {fromOption, u"TEXT"_s,
          u"what to replace, or the extension to change in any case;\n\"txt\", \".txt\" and "
          u"\"*.txt\" are the same"_s},
         {toOption, u"TEXT"_s, u"what to put in its place; may be empty with \"replace\""_s},
         {allOption, u"EXT"_s, u"the extension that all files get"_s},
         shared::DryRun(),
         {shared::Null().name, {}, u"with --dry-run: old and new names that each end in NUL"_s},
         shared::Quiet()},
        {changeCase, changeExtension, replaceText},
        u"tressel-cli rename replace Music --from _ --to \" \"\n         turns my_song.mp3 in Music into "
        u"\"my "
        u"song.mp3\""_s,
        Run};
}

} // namespace tressel
