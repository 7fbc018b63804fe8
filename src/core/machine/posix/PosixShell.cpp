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

QByteArray BytesOf(const QString &path)
{
    return NativePath{QStringView(path)}.Bytes().toByteArray();
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

bool OpenWithDesktop(const QByteArray &target, const QByteArray &folder = {})
{
    const QByteArray opener = FindCommand("xdg-open");
    return !opener.isEmpty() && StartDetached({opener, target}, folder);
}

} // namespace

bool PosixShell::Open(const QString &target, const QString &folder)
{
    const NativePath path{QStringView(target)};
    if (path.Problem())
        return false;
    // A name that a person typed may begin with a hyphen; with its folder before it, it is no option.
    QByteArray whole = path.Bytes().toByteArray();
    if (!whole.startsWith('/'))
        whole = (folder.isEmpty() ? QByteArray(".") : BytesOf(folder)) + '/' + whole;
    if (IsThere(whole))
        return OpenWithDesktop(whole);
    return IsAddress(target) && OpenWithDesktop(path.Bytes().toByteArray());
}

bool PosixShell::EditText(const QString &file)
{
    static const std::array<QByteArray, 7> editors{"gnome-text-editor", "gedit",      "kwrite", "kate",
                                                   "mousepad",          "featherpad", "xed"};
    const QByteArray path = BytesOf(file);
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
    const QByteArray path = BytesOf(folder);
    struct stat status = {};
    return stat(path.constData(), &status) == 0 && S_ISDIR(status.st_mode) && OpenWithDesktop(path);
}

} // namespace tressel
