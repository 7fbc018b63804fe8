// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/Paths.h"
#include "machine/WholeFile.h"
#include "machine/posix/PosixFileSystem.h"
#include "support/Failures.h"
#include "support/MemoryMachine.h"
#include "support/TemporaryFolder.h"
#include "support/Text.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tressel {

/// A disc in memory with an empty folder to work in.
struct MemoryDisc {
    MemoryDisc() { machine.files.PutFolder(root); }
    void Link(const QString &path, const QString &target) { machine.files.PutLink(path, target); }
    void Pipe(const QString &path) { machine.files.PutPipe(path); }
    void GiveSecondName(const QString &path) { machine.files.SetNames(path, 2); }
    void Hide(const QString &path) { machine.files.SetHidden(path); }

    MemoryMachine machine;
    QString root = QStringLiteral("C:\\W");
    FileSystem &files = machine.files;
};

/// The real disc.
struct RealDisc {
    void Link(const QString &path, const QString &target)
    {
        ASSERT_EQ(symlink(target.toUtf8().constData(), path.toUtf8().constData()), 0);
    }
    void Pipe(const QString &path) { ASSERT_EQ(mkfifo(path.toUtf8().constData(), 0600), 0); }
    void GiveSecondName(const QString &path)
    {
        const QByteArray name = path.toUtf8();
        ASSERT_EQ(link(name.constData(), (name + ".second").constData()), 0);
    }
    /// Nothing to do: the name begins with a dot.
    void Hide(const QString & /*path*/) { }

    TemporaryFolder folder;
    QString root = folder.Path();
    PosixFileSystem real;
    FileSystem &files = real;
};

template <typename Disc> class FileSystemContract : public testing::Test {
protected:
    /// A path below the folder to work in, given with "/" between its levels.
    QString At(const QString &path)
    {
        QString native = path;
        return disc.root + files.Separator() + native.replace(u'/', files.Separator());
    }
    void Put(const QString &path, const QByteArray &bytes = "x")
    {
        const auto file = files.Open(At(path), OpenFor::Writing);
        file->Write(bytes);
        file->Close();
    }
    void MakeFolder(const QString &path) { ASSERT_FALSE(files.TryMakeFolder(At(path))); }
    QByteArray Bytes(const QString &path) { return files.Open(At(path), OpenFor::Reading)->Read(1 << 20); }
    bool IsThere(const QString &path) { return files.Status(At(path), Links::Keep).has_value(); }
    QStringList Names(const QString &folder)
    {
        QStringList names;
        for (const FolderEntry &entry : files.List(At(folder)))
            names += entry.name;
        return names;
    }
    std::optional<FailureNumber> OpenFails(const QString &path, OpenFor purpose)
    {
        return NumberThrownBy([&] { files.Open(At(path), purpose); });
    }
    std::optional<FailureNumber> RenameFails(const QString &from, const QString &to)
    {
        return NumberThrownBy([&] { files.Rename(At(from), At(to)); });
    }

    Disc disc;
    FileSystem &files = disc.files;
};

using Discs = testing::Types<MemoryDisc, RealDisc>;

} // namespace tressel
