// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/erase/MediumErasure.h"

#include "base/Steps.h"
#include "machine/Paths.h"

#include <QRandomGenerator>

#include <algorithm>
#include <utility>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype blockLength = 1 << 22;

/// Bytes that no file system packs or finds a second time.
QByteArray RandomBlock()
{
    QByteArray block(blockLength, Qt::Uninitialized);
    QRandomGenerator::securelySeeded().fillRange(reinterpret_cast<quint32 *>(block.data()),
                                                 block.size() / qsizetype(sizeof(quint32)));
    return block;
}

Overwritten Compare(const std::optional<QList<Extent>> &before, const std::optional<QList<Extent>> &after)
{
    if (!before || !after)
        return Overwritten::Unknown;
    // Holes of the file have come in beside the old extents, or grown together with them.
    const bool allThere = std::ranges::all_of(*before, [&](const Extent &old) {
        return std::ranges::any_of(*after, [&](const Extent &now) {
            return now.offset <= old.offset && old.offset + old.length <= now.offset + now.length
                && now.place - now.offset == old.place - old.offset;
        });
    });
    return allThere ? Overwritten::InPlace : Overwritten::Elsewhere;
}

} // namespace

MediumErasure::MediumErasure(FileSystem &fileSystem, int passCount, bool keeps,
                             std::function<void(qint64)> afterBlocks)
    : files(fileSystem)
    , passes(passCount)
    , keepsName(keeps)
    , betweenBlocks(std::move(afterBlocks))
{
}

std::optional<QString> MediumErasure::WhyNot(FileSystem &files, const QString &path, bool allNames)
{
    const auto status = files.Status(path, Links::Keep);
    if (!status)
        return DescriptionOf(FailureNumber::FileNotFound);
    switch (status->kind) {
    case EntryKind::Folder:
        return u"It is a folder"_s;
    case EntryKind::Link:
        return u"It is a link; name the file itself"_s;
    case EntryKind::Other:
        return u"It is no regular file"_s;
    case EntryKind::File:
        break;
    }
    if (status->names > 1 && !allNames)
        return u"The file has %1 names, and its contents would be gone under all of them (see --all-names)"_s
            .arg(status->names);
    return {};
}

Overwritten MediumErasure::Erase(const QString &path)
{
    hasBegun = false;
    const auto file = files.Open(path, OpenFor::Changing, Sharing::Exclusive);
    const qint64 length = file->Length();
    file->Flush();
    const auto before = file->Extents();
    for (int pass = 1; pass <= passes; ++pass)
        WritePass(*file, length);
    ReadBack(*file, length);
    const Overwritten outcome =
        file->IsInJournal() ? Overwritten::Journalled : Compare(before, file->Extents());
    const QString last = keepsName ? path : TakeName(path);
    try {
        Remove(*file, last);
    } catch (const Failure &failure) {
        const bool hasGone = failure.number == FailureNumber::FileNotFound;
        if (last != path && !hasGone)
            GiveNameBack(last, path, failure);
        throw;
    }
    files.FlushFolder(FolderOf(files, last));
    return outcome;
}

void MediumErasure::Remove(OpenFile &file, const QString &path)
{
    hasBegun = true;
    file.Resize(0);
    file.Flush();
    file.Close();
    RefuseAnother(path);
    files.RemoveFile(path);
}

/// What was cut is empty; anything else came into its place before it got its new name.
void MediumErasure::RefuseAnother(const QString &path)
{
    const auto status = files.Status(path, Links::Keep);
    if (!status || (status->kind == EntryKind::File && status->length == 0))
        return;
    hasBegun = false;
    throw Failure(
        FailureNumber::PathFileAccessError,
        u"Another file has come in its place meanwhile and stays; the one that was there is overwritten"_s);
}

void MediumErasure::GiveNameBack(const QString &present, const QString &path, const Failure &why)
{
    Steps steps;
    steps.Do([&] { files.Rename(present, path); });
    if (steps.Pending()) {
        throw Failure(why.number,
                      why.description + u"; what is left of it is called "_s + FileNameOf(files, present));
    }
}

void MediumErasure::WritePass(OpenFile &file, qint64 length)
{
    block = RandomBlock();
    file.Seek(0);
    for (qint64 done = 0; done < length; done += block.size()) {
        const qint64 piece = std::min<qint64>(block.size(), length - done);
        hasBegun = true;
        file.Write(piece == block.size() ? block : block.left(piece));
        betweenBlocks(piece);
    }
    file.Flush();
}

void MediumErasure::ReadBack(OpenFile &file, qint64 length)
{
    file.ForgetCached();
    file.Seek(0);
    for (qint64 done = 0; done < length; done += block.size()) {
        const qint64 piece = std::min<qint64>(block.size(), length - done);
        if (file.Read(piece) != QByteArrayView(block).first(piece))
            throw Failure(FailureNumber::DeviceIoError, u"What was read back isn't what was written"_s);
        betweenBlocks(piece);
    }
}

/// Gives the file another name in its folder and returns its path then.
QString MediumErasure::TakeName(const QString &path)
{
    // Two files with the same number at the same time are unlikely; a third try is still not wasted on them.
    for (int attempt = 1;; ++attempt) {
        const QString name = QString::number(QRandomGenerator::system()->generate64(), 16);
        const QString target = JoinPath(files, FolderOf(files, path), name);
        try {
            files.Rename(path, target);
            return target;
        } catch (const Failure &failure) {
            if (failure.number != FailureNumber::FileAlreadyExists || attempt == 3)
                throw;
        }
    }
}

} // namespace tressel
