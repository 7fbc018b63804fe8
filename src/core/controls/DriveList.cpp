// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "controls/DriveList.h"

#include "machine/Paths.h"

namespace tressel {

DriveList::DriveList(Form &form, const QString &name, FileSystem &fileSystem)
    : ItemList(form, name)
    , files(fileSystem)
{
    Refresh();
}

QString DriveList::Drive() const
{
    return drive;
}

void DriveList::SetDrive(const QString &path)
{
    const QString wanted = DriveOf(files, path);
    for (int index = 0; index < volumes.size(); ++index) {
        if (volumes.at(index).root == wanted && index != ListIndex()) {
            Select(index);
            return;
        }
    }
}

void DriveList::Refresh()
{
    volumes = files.Volumes();
    QStringList rows;
    int index = 0;
    for (int row = 0; row < volumes.size(); ++row) {
        const Volume &volume = volumes.at(row);
        rows +=
            volume.label.isEmpty() ? volume.root : volume.root + QStringLiteral(" [%1]").arg(volume.label);
        if (volume.root == drive)
            index = row;
    }
    SetItems(rows);
    if (!rows.isEmpty())
        Select(index);
}

void DriveList::OnSelected()
{
    const QString before = drive;
    drive = ListIndex() < 0 ? QString() : volumes.at(ListIndex()).root;
    if (drive != before)
        Change.Raise();
}

} // namespace tressel
