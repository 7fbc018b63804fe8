// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "ReportOutput.h"

#include "Console.h"
#include "machine/NameText.h"

namespace tressel {

namespace {

constexpr qsizetype heldAtMost = 1 << 16;

} // namespace

ReportOutput::ReportOutput(Console &toConsole)
    : console(toConsole)
    , end(1, toConsole.EndsInNul() ? '\0' : '\n')
{
}

ReportOutput::ReportOutput(Console &toConsole, const QString &path, IfThere ifThere)
    : console(toConsole)
    , file(toConsole.machine.files.Replace(path, ifThere))
    , end(toConsole.EndsInNul() ? QByteArray(1, '\0') : QByteArray("\r\n"))
{
}

ReportOutput::~ReportOutput() = default;

QString ReportOutput::Shown(const QString &name) const
{
    return file ? name : console.Shown(name);
}

void ReportOutput::WriteLine(const QString &line, const QString &rest)
{
    const qsizetype before = held.size();
    held.reserve(2 * heldAtMost);
    held.resize(before + (line.size() + rest.size()) * 3);
    char *const middle = WriteUtf8(line, NameBytes::Raw, held.data() + before);
    held.truncate(WriteUtf8(rest, NameBytes::Raw, middle) - held.constData());
    held += end;
    if (held.size() >= heldAtMost)
        Pass();
}

void ReportOutput::Commit()
{
    Pass();
    if (file)
        file->Commit();
}

void ReportOutput::Pass()
{
    if (file)
        file->Write(held);
    else
        console.streams.Out().Write(held);
    held.resize(0);
}

} // namespace tressel
