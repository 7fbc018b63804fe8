// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "ReportOutput.h"

#include "machine/posix/SystemError.h"

#include <cerrno>
#include <cstdio>
#include <utility>

namespace tressel {

namespace {

/// Takes the CR out of each CR LF.
QByteArray WithPlainEnds(QByteArrayView lines)
{
    QByteArray plain(lines.size(), Qt::Uninitialized);
    char *to = plain.data();
    for (const char *at = lines.begin(); at != lines.end(); ++at) {
        if (*at != '\r' || at + 1 == lines.end() || at[1] != '\n')
            *to++ = *at;
    }
    plain.truncate(to - plain.constData());
    return plain;
}

void WriteToStandardOutput(QByteArrayView lines)
{
    const QByteArray plain = WithPlainEnds(lines);
    const auto length = static_cast<size_t>(plain.size());
    if (std::fwrite(plain.constData(), 1, length, stdout) != length)
        throw Failure(NumberOfError(errno));
}

} // namespace

ReportOutput::ReportOutput(std::unique_ptr<OpenFile> openFile)
    : file(std::move(openFile))
{
}

void ReportOutput::Write(const QByteArray &lines)
{
    Noting([&] {
        if (file)
            file->Write(lines);
        else
            WriteToStandardOutput(lines);
    });
}

void ReportOutput::Finish()
{
    if (problem)
        return;
    try {
        Noting([&] {
            if (file)
                file->Close();
            else if (std::fflush(stdout) != 0)
                throw Failure(NumberOfError(errno));
        });
    } catch (const Failure &) {
        // Noted as the problem.
    }
}

template <typename Step> void ReportOutput::Noting(Step &&step)
{
    if (problem)
        throw Failure(*problem);
    try {
        step();
    } catch (const Failure &failure) {
        problem = failure;
        throw;
    }
}

} // namespace tressel
