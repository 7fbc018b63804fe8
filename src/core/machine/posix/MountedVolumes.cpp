// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/posix/MountedVolumes.h"

#include "machine/NameText.h"
#include "machine/posix/PosixFolderReader.h"
#include "machine/posix/UserFolders.h"

#include <algorithm>
#include <array>
#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <utility>

namespace tressel {

namespace {

struct Mount {
    QByteArray device;
    QByteArray point; ///< with the separator at its end
    QByteArray kind;
};

enum class Rank { Root, Home, Removable, None };

/// Decodes "\040", as the table of mounts writes a blank, or "\x20", as the names of labels do.
QByteArray Unescaped(const QByteArray &text)
{
    QByteArray plain;
    for (qsizetype at = 0; at < text.size(); ++at) {
        const bool isHex = text.sliced(at).startsWith("\\x");
        bool isCode = false;
        const int code =
            isHex ? text.mid(at + 2, 2).toInt(&isCode, 16) : text.mid(at + 1, 3).toInt(&isCode, 8);
        if (text.at(at) == '\\' && isCode && at + 3 < text.size()) {
            plain += static_cast<char>(code);
            at += 3;
        } else {
            plain += text.at(at);
        }
    }
    return plain;
}

bool IsFloppy(const Mount &mount)
{
    const QByteArray number = mount.device.startsWith("/dev/fd") ? mount.device.mid(7) : QByteArray();
    return !number.isEmpty()
        && std::all_of(number.begin(), number.end(), [](char c) { return c >= '0' && c <= '9'; });
}

Rank RankOf(const Mount &mount, const QByteArray &home)
{
    static const std::array<QByteArray, 3> removable{"/media/", "/run/media/", "/mnt/"};
    if (mount.point == "/")
        return Rank::Root;
    if (IsFloppy(mount))
        return Rank::Removable;
    // Memory and places where something may be mounted later are no discs.
    if (mount.kind == "tmpfs" || mount.kind == "autofs")
        return Rank::None;
    if ((home + '/').startsWith(mount.point))
        return Rank::Home;
    const bool isRemovable =
        std::any_of(removable.begin(), removable.end(),
                    [&mount](const QByteArray &above) { return mount.point.startsWith(above); });
    return isRemovable ? Rank::Removable : Rank::None;
}

dev_t DeviceNumber(const QByteArray &device)
{
    struct stat status = {};
    return stat(device.constData(), &status) == 0 ? status.st_rdev : 0;
}

} // namespace

QList<Volume> VolumesOfTable(const QByteArray &table, const QByteArray &home, QList<QByteArray> *devices)
{
    // By rank and path; what is mounted later over the same point hides the earlier.
    std::map<std::pair<Rank, QByteArray>, Mount> mounts;
    for (const QByteArray &line : table.split('\n')) {
        const QList<QByteArray> fields = line.split(' ');
        if (fields.size() < 3)
            continue;
        Mount mount{Unescaped(fields.at(0)), Unescaped(fields.at(1)), fields.at(2)};
        if (!mount.point.endsWith('/'))
            mount.point += '/';
        const Rank rank = RankOf(mount, home);
        if (rank != Rank::None)
            mounts.insert_or_assign({rank, mount.point}, mount);
    }
    QList<Volume> volumes;
    for (const auto &[place, mount] : mounts) {
        volumes += Volume{*TextFromUtf8(mount.point, NameBytes::Raw), {}, IsFloppy(mount)};
        if (devices)
            devices->append(mount.device);
    }
    return volumes;
}

MountedVolumes::MountedVolumes()
    : MountedVolumes("/proc/self/mounts", "/dev/disk/by-label", HomeFolder())
{
}

MountedVolumes::MountedVolumes(const QByteArray &mountTable, QByteArray labelFolder, QByteArray homeFolder)
    : table(open(mountTable.constData(), O_RDONLY | O_CLOEXEC))
    , labels(std::move(labelFolder))
    , home(std::move(homeFolder))
{
}

const QList<Volume> &MountedVolumes::All()
{
    // Asked before the table is read: a change in between is then seen the next time.
    const bool hasChanged = HasChanged();
    if (!std::exchange(known, true) || hasChanged)
        ReadAnew();
    return volumes;
}

bool MountedVolumes::HasChanged() const
{
    // The kernel tells of a change in its table of mounts as an exceptional condition.
    pollfd watched{table.Number(), POLLPRI, 0};
    return poll(&watched, 1, 0) > 0 && (watched.revents & (POLLPRI | POLLERR)) != 0;
}

void MountedVolumes::ReadAnew()
{
    QByteArray text;
    std::array<char, 4096> piece{};
    off_t at = 0;
    for (ssize_t got = 0; (got = pread(table.Number(), piece.data(), piece.size(), at)) > 0; at += got)
        text.append(piece.data(), got);
    QList<QByteArray> devices;
    volumes = VolumesOfTable(text, home, &devices);
    if (volumes.isEmpty())
        volumes += Volume{QStringLiteral("/"), {}};
    const std::map<dev_t, QString> known = Labels();
    for (qsizetype index = 0; index < devices.size(); ++index) {
        const auto label = known.find(DeviceNumber(devices.at(index)));
        if (label != known.end())
            volumes[index].label = label->second;
    }
}

std::map<dev_t, QString> MountedVolumes::Labels() const
{
    std::map<dev_t, QString> found;
    Descriptor folder(open(labels.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!folder.IsOpen())
        return found;
    const Descriptor place(fcntl(folder.Number(), F_DUPFD_CLOEXEC, 0));
    PosixFolderReader reader(std::move(folder));
    while (const std::optional<FolderEntry> entry = reader.Next()) {
        struct stat status = {};
        const QByteArray name = entry->name.toUtf8();
        if (fstatat(place.Number(), name.constData(), &status, 0) == 0 && status.st_rdev != 0)
            found.emplace(status.st_rdev, *TextFromUtf8(Unescaped(name), NameBytes::Raw));
    }
    return found;
}

QString MountedVolumes::LabelOf(dev_t device) const
{
    const std::map<dev_t, QString> found = Labels();
    const auto label = found.find(device);
    return label == found.end() ? QString() : label->second;
}

} // namespace tressel
