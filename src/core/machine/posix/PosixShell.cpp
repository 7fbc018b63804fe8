// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/posix/PosixShell.h"

#include "machine/NameText.h"
#include "machine/posix/DetachedStart.h"
#include "machine/posix/NativePath.h"

#include <QRegularExpression>

#include <array>
#include <sys/stat.h>

namespace tressel {

namespace {

/// A path as an argument that can't be taken for an option; empty if it can't be a path.
QByteArray ArgumentOf(const QString &path, const QByteArray &folder = ".")
{
    const NativePath native{QStringView(path)};
    if (native.Problem())
        return {};
    const QByteArray bytes = native.Bytes().toByteArray();
    return bytes.startsWith('/') ? bytes : folder + '/' + bytes;
}

bool IsThere(const QByteArray &path)
{
    struct stat status = {};
    return stat(path.constData(), &status) == 0;
}

/// A scheme of two letters or more, as RFC 3986 has it; one letter is a drive of another system.
bool IsAddress(const QString &target)
{
    static const QRegularExpression scheme(QStringLiteral("^[A-Za-z][A-Za-z0-9+.-]+:"));
    return target.contains(scheme);
}

bool OpenWithDesktop(const QByteArray &target)
{
    const QByteArray opener = FindCommand("xdg-open");
    return !opener.isEmpty() && StartDetached({opener, target});
}

} // namespace

bool PosixShell::Open(const QString &target, const QString &folder)
{
    const QByteArray path = ArgumentOf(target, folder.isEmpty() ? QByteArray(".") : ArgumentOf(folder));
    if (IsThere(path))
        return OpenWithDesktop(path);
    return IsAddress(target) && OpenWithDesktop(target.toUtf8());
}

bool PosixShell::EditText(const QString &file)
{
    static const std::array<QByteArray, 7> editors{"gnome-text-editor", "gedit",      "kwrite", "kate",
                                                   "mousepad",          "featherpad", "xed"};
    const QByteArray path = ArgumentOf(file);
    if (!IsThere(path))
        return false;
    for (const QByteArray &name : editors) {
        const QByteArray editor = FindCommand(name);
        if (!editor.isEmpty())
            return StartDetached({editor, path});
    }
    return OpenWithDesktop(path);
}

bool PosixShell::BrowseFolder(const QString &folder)
{
    const QByteArray path = ArgumentOf(folder);
    struct stat status = {};
    return stat(path.constData(), &status) == 0 && S_ISDIR(status.st_mode) && OpenWithDesktop(path);
}

} // namespace tressel
