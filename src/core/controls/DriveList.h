// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/ItemList.h"
#include "machine/FileSystem.h"

namespace tressel {

/// A drop-down list of the machine's volumes; one of them is the drive it stands on.
class DriveList : public ItemList {
public:
    /// Lists the volumes as they are now and stands on the first.
    DriveList(Form &form, const QString &name, FileSystem &files);

    /// The root of the drive it stands on, with the separator at its end.
    QString Drive() const;
    /// Moves to the volume that holds the path and raises Change, but no Click, if that is another one.
    void SetDrive(const QString &path);
    /// Lists the volumes anew; keeps the drive if it is still there.
    void Refresh();

    Event<> Change;

protected:
    void OnSelected() override;

private:
    FileSystem &files;
    QList<Volume> volumes;
    QString drive;
};

} // namespace tressel
