// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "Console.h"

#include "machine/TextFile.h"

#include <QDeadlineTimer>

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

} // namespace

void Print(const QString &line)
{
    WriteLine(stdout, line);
}

void PrintError(const QString &sentence)
{
    std::fflush(stdout);
    WriteLine(stderr, u"tressel-cli: "_s + sentence);
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
    if (isDrawn)
        std::fputs("\r\033[K", stderr);
}

void ProgressLine::Show(int done, int total)
{
    constexpr qint64 pause = 50;
    constexpr int width = 40;
    if (!isShown || total <= 0)
        return;
    const qint64 now = QDeadlineTimer::current().deadline();
    if (isDrawn && now - lastDrawn < pause)
        return;
    lastDrawn = now;
    isDrawn = true;
    const int filled = static_cast<int>(static_cast<qint64>(width) * done / total);
    const QString bar = QString(filled, u'#') + QString(width - filled, u'.');
    std::fprintf(stderr, "\r[%s] %d of %d", bar.toLatin1().constData(), done, total);
    std::fflush(stderr);
}

} // namespace tressel
