// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/posix/DataJournal.h"

#include "base/Failure.h"
#include "machine/posix/PosixOpenFile.h"

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

namespace tressel {

namespace {

QByteArray MountInfo()
{
    constexpr qint64 readAtOnce = 1 << 16;
    PosixOpenFile table(Descriptor(open("/proc/self/mountinfo", O_RDONLY | O_CLOEXEC)));
    QByteArray text;
    try {
        for (QByteArray piece = table.Read(readAtOnce); !piece.isEmpty(); piece = table.Read(readAtOnce))
            text += piece;
    } catch (const Failure &) {
        // Without the table nothing is known of journals.
        return {};
    }
    return text;
}

} // namespace

bool IsMountedWithDataJournal(const QByteArray &mountInfo, dev_t device)
{
    // See Documentation/filesystems/proc.rst of the kernel: behind the six fields that every line has come
    // some more, up to a dash, and then kind, source and the options of the file system itself.
    constexpr qsizetype deviceField = 2;
    constexpr qsizetype firstOptional = 6;
    constexpr qsizetype fromDashToOptions = 3;
    const QByteArray number = QByteArray::number(major(device)) + ':' + QByteArray::number(minor(device));
    for (const QByteArray &line : mountInfo.split('\n')) {
        const QList<QByteArray> fields = line.split(' ');
        const qsizetype dash = fields.indexOf("-", firstOptional);
        if (dash > 0 && fields.at(deviceField) == number
            && fields.value(dash + fromDashToOptions).split(',').contains("data=journal"))
            return true;
    }
    return false;
}

bool HasDataInJournal(int file)
{
    int flags = 0;
    if (ioctl(file, FS_IOC_GETFLAGS, &flags) == 0 && (flags & FS_JOURNAL_DATA_FL) != 0)
        return true;
    struct stat status = {};
    return fstat(file, &status) == 0 && IsMountedWithDataJournal(MountInfo(), status.st_dev);
}

} // namespace tressel
