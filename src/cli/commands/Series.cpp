// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "Arguments.h"
#include "Console.h"
#include "FolderMaker.h"
#include "Names.h"
#include "RemovalPlan.h"
#include "SafeName.h"
#include "Tally.h"
#include "base/Numbers.h"
#include "commands/CommandFiles.h"
#include "machine/Paths.h"
#include "tools/numbered/NumberedTarget.h"

#include <algorithm>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

const QString inOption = u"in"_s;
const QString baseOption = u"base"_s;
const QString subOption = u"sub"_s;
const QString numberSub = u"number-sub"_s;
const QString fromOption = u"from"_s;
const QString toOption = u"to"_s;
const QString digitsOption = u"digits"_s;
const QString automatic = u"auto"_s;

const QString make = u"make"_s;
const QString remove = u"delete"_s;

/// A whole number from 0 on that fits into 32 bits.
std::int32_t NumberOf(const Arguments &arguments, const QString &option)
{
    const QString text = arguments.Need(option);
    const auto isDigit = [](QChar character) { return character >= u'0' && character <= u'9'; };
    try {
        if (std::ranges::all_of(text, isDigit))
            return ToInt32(text);
    } catch (const Failure &) {
        // Told below.
    }
    throw UsageError{u"--%1 takes a whole number from 0 on, not \"%2\""_s.arg(option, SafeName(text))};
}

/// One run over a series.
class Series {
public:
    Series(const Arguments &arguments, Console &toConsole)
        : console(toConsole)
        , files(toConsole.machine.files)
        , run(arguments.Operands().first() == make ? NumberedRun::Make : NumberedRun::Delete)
        , first(NumberOf(arguments, fromOption))
        , last(NumberOf(arguments, toOption))
        , naming(NamingOf(arguments, toConsole))
        , isDryRun(arguments.Has(shared::DryRun()))
        , tally(toConsole)
    {
        if (first > last)
            throw UsageError{u"--from %1 is above --to %2"_s.arg(first).arg(last)};
    }

    int Run()
    {
        if (!MayBeDone())
            return SomethingFailed;
        return console.Conclude([this] { ForEachTarget(); }, [this] { TellCount(); });
    }

private:
    static NumberedNaming NamingOf(const Arguments &arguments, const Console &console);
    bool MayBeDone();
    std::optional<QString> WhyNot(const QString &text) const;
    void ForEachTarget();
    QString CountSentence() const;
    void TellCount();

    Console &console;
    FileSystem &files;
    const NumberedRun run;
    const std::int32_t first;
    const std::int32_t last;
    const NumberedNaming naming;
    const bool isDryRun;
    Tally tally;
};

NumberedNaming Series::NamingOf(const Arguments &arguments, const Console &console)
{
    NumberedNaming naming;
    naming.folder = console.Path(arguments.Need(inOption));
    naming.base = arguments.Need(baseOption);
    naming.sub = arguments.Value(subOption).value_or(QString());
    naming.numbersSub = arguments.Has(numberSub);
    if (naming.numbersSub && naming.sub.isEmpty())
        throw UsageError{u"--number-sub needs a --sub TEXT"_s};
    naming.toLength = arguments.Need(toOption).size();
    const QString digits = arguments.Value(digitsOption).value_or(automatic);
    naming.manualPadding = digits != automatic;
    if (naming.manualPadding)
        naming.digit = digits.toInt() - 1;
    constexpr qsizetype mostAutomaticDigits = 4;
    if (!naming.manualPadding && naming.toLength > mostAutomaticDigits)
        throw UsageError{u"--digits auto goes up to four digits, so --to %1 needs another --digits"_s.arg(
            SafeName(arguments.Need(toOption)))};
    return naming;
}

bool Series::MayBeDone()
{
    if (!FolderExists(files, naming.folder))
        console.Fail(naming.folder, u"It is no folder for a series to stand in"_s);
    for (const QString &text : {naming.base, naming.sub}) {
        if (const auto reason = WhyNot(text))
            console.Fail(text, *reason);
    }
    return !console.HasFailed();
}

std::optional<QString> Series::WhyNot(const QString &text) const
{
    for (const QString &level : EntryToPath(files, text).split(files.Separator())) {
        if (level == u".."_s)
            return u"It leads out of the folder of the series"_s;
        if (const auto reason = WhyNoName(level))
            return reason;
    }
    return {};
}

void Series::ForEachTarget()
{
    const auto hold = files.Hold(naming.folder);
    FolderMaker maker(console, tally, isDryRun);
    RemovalPlan plan(console, tally);
    NumberedSeries series(files, naming, first, last, run);
    tally.Started(series.Count());
    while (const auto target = series.Next()) {
        tally.Next(*target);
        if (run == NumberedRun::Make) {
            if (maker.Make(*target) == PathEnd::StoodThere)
                tally.Did(Outcome::AlreadyThere, *target);
        } else if (isDryRun) {
            plan.Remove(*target);
        } else {
            RemoveFolderPathTelling(files, *target, tally);
        }
    }
}

QString Series::CountSentence() const
{
    if (run == NumberedRun::Make)
        return u"made %1, already there %2, failed %3"_s.arg(tally.Count(Outcome::Made))
            .arg(tally.Count(Outcome::AlreadyThere))
            .arg(tally.Failures());
    return u"removed %1, kept %2, not there %3, failed %4"_s.arg(tally.Count(Outcome::Removed))
        .arg(tally.Count(Outcome::Kept))
        .arg(tally.Count(Outcome::NotThere))
        .arg(tally.Failures());
}

void Series::TellCount()
{
    if (isDryRun)
        console.Aside(u"would have "_s + CountSentence());
    else
        console.Count(CountSentence());
}

int Run(const Arguments &arguments, Console &console)
{
    const QStringList &acts = arguments.Operands();
    if (acts != QStringList{make} && acts != QStringList{remove})
        throw UsageError{u"series needs one of make or delete"_s};
    return Series(arguments, console).Run();
}

} // namespace

Command SeriesCommand()
{
    return {
        u"series"_s,
        u"makes or deletes folders whose names end in a running number"_s,
        {u"make|delete --in DIR --base TEXT --from N --to N"_s},
        uR"(Makes, or deletes, the folders TEXT and a running number in DIR, such as Disk001 to Disk120. "\" in a
text stands between nested folders. What exists is left alone.

"delete" goes for the folders that "make" makes with the same options. Only empty folders go, and
never a file. Each folder on the way is tried too, from the top down: an empty folder above the series
goes as well, DIR itself and those above it included, and a folder of which only the sub folder was in
the way goes the next time. With --number-sub and --digits auto it looks for the sub folders in DIR
itself, unless DIR is the root.

The last line says what was made, or removed, kept because it isn't empty, and not there.)"_s,
        {{inOption, u"DIR"_s, u"the folder of the series, which must be there"_s},
         {baseOption, u"TEXT"_s, u"the text ahead of the number; may be empty"_s},
         {fromOption, u"N"_s, u"the first number, from 0 on"_s},
         {toOption, u"N"_s, u"the last number"_s},
         {subOption, u"TEXT"_s, u"a sub folder in each folder"_s},
         {numberSub, {}, u"number the sub folders, and put them all into one folder TEXT"_s},
         {digitsOption,
          u"D"_s,
          u"the least digits of a number, 1 to 4; \"auto\", as without it, takes as\nmany as --to has as it "
          u"is "
          "written, up to four: --to 012 gives 001 to\n012. With 1, the number 0 is left out of its name"_s,
          {automatic, u"1"_s, u"2"_s, u"3"_s, u"4"_s}},
         shared::DryRun(),
         shared::Null(),
         shared::Quiet()},
        {make, remove},
        u"tressel-cli series make --in Archive --base Disk --from 1 --to 120\n         makes Archive/Disk001 "
        u"to "
        "Archive/Disk120"_s,
        Run};
}

} // namespace tressel
