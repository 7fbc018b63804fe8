// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "Arguments.h"
#include "Checksums.h"
#include "Console.h"
#include "Names.h"
#include "SafeName.h"
#include "base/Steps.h"
#include "commands/CommandFiles.h"
#include "machine/CopiedAtOnce.h"
#include "machine/Paths.h"
#include "tools/splitter/SplitRules.h"

#include <QCryptographicHash>
#include <QRegularExpression>

#include <algorithm>
#include <limits>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

const QString sizeOption = u"size"_s;
const QString countOption = u"count"_s;
const QString batchOption = u"batch"_s;
const QString checksumsOption = u"checksums"_s;

/// A whole number from 1 on; nothing for another text, or for one beyond 64 bits.
std::optional<qint64> WholeNumber(const QString &text)
{
    static const QRegularExpression digits(u"^[0-9]+$"_s);
    bool fits = false;
    const qint64 number = text.toLongLong(&fits);
    if (!digits.match(text).hasMatch() || !fits || number < 1)
        return {};
    return number;
}

/// "5K", "100M" or "2G" in bytes; a number alone is bytes.
qint64 SizeOf(const QString &text)
{
    static const QString units = u"KMG"_s;
    constexpr int bitsOfUnit = 10;
    const qsizetype unit = text.isEmpty() ? -1 : units.indexOf(text.back().toUpper());
    const auto number = WholeNumber(unit < 0 ? text : text.chopped(1));
    const int bits = bitsOfUnit * static_cast<int>(unit + 1);
    if (!number || *number > std::numeric_limits<qint64>::max() >> bits)
        throw UsageError{
            u"--size takes a number of bytes from 1 on, or one with K, M or G behind it, not \"%1\""_s.arg(
                SafeName(text))};
    return *number << bits;
}

qint64 CountOf(const QString &text)
{
    const auto number = WholeNumber(text);
    if (!number)
        throw UsageError{u"--count takes a whole number from 1 on, not \"%1\""_s.arg(SafeName(text))};
    return *number;
}

/// One cut: looked at as a whole first, then made part by part.
class Split {
public:
    Split(const Arguments &arguments, Console &toConsole)
        : console(toConsole)
        , files(toConsole.machine.files)
        , path(toConsole.Path(arguments.Operands().first(), Links::Keep))
        , name(FileNameOf(files, path))
        , hasBatch(arguments.Has(batchOption))
        , hasChecksums(arguments.Has(checksumsOption))
        , isDryRun(arguments.Has(shared::DryRun()))
    {
        if (const auto size = arguments.Value(sizeOption))
            chunk = SizeOf(*size);
        if (const auto count = arguments.Value(countOption))
            parts = CountOf(*count);
    }

    int Run()
    {
        try {
            if (!IsPlanned() || !MayBeDone())
                return SomethingFailed;
        } catch (const Failure &failure) {
            console.Fail(FolderOf(files, path), failure);
            return SomethingFailed;
        }
        return console.Conclude([this] { isDryRun ? TellPlan() : CutAll(); }, [this] { Close(); });
    }

private:
    bool IsPlanned();
    bool MayBeDone();
    void RefuseWhatIsThere();
    QStringList OtherFiles() const;
    void TellPlan();
    void CutAll();
    void WriteParts();
    void WritePart(OpenFile &source, qint64 number);
    void CopyPart(OpenFile &source, qint64 number);
    qint64 CopyPiece(OpenFile &source, qint64 number, qint64 maximum, QCryptographicHash &hash);
    void WriteDownLast();
    void WriteOther(const QString &file, const QByteArray &bytes);
    void Close();
    void TakeBack();
    qint64 LengthOf(qint64 number) const { return number < parts ? chunk : length - (parts - 1) * chunk; }

    Console &console;
    FileSystem &files;
    const QString path;
    const QString name;
    const bool hasBatch;
    const bool hasChecksums;
    const bool isDryRun;

    qint64 length = 0;
    qint64 chunk = 0; ///< bytes of each part but the last
    qint64 parts = 0;

    QString at; ///< what is being worked on, for whatever fails
    std::unique_ptr<OpenFile> part; ///< the one that is being written
    std::unique_ptr<OpenFile> last; ///< the one before it, on its way down to the medium
    QString lastPath;
    QCryptographicHash whole{QCryptographicHash::Sha256};
    QByteArray checksums; ///< of the parts so far
    QByteArray room{copiedAtOnce, Qt::Uninitialized};
    qint64 copied = 0;
    qint64 madeParts = 0;
    QStringList madeOthers;
    bool isDone = false;
};

/// Works out the cut. False if there is nothing that can be cut so, which has been told.
bool Split::IsPlanned()
{
    const auto status = files.Status(path, Links::Follow);
    if (!status)
        console.Fail(path, Failure(FailureNumber::FileNotFound));
    else if (status->kind != EntryKind::File)
        console.Fail(path, u"It is no regular file"_s);
    if (console.HasFailed())
        return false;
    length = status->length;
    if (parts > length) {
        console.Fail(path, u"Its %1 bytes can't be cut into %2 parts"_s.arg(length).arg(parts));
        return false;
    }
    if (chunk == 0)
        chunk = ExactChunkOf(length, parts);
    else
        parts = PartsOf(length, chunk);
    return true;
}

bool Split::MayBeDone()
{
    RefuseWhatIsThere();
    for (const QString &file : QStringList{PartName(name, std::max<qint64>(parts, 1))} + OtherFiles()) {
        if (const auto reason = WhyNoName(file))
            console.Fail(file, *reason);
    }
    const QString folder = FolderOf(files, path);
    const qint64 room = files.FreeSpace(folder);
    if (room < length)
        console.Fail(folder, u"There is room for %1 bytes, and the parts take %2"_s.arg(room).arg(length));
    return !console.HasFailed();
}

/// Parts with higher numbers count too: joining would take them for parts of this cut.
void Split::RefuseWhatIsThere()
{
    const QStringList others = OtherFiles();
    for (const FolderEntry &entry : files.List(FolderOf(files, path))) {
        const QString whole = JoinPath(files, FolderOf(files, path), entry.name);
        const qint64 number = PartNumberOf(name, entry.name);
        if (number > parts)
            console.Fail(whole, u"It would be taken for a part of this cut"_s);
        else if (number > 0 || others.contains(entry.name))
            console.Fail(whole, u"It is there already"_s);
    }
}

QStringList Split::OtherFiles() const
{
    QStringList others;
    if (hasBatch)
        others += BatchName(name);
    if (hasChecksums)
        others += ChecksumsName(name);
    return others;
}

void Split::TellPlan()
{
    for (qint64 number = 1; number <= parts; ++number) {
        console.BetweenSteps();
        console.Line(u"make "_s + console.Shown(PartName(path, number)));
    }
    for (const QString &file : OtherFiles())
        console.Line(u"make "_s + console.Shown(JoinPath(files, FolderOf(files, path), file)));
}

void Split::CutAll()
{
    try {
        WriteParts();
        if (hasBatch)
            WriteOther(BatchName(path), JoinBatchBytes(name, parts, false));
        if (hasChecksums)
            WriteOther(ChecksumsName(path), ChecksumLine(name, whole.result()) + checksums);
        isDone = true;
    } catch (const Failure &failure) {
        console.Fail(at, failure);
    }
}

void Split::WriteParts()
{
    at = path;
    const auto source = files.Open(path, OpenFor::Reading);
    for (qint64 number = 1; number <= parts; ++number)
        WritePart(*source, number);
    WriteDownLast();
    at = path;
    if (source->Length() != length)
        throw Failure(FailureNumber::DeviceIoError, u"It changed while it was read"_s);
}

void Split::WritePart(OpenFile &source, qint64 number)
{
    console.BetweenSteps();
    at = PartName(path, number);
    part = files.Open(at, OpenFor::Creating);
    ++madeParts;
    CopyPart(source, number);
    // Each part is waited for when the next one is written, so that the medium is never without work.
    WriteDownLast();
    last = std::move(part);
    lastPath = PartName(path, number);
}

void Split::CopyPart(OpenFile &source, qint64 number)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    for (qint64 left = LengthOf(number); left > 0;) {
        // Checksums need to see the bytes.
        qint64 moved = hasChecksums ? 0 : part->TakeFrom(source, std::min(left, takenAtOnce));
        if (moved == 0)
            moved = CopyPiece(source, number, std::min(left, copiedAtOnce), hash);
        left -= moved;
        copied += moved;
        console.ShowProgress(static_cast<double>(copied), static_cast<double>(length));
        console.BetweenSteps();
    }
    if (hasChecksums)
        checksums += ChecksumLine(PartName(name, number), hash.result());
}

/// By reading and writing. How many bytes it were.
qint64 Split::CopyPiece(OpenFile &source, qint64 number, qint64 maximum, QCryptographicHash &hash)
{
    at = path;
    const qint64 got = source.ReadInto({room.data(), static_cast<size_t>(maximum)});
    if (got == 0)
        throw Failure(FailureNumber::DeviceIoError, u"It changed while it was read"_s);
    const auto bytes = QByteArray::fromRawData(room.data(), got);
    at = PartName(path, number);
    part->Write(bytes);
    if (hasChecksums) {
        hash.addData(bytes);
        whole.addData(bytes);
    }
    return got;
}

void Split::WriteDownLast()
{
    if (!last)
        return;
    at = lastPath;
    last->Flush();
    last->Close();
    last.reset();
}

void Split::WriteOther(const QString &file, const QByteArray &bytes)
{
    at = file;
    const auto output = files.Replace(file, IfThere::Refuse);
    output->Write(bytes);
    output->Commit();
    madeOthers += file;
}

void Split::Close()
{
    if (!isDone && !isDryRun)
        TakeBack();
    const qint64 counted = isDryRun ? parts : madeParts;
    const qsizetype others = isDryRun ? OtherFiles().size() : madeOthers.size();
    QString sentence = u"made %1 parts"_s.arg(counted);
    if (hasBatch || hasChecksums)
        sentence += u", %1 other files"_s.arg(others);
    if (isDryRun)
        console.Aside(u"would have "_s + sentence);
    else
        console.Count(sentence);
}

/// Removes what this run has made: a cut is there as a whole or not at all.
void Split::TakeBack()
{
    part.reset();
    last.reset();
    const auto remove = [this](const QString &file) {
        try {
            files.RemoveFile(file);
            return true;
        } catch (const Failure &failure) {
            console.Fail(file, failure);
            return false;
        }
    };
    qint64 left = 0;
    for (qint64 number = 1; number <= madeParts; ++number)
        left += remove(PartName(path, number)) ? 0 : 1;
    madeParts = left;
    madeOthers.removeIf(remove);
}

int Run(const Arguments &arguments, Console &console)
{
    if (arguments.Operands().size() != 1 || arguments.Operands().first().isEmpty())
        throw UsageError{u"split needs one FILE"_s};
    if (arguments.Value(sizeOption).has_value() == arguments.Value(countOption).has_value())
        throw UsageError{u"split needs one of --size and --count"_s};
    return Split(arguments, console).Run();
}

} // namespace

Command SplitCommand()
{
    return {
        u"split"_s,
        u"cuts a file into numbered parts"_s,
        {u"FILE (--size SIZE | --count N) [--batch] [--checksums]"_s},
        uR"(Cuts FILE into the parts FILE.1, FILE.2 and so on, beside it. FILE itself stays as it is. The parts put
on end in the order of their numbers are FILE again: "join" does so, and "cat FILE.1 FILE.2 ..." too.

A part, or another file that would be made, that is there already is left alone, and then nothing is
cut. If anything fails on the way, or the run is stopped, the parts that it made go again.

The last line says what was made.)"_s,
        {{sizeOption, u"SIZE"_s, u"the bytes of each part but the last; 5K, 100M and 2G are binary units"_s},
         {countOption, u"N"_s, u"cut into exactly N parts, the last of which may differ in size"_s},
         {batchOption, {}, u"write FILE.bat too, which joins the parts on systems that have COPY"_s},
         {checksumsOption,
          {},
          u"write FILE.sha256 too, with the SHA-256 checksums of FILE and of each\npart, for \"join\" and "
          u"for "
          u"\"sha256sum -c\""_s},
         shared::DryRun(),
         shared::Null(),
         shared::Quiet()},
        {},
        u"tressel-cli split film.mkv --size 2G --checksums\n         makes film.mkv.1, film.mkv.2 ... and "
        u"film.mkv.sha256"_s,
        Run};
}

} // namespace tressel
