// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "Sweep.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>

namespace tressel::faults {

namespace {

constexpr bool lasting = true;
constexpr bool once = false;
constexpr bool alsoInShort = true;

constexpr Fault faults[]{
    {"EIO of all from here on", Kind::Any, EIO, lasting},
    {"EIO", Kind::Open, EIO, once, alsoInShort},
    {"EMFILE", Kind::Open, EMFILE},
    {"EMFILE from here on", Kind::Open, EMFILE, lasting},
    {"EACCES", Kind::Open, EACCES},
    {"ENOSPC", Kind::Open, ENOSPC},
    {"EROFS", Kind::Open, EROFS},
    {"EINTR", Kind::Open, EINTR},
    {"EIO", Kind::Read, EIO, once, alsoInShort},
    {"EINTR", Kind::Read, EINTR},
    {"short", Kind::Read, shortened, once, alsoInShort},
    {"ENOSPC", Kind::Write, ENOSPC, once, alsoInShort},
    {"ENOSPC from here on", Kind::Write, ENOSPC, lasting, alsoInShort},
    {"EIO", Kind::Write, EIO},
    {"EINTR", Kind::Write, EINTR},
    {"short", Kind::Write, shortened, once, alsoInShort},
    {"EIO", Kind::Sync, EIO, once, alsoInShort},
    {"ENOSPC", Kind::Sync, ENOSPC},
    {"EINTR", Kind::Sync, EINTR},
    {"EIO", Kind::Close, EIO, once, alsoInShort},
    {"ENOSPC", Kind::Close, ENOSPC},
    {"EINTR", Kind::Close, EINTR},
    {"EIO", Kind::Rename, EIO, once, alsoInShort},
    {"EACCES", Kind::Rename, EACCES},
    {"ENOSPC", Kind::Rename, ENOSPC},
    {"EROFS", Kind::Rename, EROFS},
    {"EIO", Kind::Link, EIO, once, alsoInShort},
    {"EPERM", Kind::Link, EPERM},
    {"EIO", Kind::Symlink, EIO},
    {"EIO", Kind::Unlink, EIO, once, alsoInShort},
    {"EACCES", Kind::Unlink, EACCES},
    {"EROFS", Kind::Unlink, EROFS},
    {"ENOSPC", Kind::Mkdir, ENOSPC, once, alsoInShort},
    {"EACCES", Kind::Mkdir, EACCES},
    {"EROFS", Kind::Mkdir, EROFS},
    {"EIO", Kind::Mkdir, EIO},
    {"EIO", Kind::Rmdir, EIO, once, alsoInShort},
    {"EACCES", Kind::Rmdir, EACCES},
    {"EROFS", Kind::Rmdir, EROFS},
    {"EIO", Kind::Stat, EIO, once, alsoInShort},
    {"EACCES", Kind::Stat, EACCES},
    {"EIO", Kind::Readdir, EIO, once, alsoInShort},
    {"EIO", Kind::Seek, EIO, once, alsoInShort},
    {"ENOSPC", Kind::Truncate, ENOSPC, once, alsoInShort},
    {"EIO", Kind::Truncate, EIO},
    {"EINTR", Kind::Truncate, EINTR},
    {"EPERM", Kind::Chmod, EPERM, once, alsoInShort},
    {"EROFS", Kind::Chmod, EROFS},
    {"EPERM", Kind::Chown, EPERM, once, alsoInShort},
    {"EIO", Kind::Attribute, EIO, once, alsoInShort},
    {"EIO", Kind::Times, EIO},
    {"EWOULDBLOCK", Kind::Lock, EWOULDBLOCK},
    {"ENOLCK", Kind::Lock, ENOLCK},
    {"EINTR", Kind::Lock, EINTR, once, alsoInShort},
    {"EIO", Kind::Readlink, EIO, once, alsoInShort},
    {"EIO", Kind::Room, EIO, once, alsoInShort},
};

constexpr Fault kill{"killed", Kind::Any, killed};
constexpr Fault none{"none", Kind::Any, EIO};

bool NamesSomething(const std::string &message)
{
    constexpr std::array<const char *, 3> names{"/disc", "standard output", "told in the window"};
    return std::ranges::any_of(names,
                               [&](const char *name) { return message.find(name) != std::string::npos; });
}

/// An interrupted call and one that did a part of its work are no failures.
bool IsToGoOn(const Fault &fault)
{
    return fault.outcome == EINTR || fault.outcome == shortened;
}

bool IsPassedOver(const Case &subject, const Run &run, const Fault &fault, const Evidence &evidence)
{
    return subject.passesOver && !IsToGoOn(fault) && subject.passesOver(run.where, fault.outcome, evidence);
}

Verdict VerdictOfEnded(const Run &run, const Run &clean, const Fault &fault, State state)
{
    const bool isAsClean = state == State::Done && run.out == clean.out && run.status == clean.status;
    if (isAsClean)
        return Verdict::Done;
    if (run.status == 0)
        return Verdict::FalseSuccess;
    if (run.status != 1 || !NamesSomething(run.err))
        return Verdict::NoReason;
    return IsToGoOn(fault) ? Verdict::GaveUp : Verdict::Told;
}

bool IsKilled(const Run &run, const Fault &fault)
{
    return fault.outcome == killed && run.status == -SIGKILL;
}

Verdict VerdictOfKilled(State state)
{
    if (state == State::PartWay)
        return Verdict::PartWay;
    return state == State::Done ? Verdict::Done : Verdict::Untouched;
}

/// Where all fails from a moment on, nothing can be taken away again: then its name has to be told, but for a
/// file that was on its way to replace another, as README.md has it.
bool IsExcused(const Run &run, const Fault &fault, const Finding &finding)
{
    const std::string name = finding.ownFile.substr(finding.ownFile.rfind('/') + 1);
    const bool isBeside = name.starts_with("~tr") || name == ".tressel-settings.tmp";
    const bool isTold = isBeside || run.err.find(name) != std::string::npos;
    return fault.lasts && !name.empty() && run.status == 1 && isTold;
}

Verdict VerdictOf(const Case &subject, const Run &run, const Run &clean, const Fault &fault,
                  const Evidence &evidence, const Finding &finding)
{
    // From here on a status stands for a program that couldn't be started, or that says which signal ended
    // it.
    constexpr int firstOfTheEnded = 99;
    const bool isKilled = IsKilled(run, fault);
    if (!isKilled && (run.status < 0 || run.status >= firstOfTheEnded))
        return Verdict::Crash;
    if (IsExcused(run, fault, finding))
        return Verdict::Told;
    if (finding.state == State::Damaged)
        return Verdict::HalfWritten;
    if (finding.state == State::Leftover)
        return Verdict::Leftover;
    if (isKilled)
        return VerdictOfKilled(finding.state);
    const Verdict verdict = VerdictOfEnded(run, clean, fault, finding.state);
    const bool isUntold = verdict == Verdict::FalseSuccess || verdict == Verdict::NoReason;
    return isUntold && IsPassedOver(subject, run, fault, evidence) ? Verdict::Silent : verdict;
}

std::string FirstLine(const std::string &text)
{
    return text.substr(0, text.find('\n'));
}

/// One sweep of one case.
class CaseSweep {
public:
    CaseSweep(Bench &theBench, const Case &theCase, int pointStride)
        : bench(theBench)
        , subject(theCase)
        , stride(pointStride)
    {
        row.name = subject.name;
    }

    Row Go(std::span<const Fault> wanted)
    {
        clean = bench.RunCase(subject, none, 0);
        const Run again = bench.RunCase(subject, none, 0);
        if (clean.status != subject.status || clean.now != again.now || clean.out != again.out) {
            ++row.points;
            Add(Verdict::FalseSuccess, "without a fault", clean, "can't be run twice alike");
            return row;
        }
        for (const Fault &fault : wanted)
            SweepOne(fault);
        return row;
    }

private:
    void SweepOne(const Fault &fault)
    {
        // Where each starts differs, so that the points of all kinds are spread.
        for (int number = 1 + row.points % stride;; number += stride) {
            const Run run = bench.RunCase(subject, fault, number);
            if (!run.metFault)
                return;
            ++row.points;
            const Evidence evidence{run.before, clean.now, run.now, run.out, IsKilled(run, fault)};
            const Finding finding = subject.check(evidence);
            const std::string what = finding.state >= State::Leftover ? finding.what : FirstLine(run.err);
            Add(VerdictOf(subject, run, clean, fault, evidence, finding),
                std::to_string(number) + ". " + run.where + ": " + fault.name, run, what);
        }
    }

    void Add(Verdict verdict, const std::string &where, const Run &run, const std::string &what)
    {
        ++row.counts.at(static_cast<std::size_t>(verdict));
        if (verdict >= Verdict::FalseSuccess)
            row.mistakes.push_back(where + ": status " + std::to_string(run.status) + ": " + what);
    }

    Bench &bench;
    const Case &subject;
    const int stride;
    Run clean;
    Row row;
};

} // namespace

std::span<const Fault> AllFaults()
{
    return faults;
}

const Fault &Kill()
{
    return kill;
}

Row Sweep(Bench &bench, const Case &subject, std::span<const Fault> wanted, int stride)
{
    return CaseSweep(bench, subject, stride).Go(wanted);
}

} // namespace tressel::faults
