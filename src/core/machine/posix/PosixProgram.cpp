// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/posix/PosixProgram.h"

#include "machine/NameText.h"
#include "machine/posix/UserFolders.h"

#include <QByteArrayList>

#include <algorithm>
#include <array>
#include <climits>
#include <cstdlib>
#include <unistd.h>
#include <utility>

namespace tressel {

namespace {

QString TextOf(const QByteArray &name)
{
    return *TextFromUtf8(name, NameBytes::Raw);
}

QByteArray FolderOfPath(const QByteArray &path)
{
    return path.left(std::max<qsizetype>(path.lastIndexOf('/'), 0));
}

bool HoldsProgramFiles(const QByteArray &folder)
{
    static const std::array<QByteArray, 3> names{"/Lang", "/click.wav", "/TIPOFDAY.TXT"};
    return std::any_of(names.begin(), names.end(), [&folder](const QByteArray &name) {
        return access((folder + name).constData(), F_OK) == 0;
    });
}

QByteArray ProgramFolder(const QByteArray &executable)
{
    const QByteArray folder = FolderOfPath(executable);
    return HoldsProgramFiles(folder) ? folder : FolderOfPath(folder) + "/share/tressel";
}

} // namespace

QByteArray RunningExecutable()
{
    std::array<char, PATH_MAX> path{};
    const ssize_t length = readlink("/proc/self/exe", path.data(), path.size());
    return length < 0 ? QByteArray() : QByteArray(path.data(), length);
}

PosixProgram::PosixProgram(int count, char **arguments, std::function<bool()> beforeTheEnd)
    : PosixProgram(RunningExecutable(), count, arguments, std::move(beforeTheEnd))
{
}

PosixProgram::PosixProgram(QByteArray path, int count, char **arguments, std::function<bool()> beforeTheEnd)
    : executable(std::move(path))
    , folder(ProgramFolder(executable))
    , beforeEnd(std::move(beforeTheEnd))
{
    QByteArrayList words;
    for (int index = 1; index < count; ++index)
        words += QByteArray(arguments[index]);
    commandLine = words.join(' ');
}

QString PosixProgram::Folder() const
{
    return TextOf(folder);
}

QString PosixProgram::WritableFolder() const
{
    if (access(folder.constData(), W_OK | X_OK) == 0)
        return Folder();
    const QByteArray own = UserDataFolder() + "/tressel";
    MakeUserFolder(own);
    return TextOf(own);
}

QString PosixProgram::ExecutableName() const
{
    const QByteArray name = executable.mid(executable.lastIndexOf('/') + 1);
    const qsizetype dot = name.lastIndexOf('.');
    return TextOf(dot > 0 ? name.left(dot) : name);
}

QString PosixProgram::CommandLine() const
{
    return TextOf(commandLine);
}

void PosixProgram::End(int status)
{
    const bool isAllDown = !beforeEnd || beforeEnd();
    _exit(isAllDown || status != 0 ? status : EXIT_FAILURE);
}

} // namespace tressel
