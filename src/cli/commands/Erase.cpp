// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "Arguments.h"
#include "Console.h"
#include "SafeName.h"
#include "Tally.h"
#include "base/Numbers.h"
#include "commands/CommandFiles.h"
#include "machine/Paths.h"
#include "tools/erase/MediumErasure.h"

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

const QString passesOption = u"passes"_s;
const QString keepName = u"keep-name"_s;
const QString allNames = u"all-names"_s;
const QString yes = u"yes"_s;

int PassesOf(const Arguments &arguments)
{
    constexpr int most = 35;
    const QString text = arguments.Value(passesOption).value_or(u"1"_s);
    bool isNumber = false;
    const int passes = text.toInt(&isNumber);
    if (!isNumber || passes < 1 || passes > most)
        throw UsageError{u"--passes takes a number from 1 to %1, not \"%2\""_s.arg(most).arg(SafeName(text))};
    return passes;
}

QString Sentence(Overwritten outcome)
{
    switch (outcome) {
    case Overwritten::InPlace:
        return u"overwritten in place"_s;
    case Overwritten::Elsewhere:
        return u"overwritten, but the file system wrote elsewhere: the old contents may still be on the medium"_s;
    case Overwritten::Journalled:
        return u"overwritten, but the file system keeps a journal of contents too: the old ones may still be in it"_s;
    case Overwritten::Unknown:
        return u"overwritten; whether in place the file system doesn't tell"_s;
    }
    return {};
}

/// One run over the files of a command line.
class Erasure {
public:
    Erasure(const Arguments &arguments, Console &toConsole)
        : console(toConsole)
        , files(toConsole.machine.files)
        , passes(PassesOf(arguments))
        , takesAllNames(arguments.Has(allNames))
        , isDryRun(arguments.Has(shared::DryRun()))
        , mayGoAhead(arguments.Has(yes) || isDryRun)
        , keepsName(arguments.Has(keepName))
        , tally(toConsole)
    {
        for (const QString &operand : arguments.Operands())
            Add(console.Path(operand, Links::Keep));
    }

    int Run()
    {
        if (console.HasFailed() || !MayGoAhead())
            return SomethingFailed;
        return console.Conclude([this] { EraseAll(); }, [this] { TellCount(); });
    }

private:
    void Add(const QString &path);
    bool MayGoAhead();
    void EraseAll();
    void EraseOne(const QString &path);
    void TellCount();

    Console &console;
    FileSystem &files;
    const int passes;
    const bool takesAllNames;
    const bool isDryRun;
    const bool mayGoAhead;
    const bool keepsName;
    Tally tally;
    QStringList paths;
    qint64 bytesInAll = 0;
    qint64 bytesDone = 0;
};

void Erasure::Add(const QString &path)
{
    if (const auto reason = MediumErasure::WhyNot(files, path, takesAllNames)) {
        console.Fail(path, *reason);
        return;
    }
    if (paths.contains(path)) {
        console.Fail(path, u"It is named twice"_s);
        return;
    }
    paths += path;
    // Each pass, and the reading back of the last.
    if (const auto status = files.Status(path, Links::Keep))
        bytesInAll += status->length * (passes + 1);
}

bool Erasure::MayGoAhead()
{
    if (mayGoAhead)
        return true;
    QString question;
    for (const QString &path : paths)
        question += u"  "_s + SafeName(path) + u'\n';
    question += u"Erase %1 for good? There is no way back. Type \"yes\": "_s.arg(
        paths.size() == 1 ? u"this file"_s : u"these %1 files"_s.arg(paths.size()));
    const auto answer = console.Ask(question);
    if (answer == u"yes"_s)
        return true;
    console.FailAs(answer ? u"nothing was erased"_s
                          : u"nothing was erased: without a terminal to ask at, it takes --yes"_s);
    return false;
}

void Erasure::EraseAll()
{
    for (const QString &path : paths) {
        console.BetweenSteps();
        try {
            EraseOne(path);
        } catch (const Failure &failure) {
            tally.Failed(path, failure);
        }
    }
}

void Erasure::EraseOne(const QString &path)
{
    if (isDryRun) {
        console.Line(u"erase "_s + console.Shown(path));
        tally.Did(Outcome::Removed, path);
        return;
    }
    const auto hold = files.Hold(FolderOf(files, path));
    // Looked at again: between the plan and its turn the file may have become another.
    if (const auto reason = MediumErasure::WhyNot(files, path, takesAllNames)) {
        console.Fail(path, *reason);
        return;
    }
    MediumErasure erasure(files, passes, keepsName, [this](qint64 bytes) {
        bytesDone += bytes;
        console.ShowProgress(static_cast<double>(bytesDone), static_cast<double>(bytesInAll));
        console.BetweenSteps();
    });
    try {
        const Overwritten outcome = erasure.Erase(path);
        console.Line(console.Shown(path) + u": "_s + Sentence(outcome));
        tally.Did(Outcome::Removed, path);
    } catch (const Stopped &) {
        console.Fail(path, u"It is overwritten in part"_s);
        throw;
    } catch (const Failure &failure) {
        if (!erasure.HasBegun())
            throw;
        throw Failure(failure.number, failure.description + u" (it is overwritten in part)"_s);
    }
}

void Erasure::TellCount()
{
    const QString sentence =
        u"erased %1, failed %2"_s.arg(tally.Count(Outcome::Removed)).arg(tally.Failures());
    if (isDryRun)
        console.Aside(u"would have "_s + sentence);
    else
        console.Count(sentence);
}

int Run(const Arguments &arguments, Console &console)
{
    if (arguments.Operands().isEmpty())
        throw UsageError{u"erase needs the files to erase"_s};
    return Erasure(arguments, console).Run();
}

} // namespace

Command EraseCommand()
{
    return {
        u"erase"_s,
        u"overwrites files and removes them"_s,
        {u"FILE..."_s},
        uR"(Overwrites each file with random bytes, has them written down to the medium, reads the last pass back,
takes the file's name away, cuts it to nothing and removes it. Links, folders and all else that is no
regular file are refused; all files are looked at before the first is touched.

No program can promise that nothing remains. Flash memory and cards write elsewhere what is
overwritten, and snapshots, journals, backups and copies that other programs made know nothing of
this one. For each file it is said whether the file system wrote where the old contents stood. What
helps for certain is a medium that is encrypted as a whole.)"_s,
        {{passesOption, u"N"_s, u"overwrite N times, 1 to 35; 1 without it, which is enough on a disk"_s},
         {keepName, {}, u"don't rename the file before it goes"_s},
         {allNames, {}, u"also a file that has other names (hard links): they stay, and are empty"_s},
         {yes, {}, u"don't ask; needed where there is no terminal to ask at"_s},
         shared::DryRun(),
         shared::Quiet()},
        {},
        u"tressel-cli erase --yes letter.odt\n         overwrites and removes letter.odt"_s,
        Run};
}

} // namespace tressel
