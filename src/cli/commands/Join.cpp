// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "Arguments.h"
#include "Checksums.h"
#include "Console.h"
#include "Names.h"
#include "base/Steps.h"
#include "commands/CommandFiles.h"
#include "machine/CopiedAtOnce.h"
#include "machine/Paths.h"
#include "tools/splitter/SplitRules.h"

#include <QCryptographicHash>
#include <QMap>

#include <algorithm>
#include <numeric>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

const QString deleteOption = u"delete-parts"_s;

constexpr qint64 longestChecksums = 64 << 20;

/// One join: the parts are looked at as a whole first, then written beside the place of the file.
class Join {
public:
    Join(const Arguments &arguments, Console &toConsole)
        : console(toConsole)
        , files(toConsole.machine.files)
        , path(toConsole.Path(arguments.Operands().first(), Links::Keep))
        , name(FileNameOf(files, path))
        , deletesParts(arguments.Has(deleteOption))
        , mayReplace(arguments.Has(shared::Force()))
        , isDryRun(arguments.Has(shared::DryRun()))
    {
    }

    int Run()
    {
        try {
            ReadChecksums();
            FindParts();
            if (!MayBeDone())
                return SomethingFailed;
        } catch (const Failure &failure) {
            console.Fail(FolderOf(files, path), failure);
            return SomethingFailed;
        }
        return console.Conclude([this] { isDryRun ? TellPlan() : JoinAll(); }, [this] { TellCount(); });
    }

private:
    void ReadChecksums();
    void FindParts();
    bool MayBeDone();
    void RefuseMissing();
    void RefuseSizes();
    void RefuseTarget();
    void TellPlan();
    void JoinAll();
    bool WriteAll(ReplacingFile &output);
    void WritePart(ReplacingFile &output, qint64 number, qint64 length);
    qint64 CopyPiece(ReplacingFile &output, OpenFile &part, qint64 number, QCryptographicHash &hash);
    bool Holds(const QString &file, const QCryptographicHash &hash) const;
    void DeleteParts();
    void DeleteBatch();
    void TellCount();

    Console &console;
    FileSystem &files;
    const QString path;
    const QString name;
    const bool deletesParts;
    const bool mayReplace;
    const bool isDryRun;

    QHash<QString, QByteArray> digests; ///< what the checksums say
    QMap<qint64, qint64> lengths; ///< the parts that there are, by their numbers
    qint64 total = 0; ///< bytes of all parts

    QString at; ///< what is being worked on, for whatever fails
    QCryptographicHash whole{QCryptographicHash::Sha256};
    QByteArray room{copiedAtOnce, Qt::Uninitialized};
    qint64 copied = 0;
    qint64 joined = 0;
    qint64 removed = 0;
};

void Join::ReadChecksums()
{
    const QString sums = ChecksumsName(path);
    if (WhyNoName(ChecksumsName(name)))
        return;
    try {
        digests = ChecksumsOf(files.Open(sums, OpenFor::Reading)->Read(longestChecksums));
        if (digests.isEmpty())
            console.Fail(sums, u"It holds no checksums"_s);
    } catch (const Failure &failure) {
        // A link that leads nowhere is there; a folder that isn't is told of where the parts are looked for.
        const bool isAbsent = failure.number == FailureNumber::PathNotFound
            || (failure.number == FailureNumber::FileNotFound && !files.Status(sums, Links::Keep));
        if (!isAbsent)
            console.Fail(sums, failure);
    }
}

void Join::FindParts()
{
    for (const FolderEntry &entry : files.List(FolderOf(files, path))) {
        const qint64 number = PartNumberOf(name, entry.name);
        if (number == 0)
            continue;
        const auto status = files.Status(PartName(path, number), Links::Follow);
        if (!status || status->kind != EntryKind::File)
            console.Fail(PartName(path, number), u"It is no regular file"_s);
        lengths.insert(number, status ? status->length : 0);
    }
    total = std::accumulate(lengths.cbegin(), lengths.cend(), qint64{0});
}

bool Join::MayBeDone()
{
    if (lengths.isEmpty()) {
        console.Fail(PartName(path, 1), Failure(FailureNumber::FileNotFound));
        return false;
    }
    RefuseMissing();
    if (!console.HasFailed())
        RefuseSizes();
    RefuseTarget();
    return !console.HasFailed();
}

/// Names every number that isn't there below the highest one that the folder or the checksums know.
void Join::RefuseMissing()
{
    qint64 highest = lengths.lastKey();
    for (auto digest = digests.cbegin(); digest != digests.cend(); ++digest)
        highest = std::max(highest, PartNumberOf(name, digest.key()));
    qint64 expected = 1;
    QStringList rows;
    const auto tellRow = [&](qint64 next) {
        if (next - 1 == expected)
            rows += QString::number(expected);
        else if (next > expected)
            rows += u"%1 to %2"_s.arg(expected).arg(next - 1);
    };
    for (auto part = lengths.cbegin(); part != lengths.cend(); ++part) {
        tellRow(part.key());
        expected = part.key() + 1;
    }
    tellRow(highest + 1);
    if (!rows.isEmpty())
        console.Fail(path, u"Its parts aren't all there; missing: %1"_s.arg(rows.join(u", "_s)));
}

void Join::RefuseSizes()
{
    if (const qint64 unfit = FirstUnfitPart(lengths.values()))
        console.Fail(PartName(path, unfit),
                     u"Its size of %1 bytes doesn't fit the other parts"_s.arg(lengths.value(unfit)));
}

void Join::RefuseTarget()
{
    const auto status = files.Status(path, Links::Follow);
    if (status && status->kind != EntryKind::File)
        console.Fail(path, u"It is no regular file"_s);
    else if (!mayReplace && files.Status(path, Links::Keep))
        console.Fail(path, u"It is there already; --force replaces it"_s);
    const QString folder = FolderOf(files, path);
    const qint64 room = files.FreeSpace(folder);
    if (room < total)
        console.Fail(folder, u"There is room for %1 bytes, and the file takes %2"_s.arg(room).arg(total));
}

void Join::TellPlan()
{
    const bool replaces = files.Status(path, Links::Keep).has_value();
    console.Line((replaces ? u"replace "_s : u"make "_s) + console.Shown(path));
    if (!deletesParts)
        return;
    for (auto part = lengths.cbegin(); part != lengths.cend(); ++part) {
        console.BetweenSteps();
        console.Line(u"delete "_s + console.Shown(PartName(path, part.key())));
    }
    if (FileExists(files, BatchName(path)))
        console.Line(u"delete "_s + console.Shown(BatchName(path)));
}

void Join::JoinAll()
{
    try {
        at = path;
        const auto output = files.Replace(path, mayReplace ? IfThere::Replace : IfThere::Refuse);
        if (!WriteAll(*output))
            return;
        at = path;
        output->Commit();
        joined = lengths.size();
    } catch (const Failure &failure) {
        console.Fail(at, failure);
        return;
    }
    if (deletesParts)
        DeleteParts();
}

/// False if a checksum doesn't hold, which has been told.
bool Join::WriteAll(ReplacingFile &output)
{
    for (auto part = lengths.cbegin(); part != lengths.cend(); ++part)
        WritePart(output, part.key(), part.value());
    if (!console.HasFailed() && !Holds(name, whole))
        console.Fail(path, u"The parts on end don't have its checksum"_s);
    return !console.HasFailed();
}

void Join::WritePart(ReplacingFile &output, qint64 number, qint64 length)
{
    const QString partPath = PartName(path, number);
    const QString partName = PartName(name, number);
    QCryptographicHash hash(QCryptographicHash::Sha256);
    console.BetweenSteps();
    at = partPath;
    const auto part = files.Open(partPath, OpenFor::Reading);
    // Checksums need to see the bytes.
    const bool mayTake = !digests.contains(partName) && !digests.contains(name);
    qint64 got = 0;
    for (;;) {
        const qint64 left = length - got;
        qint64 moved = mayTake && left > 0 ? output.TakeFrom(*part, std::min(left, takenAtOnce)) : 0;
        if (moved == 0)
            moved = CopyPiece(output, *part, number, hash);
        if (moved == 0)
            break;
        got += moved;
        copied += moved;
        console.ShowProgress(static_cast<double>(copied), static_cast<double>(total));
        console.BetweenSteps();
    }
    at = partPath;
    if (got != length)
        throw Failure(FailureNumber::DeviceIoError, u"It changed while it was read"_s);
    if (!Holds(partName, hash))
        console.Fail(partPath, u"Its checksum doesn't hold"_s);
}

/// By reading and writing. How many bytes it were, none at the end of the part.
qint64 Join::CopyPiece(ReplacingFile &output, OpenFile &part, qint64 number, QCryptographicHash &hash)
{
    at = PartName(path, number);
    const qint64 got = part.ReadInto({room.data(), static_cast<size_t>(copiedAtOnce)});
    if (got == 0)
        return 0;
    const auto bytes = QByteArray::fromRawData(room.data(), got);
    at = path;
    output.Write(bytes);
    if (digests.contains(PartName(name, number)))
        hash.addData(bytes);
    if (digests.contains(name))
        whole.addData(bytes);
    return got;
}

/// True for a file of which the checksums say nothing, too.
bool Join::Holds(const QString &file, const QCryptographicHash &hash) const
{
    const auto digest = digests.constFind(file);
    return digest == digests.cend() || *digest == hash.result();
}

void Join::DeleteParts()
{
    const auto remove = [this](const QString &file) {
        try {
            files.RemoveFile(file);
            ++removed;
        } catch (const Failure &failure) {
            console.Fail(file, failure);
        }
    };
    for (auto part = lengths.cbegin(); part != lengths.cend(); ++part) {
        console.BetweenSteps();
        remove(PartName(path, part.key()));
    }
    DeleteBatch();
}

/// Tried without a look first, which could fail. It need not be there.
void Join::DeleteBatch()
{
    const QString batch = BatchName(path);
    try {
        files.RemoveFile(batch);
        ++removed;
    } catch (const Failure &failure) {
        const bool isAbsent = failure.number == FailureNumber::FileNotFound || WhyNoName(BatchName(name));
        if (!isAbsent && !FolderExists(files, batch))
            console.Fail(batch, failure);
    }
}

void Join::TellCount()
{
    QString sentence = u"joined %1 parts"_s.arg(isDryRun ? lengths.size() : joined);
    if (isDryRun) {
        console.Aside(u"would have "_s + sentence);
        return;
    }
    if (deletesParts)
        sentence += u", deleted %1 files"_s.arg(removed);
    console.Count(sentence);
}

int Run(const Arguments &arguments, Console &console)
{
    if (arguments.Operands().size() != 1 || arguments.Operands().first().isEmpty())
        throw UsageError{u"join needs one FILE"_s};
    return Join(arguments, console).Run();
}

} // namespace

Command JoinCommand()
{
    return {
        u"join"_s,
        u"puts a file together from its numbered parts"_s,
        {u"FILE [--delete-parts] [--force]"_s},
        uR"(Puts FILE.1, FILE.2 and so on together as FILE. FILE is the name of the whole, which need not be there.
It comes into place when all of it is on the disc, and not before.

Nothing is joined if a part is missing below the highest one, if the size of one doesn't fit the
others, or if a checksum of FILE.sha256 doesn't hold, where that file is there.

The last line says what was joined.)"_s,
        {{deleteOption, {}, u"delete the parts, and FILE.bat with them, once FILE is on the disc"_s},
         shared::Force(),
         shared::DryRun(),
         shared::Null(),
         shared::Quiet()},
        {},
        u"tressel-cli join film.mkv --delete-parts\n         makes film.mkv from film.mkv.1, film.mkv.2 ..."_s,
        Run};
}

} // namespace tressel
