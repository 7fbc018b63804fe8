// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "support/MemoryOpenFile.h"

#include <algorithm>
#include <utility>

namespace tressel {

MemoryOpenFile::MemoryOpenFile(MemoryFileSystem &theFiles, std::shared_ptr<MemoryNode> theNode,
                               QString thePath, OpenFor thePurpose, Sharing sharing)
    : files(theFiles)
    , node(std::move(theNode))
    , path(std::move(thePath))
    , purpose(thePurpose)
    , holds(sharing == Sharing::Exclusive)
{
    if (holds)
        node->heldExclusively = true;
    if (purpose == OpenFor::Writing) {
        files.TakeRoom(*node, -node->bytes.size());
        node->bytes.clear();
        node->modified = files.clock.Now();
    }
    if (purpose == OpenFor::Appending)
        position = node->bytes.size();
}

MemoryOpenFile::~MemoryOpenFile()
{
    LetGo();
}

void MemoryOpenFile::LetGo()
{
    if (node && holds)
        node->heldExclusively = false;
    node.reset();
}

void MemoryOpenFile::NeedOpen() const
{
    if (!node)
        throw Failure(FailureNumber::BadFileName);
}

QByteArray MemoryOpenFile::Read(qint64 maximum)
{
    return files.Ask(Operation::ReadBytes, path, QString::number(maximum), [&] {
        NeedOpen();
        if (maximum < 0)
            throw Failure(FailureNumber::InvalidProcedureCall);
        if (purpose != OpenFor::Reading && purpose != OpenFor::Streaming && purpose != OpenFor::Changing)
            throw Failure(FailureNumber::BadFileName);
        files.orders.Obey(Operation::ReadBytes, FoldedPath(*node));
        const QByteArray bytes =
            position < node->bytes.size() ? node->bytes.mid(position, maximum) : QByteArray();
        position += bytes.size();
        return bytes;
    });
}

void MemoryOpenFile::Write(const QByteArray &bytes)
{
    files.Ask(Operation::WriteBytes, path, QString::number(bytes.size()), [&] {
        NeedOpen();
        if (purpose == OpenFor::Reading || purpose == OpenFor::Streaming)
            throw Failure(FailureNumber::BadFileName);
        files.orders.Obey(Operation::WriteBytes, FoldedPath(*node));
        Put(bytes);
    });
}

void MemoryOpenFile::Put(const QByteArray &bytes)
{
    if (purpose == OpenFor::Appending)
        position = node->bytes.size();
    const qint64 growth = std::max<qint64>(0, position + bytes.size() - node->bytes.size());
    const qint64 missing = growth - files.TakeRoom(*node, growth);
    // A full disc takes what still has room.
    const QByteArray taken = bytes.left(std::max<qint64>(0, bytes.size() - missing));
    if (position + taken.size() > node->bytes.size())
        node->bytes.append(position + taken.size() - node->bytes.size(), '\0');
    node->bytes.replace(position, taken.size(), taken);
    position += taken.size();
    node->modified = files.clock.Now();
    if (node->movesOnWriting)
        node->extents->first().place += node->extents->first().length;
    if (missing > 0)
        throw Failure(FailureNumber::DiskFull);
}

qint64 MemoryOpenFile::Position() const
{
    NeedOpen();
    return position;
}

void MemoryOpenFile::Seek(qint64 newPosition)
{
    NeedOpen();
    if (newPosition < 0)
        throw Failure(FailureNumber::InvalidProcedureCall);
    position = newPosition;
}

qint64 MemoryOpenFile::Length() const
{
    NeedOpen();
    return node->bytes.size();
}

void MemoryOpenFile::Resize(qint64 length)
{
    files.Ask(Operation::ResizeFile, path, QString::number(length), [&] {
        NeedOpen();
        if (purpose == OpenFor::Reading)
            throw Failure(FailureNumber::BadFileName);
        if (length < 0)
            throw Failure(FailureNumber::InvalidProcedureCall);
        files.orders.Obey(Operation::ResizeFile, FoldedPath(*node));
        const qint64 growth = length - node->bytes.size();
        const qint64 taken = files.TakeRoom(*node, growth);
        if (taken < growth) {
            files.TakeRoom(*node, -taken);
            throw Failure(FailureNumber::DiskFull);
        }
        node->bytes.resize(length, '\0');
        node->modified = files.clock.Now();
    });
}

void MemoryOpenFile::Flush()
{
    files.Ask(Operation::FlushFile, path, {}, [&] {
        NeedOpen();
        files.orders.Obey(Operation::FlushFile, FoldedPath(*node));
    });
}

void MemoryOpenFile::Close()
{
    if (!node)
        return;
    files.Ask(Operation::CloseFile, path, {}, [&] {
        const QString folded = FoldedPath(*node);
        LetGo();
        files.orders.Obey(Operation::CloseFile, folded);
    });
}

void MemoryOpenFile::TakeAttributesOf(const OpenFile &other)
{
    const MemoryNode &from = *dynamic_cast<const MemoryOpenFile &>(other).node;
    node->readOnly = from.readOnly;
    node->hidden = from.hidden;
    node->modified = from.modified;
}

} // namespace tressel
