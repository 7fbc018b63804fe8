// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "Console.h"

#include "Arguments.h"
#include "ConsoleMachine.h"
#include "SafeName.h"
#include "machine/AbsolutePath.h"
#include "machine/NameText.h"
#include "machine/TextFile.h"

#include <QDeadlineTimer>

#include <algorithm>
#include <array>
#include <new>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mostBytesOfLetter = 3;

qint64 Now()
{
    return QDeadlineTimer::current().deadline();
}

} // namespace

Console::Console(const Surroundings &surroundings, const Arguments &arguments)
    : machine(surroundings.machine)
    , streams(surroundings.streams)
    , stops(surroundings.stops)
    , workingFolder(surroundings.workingFolder)
    , isQuiet(arguments.Has(shared::Quiet()))
    , lineEnd(arguments.Has(shared::Null()) ? '\0' : '\n')
    , showsProgress(!isQuiet && streams.Err().IsTerminal() && !streams.Out().IsTerminal())
{
}

QString Console::Path(const QString &typed, Links last) const
{
    return AbsolutePath(machine.files, typed, workingFolder, last);
}

void Console::Line(const QString &text)
{
    WriteOut(text, lineEnd);
}

void Console::Cell(const QString &text)
{
    WriteOut(text, EndsInNul() ? '\0' : '\t');
}

void Console::WriteOut(const QString &text, char end)
{
    // Most texts are short and need no memory of their own.
    std::array<char, 512> room{};
    if (text.size() * mostBytesOfLetter < static_cast<qsizetype>(room.size())) {
        char *last = WriteUtf8(text, NameBytes::Raw, room.data());
        *last++ = end;
        streams.Out().Write({room.data(), last});
    } else {
        streams.Out().Write(EncodeText(text, NameBytes::Raw) + end);
    }
}

QString Console::Shown(const QString &name) const
{
    return streams.Out().IsTerminal() && !EndsInNul() ? SafeName(name) : name;
}

void Console::Fail(const QString &path, const Failure &failure)
{
    Fail(path, failure.description);
}

void Console::Fail(const QString &path, const QString &reason)
{
    FailAs(SafeName(path) + u": "_s + reason);
}

void Console::FailAs(const QString &sentence)
{
    hasFailed = true;
    WriteAside(u"tressel-cli: "_s + sentence);
}

void Console::Aside(const QString &sentence)
{
    if (!isQuiet)
        WriteAside(sentence);
}

std::optional<QString> Console::Ask(const QString &question)
{
    constexpr qint64 longestAnswer = 256;
    if (!streams.In().IsTerminal() || !streams.Err().IsTerminal())
        return {};
    ClearProgress();
    streams.Out().Flush();
    streams.Err().Write(EncodeText(question, NameBytes::Raw));
    streams.Err().Flush();
    return DecodeText(streams.In().Read(longestAnswer)).trimmed();
}

void Console::WriteAside(const QString &line)
{
    ClearProgress();
    // So that the two streams keep their order where they meet.
    streams.Out().Flush();
    streams.Err().Write(EncodeText(line, NameBytes::Raw) + '\n');
    streams.Err().Flush();
}

int Console::Status() const
{
    return hasFailed ? SomethingFailed : AllDone;
}

void Console::BetweenSteps()
{
    stops.ThrowIfPending();
    if (streams.Out().Problem())
        throw OutputLost{};
}

void Console::ShowProgress(double done, double total)
{
    constexpr int width = 40;
    constexpr qint64 pause = 50;
    if (!showsProgress || total <= 0 || (isBarDrawn && Now() - barDrawnAt < pause))
        return;
    barDrawnAt = Now();
    isBarDrawn = true;
    const int filled = static_cast<int>(width * std::clamp(done / total, 0.0, 1.0));
    const QString bar = QString(filled, u'#') + QString(width - filled, u'.');
    streams.Err().Write(
        u"\r[%1] %2 of %3\033[K"_s.arg(bar).arg(done, 0, 'f', 0).arg(total, 0, 'f', 0).toLatin1());
    streams.Err().Flush();
}

void Console::ClearProgress()
{
    if (isBarDrawn)
        streams.Err().Write("\r\033[K");
    isBarDrawn = false;
}

void Console::Count(const QString &sentence)
{
    ClearProgress();
    if (!isQuiet)
        streams.Out().Write(EncodeText(sentence) + '\n');
}

int Console::Conclude(const std::function<void()> &work, const std::function<void()> &close)
{
    int signal = 0;
    try {
        work();
    } catch (const Stopped &stopped) {
        signal = stopped.signal;
    } catch (const OutputLost &) {
        // Finish says why.
    } catch (const Unanswered &unanswered) {
        FailAs(u"there is no answer to: "_s + SafeText(unanswered.question));
    } catch (const Failure &failure) {
        FailAs(failure.description);
    } catch (const std::bad_alloc &) {
        FailAs(DescriptionOf(FailureNumber::OutOfMemory));
    }
    close();
    return signal != 0 ? StoppedBySignal + signal : Status();
}

int Console::Finish(int status)
{
    ClearProgress();
    streams.Out().Flush();
    const auto problem = streams.Out().Problem();
    if (!problem)
        return status;
    WriteAside(u"tressel-cli: standard output: "_s + problem->description);
    return status == AllDone ? int(SomethingFailed) : status;
}

} // namespace tressel
