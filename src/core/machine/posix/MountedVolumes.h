// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/FileSystem.h"
#include "machine/posix/Descriptor.h"

#include <map>
#include <sys/types.h>

namespace tressel {

/// The volumes that a person would recognise as drives, of a table in the form of /proc/self/mounts: the
/// root first, then the one that holds the home folder if it is a mount of its own, then floppy discs and
/// what is mounted below /media, /run/media and /mnt, by their paths. Labels are left empty.
/// `devices`, if given, receives the device of each.
QList<Volume> VolumesOfTable(const QByteArray &table, const QByteArray &home,
                             QList<QByteArray> *devices = nullptr);

/// The mounted volumes, read anew only when something is mounted or unmounted.
class MountedVolumes {
public:
    /// The system's own table and labels, and the user's home.
    MountedVolumes();
    MountedVolumes(const QByteArray &mountTable, QByteArray labelFolder, QByteArray homeFolder);

    const QList<Volume> &All();
    /// The label of the volume on that device; empty if it has none.
    QString LabelOf(dev_t device) const;

private:
    bool HasChanged() const;
    void ReadAnew();
    std::map<dev_t, QString> Labels() const;

    Descriptor table;
    QByteArray labels;
    QByteArray home;
    QList<Volume> volumes;
    bool known = false;
};

} // namespace tressel
