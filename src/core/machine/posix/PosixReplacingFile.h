// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/posix/FileRights.h"
#include "machine/posix/PosixOpenFile.h"

#include <QByteArray>

#include <optional>

namespace tressel {

class NativePath;

/// New contents of a file, in a file of their own beside it until they are whole. Where the system knows
/// files without a name it has none until then, so that a kill leaves nothing of it.
///
/// The new file then takes the old one's name, with its rights. There are cases where it can't: the folder
/// takes no file, or doesn't let the old one go; the old one has other names too; its owner, group or access
/// list can't be given to the new one. Then the new contents are copied into the old file, which isn't
/// emptied before. The old contents are held in memory meanwhile and written back if the new ones don't find
/// room, and what stands beside stays until the copy is down.
class PosixReplacingFile : public ReplacingFile {
public:
    /// The file beside has a name of its own, or the one that is given: for callers who keep all others away
    /// from it, so that one which a kill has left is taken over.
    PosixReplacingFile(const NativePath &path, IfThere ifThere, const QByteArray &nameBeside = {});
    /// Without a Commit that ended well, takes everything away that was made.
    ~PosixReplacingFile() override;
    PosixReplacingFile(const PosixReplacingFile &) = delete;
    PosixReplacingFile &operator=(const PosixReplacingFile &) = delete;

    void Write(const QByteArray &bytes) override;
    qint64 TakeFrom(OpenFile &source, qint64 maximum) override;
    void Commit() override;

private:
    void OpenOld(const NativePath &path);
    void FindPlace(const NativePath &path);
    bool IsPlaceOfOld() const;
    void OpenFolder(const NativePath &path);
    void OpenFolder(int from, const char *path);
    void MakeBeside(const QByteArray &wantedName);
    bool MakeNameless();
    mode_t RightsBeside() const;
    bool GiveName(int file, const QByteArray &given) const;
    void GiveSomeName(int file);
    void SettleBeside();
    bool MayTakeName();
    bool TakesFreeName();
    bool TakesName();
    void SyncFolder() const;
    void CopyIntoOld();
    void ReopenBeside();
    QByteArray NextOfNew(qint64 position);
    void PutBack(const QByteArray &before);
    void KeepBeside();
    void RemoveBeside();

    IfThere ifThere;
    Descriptor folder; ///< none if it isn't known where the file is
    bool folderCanSync = false;
    QByteArray name; ///< in that folder
    bool madeOld = false; ///< at the end of a link that led to nothing
    bool oldIsReadable = false;
    std::optional<FileRights> oldRights; ///< none if there is no old file
    std::optional<PosixOpenFile> old;
    QByteArray besideName; ///< empty if there is none
    std::optional<PosixOpenFile> beside;
    Descriptor nameless; ///< the file beside, once it is settled and if it has no name
    QByteArray gathered; ///< the new contents where no file can be made beside
};

} // namespace tressel
