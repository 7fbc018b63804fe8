// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "ReportOutput.h"

#include "Console.h"
#include "machine/NameText.h"

#include <algorithm>

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
    const qsizetype longest = (line.size() + rest.size()) * 3 + end.size();
    if (held.size() - taken < longest)
        held.resize(taken + std::max(longest, 2 * heldAtMost));
    char *to = held.data() + taken;
    to = WriteUtf8(line, NameBytes::Raw, to);
    to = WriteUtf8(rest, NameBytes::Raw, to);
    to = std::ranges::copy(end, to).out;
    taken = to - held.constData();
    if (taken >= heldAtMost)
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
        file->Write(held.first(taken));
    else
        console.streams.Out().Write(QByteArrayView(held).first(taken));
    taken = 0;
}

} // namespace tressel
