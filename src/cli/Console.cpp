// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "Console.h"

#include "machine/TextFile.h"

#include <QDeadlineTimer>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <unistd.h>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

volatile std::sig_atomic_t interrupted = 0;

void NoteSignal(int)
{
    interrupted = 1;
}

void WriteLine(std::FILE *stream, const QString &line)
{
    const QByteArray bytes = EncodeText(line + u'\n', NameBytes::Raw);
    std::fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), stream);
}

qint64 Now()
{
    return QDeadlineTimer::current().deadline();
}

} // namespace

void Print(const QString &line)
{
    WriteLine(stdout, line);
}

void PrintAside(const QString &line)
{
    std::fflush(stdout);
    WriteLine(stderr, line);
}

void PrintError(const QString &sentence)
{
    PrintAside(u"tressel-cli: "_s + sentence);
}

void NoteInterruptions()
{
    struct sigaction action = {};
    action.sa_handler = NoteSignal;
    sigaction(SIGINT, &action, nullptr);
    sigaction(SIGTERM, &action, nullptr);
}

bool WasInterrupted()
{
    return interrupted != 0;
}

ProgressLine::ProgressLine(bool wanted)
    : isShown(wanted && isatty(STDERR_FILENO) == 1)
{
}

ProgressLine::~ProgressLine()
{
    Clear();
}

bool ProgressLine::IsDue() const
{
    constexpr qint64 pause = 50;
    return isShown && (!isDrawn || Now() - lastDrawn >= pause);
}

void ProgressLine::Show(double done, double total)
{
    constexpr int width = 40;
    if (total <= 0 || !IsDue())
        return;
    lastDrawn = Now();
    isDrawn = true;
    const int filled = static_cast<int>(width * std::clamp(done / total, 0.0, 1.0));
    const QString bar = QString(filled, u'#') + QString(width - filled, u'.');
    std::fprintf(stderr, "\r[%s] %.0f of %.0f\033[K", bar.toLatin1().constData(), done, total);
    std::fflush(stderr);
}

void ProgressLine::Clear()
{
    if (isDrawn)
        std::fputs("\r\033[K", stderr);
    isDrawn = false;
}

} // namespace tressel
