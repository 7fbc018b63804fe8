// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/Clock.h"
#include "machine/FileSystem.h"
#include "support/Journal.h"
#include "support/MemoryNode.h"
#include "support/OrderedActs.h"
#include "support/OrderedFailures.h"

#include <QStringList>

#include <functional>
#include <list>
#include <type_traits>

namespace tressel {

/// A file system in memory, of the kind with drives: "C:\a\b", names that keep their case and compare
/// without it, a hidden and a read-only attribute. Doubled separators count as one, one at the end is
/// ignored, and a path without a drive starts at the root of C:, which is there from the start.
///
/// The journal has each operation under its Operation's name, about the path as it was asked.
class MemoryFileSystem : public FileSystem {
public:
    MemoryFileSystem(Journal &journal, const Clock &clock);

    // What a test sets up and looks at, without a word in the journal. A path that isn't there fails.

    /// Adds a drive, or sets label and room of one that is there.
    void AddDrive(QChar letter, const QString &label = {}, qint64 freeSpace = 1LL << 40);
    /// Takes the medium out of a drive, or puts it in again.
    void SetReady(QChar letter, bool ready);
    /// Makes a folder and those above it.
    void PutFolder(const QString &path);
    /// Makes or replaces a file and makes the folders above it.
    void PutFile(const QString &path, const QByteArray &bytes = {});
    /// Makes a pipe.
    void PutPipe(const QString &path);
    /// Makes a link to a path, which need not exist.
    void PutLink(const QString &path, const QString &target);
    /// Takes what is there away, with all below it, and makes a link of its name.
    void PutLinkInPlaceOf(const QString &path, const QString &target);
    void SetHidden(const QString &path, bool hidden = true);
    void SetModified(const QString &path, const QDateTime &modified);
    /// Gives a file other names beside this one, so many in all.
    void SetNames(const QString &path, quint64 names);
    /// Puts a file at a place of its medium, which can be told then; it stays there unless it moves on
    /// writing.
    void SetPlace(const QString &path, quint64 place, bool movesOnWriting = false);
    /// What is written to a file goes through a journal from now on.
    void PutInJournal(const QString &path);
    /// Another program holds the file, or lets it go.
    void HoldByAnother(const QString &path, bool held = true);
    bool Exists(const QString &path);
    /// What is in a file.
    QByteArray Bytes(const QString &path);
    /// Everything below a folder as paths from there on, sorted, folders with "\" at their end.
    QStringList Tree(const QString &folder);

    /// Orders a failure: the `nth` operation of this kind (1 the next) on the path or on anything below it,
    /// of those that would have succeeded, fails with this number; with nth 0 every one. MakeFolder under
    /// C:\W: the 2nd folder made there.
    void FailAt(Operation operation, const QString &path, int nth, FailureNumber number);
    /// Has something done before the `nth` operation of this kind on this very path (1 the next): what
    /// another program does between two steps. An order that never came due fails the test.
    void DoBefore(Operation operation, const QString &path, int nth, std::function<void()> act);
    /// Takes all ordered failures back.
    void FailNoMore() { orders.Clear(); }

    QChar Separator() const override { return u'\\'; }
    std::unique_ptr<FolderHold> Hold(const QString &folder) override;
    std::optional<FileStatus> Status(const QString &path, Links links) override;
    /// Without a word in the journal.
    QList<FolderEntry> List(const QString &folder, Lengths lengths = Lengths::LeftOut) override;
    std::unique_ptr<FolderReader> Read(const QString &folder, Lengths lengths = Lengths::LeftOut) override;
    void FlushFolder(const QString &folder) override;
    std::optional<Failure> TryMakeFolder(const QString &path) override;
    std::optional<Failure> TryRemoveFolder(const QString &path) override;
    void RemoveFile(const QString &path) override;
    void Rename(const QString &from, const QString &to) override;
    std::unique_ptr<OpenFile> Open(const QString &path, OpenFor purpose,
                                   Sharing sharing = Sharing::Shared) override;
    std::unique_ptr<ReplacingFile> Replace(const QString &path, IfThere ifThere) override;
    QString LinkTarget(const QString &path) override;
    void MakeLink(const QString &path, const QString &target) override;
    void SetReadOnly(const QString &path, bool readOnly) override;
    QList<Volume> Volumes() override;
    QString VolumeLabel(const QString &path) override;
    qint64 FreeSpace(const QString &path) override;

private:
    friend class MemoryOpenFile;
    friend class MemoryReplacingFile;
    using Node = std::shared_ptr<MemoryNode>;

    /// Where a path leads: the folder that it is in, its last name, and what is there.
    struct Place {
        Node parent; ///< none for a drive's root
        QString name;
        Node node; ///< none if nothing is there
    };

    /// A folder that is held: the names that lead to it, folded, and what was found there first.
    struct Held {
        QStringList names;
        int holds = 0; ///< that are alive
        Node folder{};
    };
    class OneHold;

    /// The drive and the names of a path, folded.
    static QStringList FoldedNames(const QString &path);
    static void RefuseLongName(const QString &name);
    /// The innermost held folder that the path is below, none if it is below none.
    Held *HeldAbove(const QString &path);
    /// For a path that now stands for something else than before.
    void Forget(const QString &path);
    Place FindBeneath(Held &held, const QString &path);
    /// Where a path leads whose last name may be a link to look behind.
    Place FindToLookAt(const QString &path, Links links);

    MemoryDrive &DriveFor(const QString &path);
    /// Fails with 76 if a level above the last one is missing. A link at the end is followed with Follow, but
    /// not below a folder that is held, where one on the way fails with 75.
    Place Find(const QString &path, Links links, int depth = 0);
    Node FindFolder(const QString &path);
    Node FindFile(const QString &path);
    Node Add(const Place &place, EntryKind kind);
    void Remove(const Node &node);
    /// Adds to what a drive has written, as far as it has room; how much of it had room.
    qint64 TakeRoom(const MemoryNode &node, qint64 bytes);
    void Obey(Operation operation, const Place &place);
    /// Does a step and notes it and its failure.
    template <typename Step>
    auto Ask(Operation operation, const QString &path, const QString &detail, Step step);

    Journal &journal;
    const Clock &clock;
    OrderedFailures orders;
    OrderedActs acts;
    std::list<Held> holds;
    std::map<QChar, MemoryDrive> drives; ///< by the capital letter
    quint64 births = 0;
};

template <typename Step>
auto MemoryFileSystem::Ask(Operation operation, const QString &path, const QString &detail, Step step)
{
    acts.Do(operation, path);
    try {
        if constexpr (std::is_void_v<decltype(step())>) {
            step();
            journal.Note(OperationName(operation), path, detail);
        } else {
            auto result = step();
            journal.Note(OperationName(operation), path, detail);
            return result;
        }
    } catch (const Failure &failure) {
        journal.Note(OperationName(operation), path, detail, failure.Number());
        throw;
    }
}

} // namespace tressel
